#pragma once

#include <stdexcept>

/// The exit code of the program.
enum ExitCode {
    kSuccess = 0,
    kRefused = 1,  ///< a name is refused, an audit has findings, no name can be proposed, or names remain to be fixed
    kBadInput = 2, ///< the arguments or the document are unusable, or a file cannot be read or written
};

/// Input from the user that is unusable: an argument, a document, or a file that cannot be read or written. The program
/// prints the message on standard error and returns kBadInput.
class BadInput : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};
