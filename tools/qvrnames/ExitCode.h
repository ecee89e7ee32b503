#pragma once

#include <stdexcept>
#include <string>

/// What the user gave cannot be used: a document, an argument, a file that cannot be read or written. The
/// program says so on standard error, in one line, and ends with code 2.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
