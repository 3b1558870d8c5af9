#include "cli/batch/row_writer.h"

#include <cerrno>
#include <exception>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "cli/batch/side_by_side.h"
#include "cli/documents/document_content.h"
#include "files/file_writer.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

bool isFullDisk(const std::error_code& error) {
  return error == std::errc::no_space_on_device || error.value() == EDQUOT;
}

/// One of the cores, for the length of its life.
class HeldCore {
 public:
  explicit HeldCore(std::counting_semaphore<>& freeCores) : freeCores_(freeCores) {
    freeCores_.acquire();
  }
  HeldCore(const HeldCore&) = delete;
  HeldCore& operator=(const HeldCore&) = delete;
  ~HeldCore() { freeCores_.release(); }

 private:
  std::counting_semaphore<>& freeCores_;
};

}  // namespace

RowWriter::RowWriter(std::string folder, std::vector<RowFile> files, int widthPixels,
                     const Renderer& renderer)
    : folder_(std::move(folder)),
      files_(std::move(files)),
      widthPixels_(widthPixels),
      renderer_(renderer),
      freeCores_(static_cast<std::ptrdiff_t>(coreCount())) {}

RowOutcome RowWriter::write(const BatchRow& row, const std::vector<std::string>& names) {
  RowOutcome outcome;
  if (isFull_) {
    outcome.problem = "the disk is full";
    outcome.isLeftOut = true;
    return outcome;
  }
  try {
    const std::vector<std::string> contents = contentsOf(row);
    for (std::size_t i = 0; i < contents.size() && outcome.problem.empty(); ++i) {
      writeFile(names[i], contents[i], outcome);
    }
  } catch (const std::exception& error) {
    outcome.problem = error.what();
  }
  return outcome;
}

std::vector<std::string> RowWriter::contentsOf(const BatchRow& row) {
  const HeldCore core(freeCores_);
  std::vector<std::string> contents;
  std::optional<std::string> text;
  documents::Document current = documents::Document::count;
  for (const RowFile& file : files_) {
    if (file.document != current) {
      text.reset();
      current = file.document;
    }
    contents.push_back(contentOf(file.form, documents::entryOf(file.document), row.sky, renderer_,
                                 widthPixels_, text));
  }
  return contents;
}

void RowWriter::writeFile(const std::string& name, const std::string& content,
                          RowOutcome& outcome) {
  const std::string path = (std::filesystem::path(folder_) / name).string();
  const std::error_code error = files::writeWholeFile(path, content);
  if (!error) {
    outcome.files.push_back(name);
    return;
  }
  outcome.problem = "cannot write " + words::inQuotes(path) + ": " + error.message();
  outcome.isDiskFull = isFullDisk(error);
  isFull_ = isFull_ || outcome.isDiskFull;
}

}  // namespace veyruna::cli
