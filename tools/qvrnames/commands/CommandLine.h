#pragma once

#include "terminal/Terminal.h"

#include <iosfwd>

/// Runs the program and returns its exit code (ExitCode). Prints results on `out`, and errors and progress on `err`.
/// @param screen  the terminals, if any, of `out` and `err`
[[nodiscard]] int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err,
                      const Screen& screen = {});
