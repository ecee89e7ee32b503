#pragma once

#include <stdexcept>

/// How the program ends.
enum ExitCode {
    kFine = 0,
    kRefused = 1,  ///< a name was refused, or names were found that would be
    kBadInput = 2, ///< bad usage, or a document that cannot be used
};

/// What the user gave cannot be used: a document, an argument, a file that cannot be read or written. The
/// program says so on standard error, in one line, and ends with code 2.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
