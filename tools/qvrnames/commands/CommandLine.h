#pragma once

#include "terminal/Terminal.h"

#include <iosfwd>

/// How the program ends.
enum ExitCode {
    kFine = 0,
    kRefused = 1,  ///< a name was refused, or names were found that would be
    kBadInput = 2, ///< bad usage, or a document that cannot be used
};

/// The whole program: results go to `out`, what is wrong with the input and progress to `err`. What the
/// naming module itself prints on standard output goes to `out` as well, which leads to the screen.
int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err, const Screen& screen = {});
