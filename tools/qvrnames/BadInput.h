#pragma once

#include <stdexcept>

/// Input from the user that is unusable: an argument, a document, or a file that cannot be read or written. The program
/// prints the message on standard error and returns kBadInput.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
