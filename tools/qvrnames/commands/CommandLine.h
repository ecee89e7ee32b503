#pragma once

#include "terminal/Terminal.h"

#include <iosfwd>

/// The whole program: results go to `out`, what is wrong with the input and progress to `err`. What the
/// naming module itself prints on standard output goes to `out` as well, which leads to the screen.
int Run(int argc, const char* const* argv, std::ostream& out, std::ostream& err, const Screen& screen = {});
