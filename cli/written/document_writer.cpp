#include "cli/written/document_writer.h"

#include <system_error>
#include <unistd.h>
#include <utility>

#include "cli/typed/errors.h"
#include "words/quoting.h"

namespace veyruna::cli {

namespace {

/// Does a part of the writing; its failure names what could not be written.
template <class Part>
auto named(const std::string& name, Part part) {
  try {
    return part();
  } catch (const std::system_error& error) {
    throw WriteError("cannot write " + name + ": " + error.code().message());
  }
}

}  // namespace

bool isStandardOutput(std::string_view file) {
  return file == "-" || file == "/dev/stdout" || file == "/dev/fd/1" || file == "/proc/self/fd/1";
}

DocumentWriter::DocumentWriter(std::string name, files::FileWriter writer)
    : name_(std::move(name)), writer_(std::move(writer)) {}

DocumentWriter DocumentWriter::toStandardOutput() {
  const std::string name = "standard output";
  return {name, named(name, [] { return files::FileWriter::toStream(STDOUT_FILENO); })};
}

DocumentWriter DocumentWriter::to(const std::string& file) {
  if (isStandardOutput(file)) {
    return toStandardOutput();
  }
  const std::string name = words::inQuotes(file);
  return {name, named(name, [&] { return files::FileWriter(file); })};
}

void DocumentWriter::write(std::string_view text) {
  named(name_, [&] { writer_.write(text); });
}

void DocumentWriter::finish() {
  named(name_, [&] { writer_.finish(); });
}

}  // namespace veyruna::cli
