#pragma once

/// The exit code of the program.
enum ExitCode {
    kSuccess = 0,
    kRefused = 1,  ///< a name is refused, an audit has findings, no name can be proposed, or names remain to be fixed
    kBadInput = 2, ///< the arguments or the document are unusable, or a file cannot be read or written
};
