#include "cli/document_writer.h"

#include <system_error>
#include <unistd.h>
#include <utility>

#include "cli/errors.h"
#include "cli/quoting.h"

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

/// Standard output under one of its names in the file system: opened anew, it would begin at the
/// start of the file that a shell appends to.
bool isStandardOutput(std::string_view path) {
  return path == "/dev/stdout" || path == "/dev/fd/1" || path == "/proc/self/fd/1";
}

}  // namespace

DocumentWriter::DocumentWriter(std::string name, files::FileWriter writer)
    : name_(std::move(name)), writer_(std::move(writer)) {}

DocumentWriter DocumentWriter::toStandardOutput() {
  const std::string name = "standard output";
  return {name, named(name, [] { return files::FileWriter::toStream(STDOUT_FILENO); })};
}

DocumentWriter DocumentWriter::toFile(const std::string& path) {
  if (isStandardOutput(path)) {
    return toStandardOutput();
  }
  const std::string name = inQuotes(path);
  return {name, named(name, [&] { return files::FileWriter(path); })};
}

void DocumentWriter::write(std::string_view text) {
  named(name_, [&] { writer_.write(text); });
}

void DocumentWriter::finish() {
  named(name_, [&] { writer_.finish(); });
}

}  // namespace veyruna::cli
