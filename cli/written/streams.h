#pragma once

namespace veyruna::cli {

/// What both programs do with their standard streams first. One that came in closed is opened to
/// nothing, read-only: a document must never be opened under its number, and writing to it still
/// fails. A reader that has seen enough closes the pipe; that ends the command quietly, even where
/// the parent process had the signal ignored.
void prepareStreams();

}  // namespace veyruna::cli
