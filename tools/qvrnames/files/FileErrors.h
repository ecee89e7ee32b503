#pragma once

#include "BadInput.h"
#include "files/WholeFile.h"

#include <string>

/// Returns the path for messages: "standard input" for kStandardStream.
inline std::string DisplayFileName(const std::string& path) {
    return path == kStandardStream ? "standard input" : path;
}

/// Throws BadInput: "PATH: MESSAGE".
[[noreturn]] inline void ThrowBadInput(const std::string& path, const std::string& message) {
    throw BadInput(DisplayFileName(path) + ": " + message);
}

/// Throws BadInput: "PATH: cannot be ACTION: REASON". `action` is "read", "written" or "locked".
[[noreturn]] inline void ThrowFileError(const std::string& path, const std::string& action, const std::string& reason) {
    ThrowBadInput(path, "cannot be " + action + ": " + reason);
}

/// Throws BadInput for a file that its folder does not permit to be written.
[[noreturn]] inline void ThrowFolderError(const std::string& path, const std::string& folder,
                                          const std::string& reason) {
    ThrowFileError(path, "written",
                   "its folder " + folder + " does not permit that a file is created or replaced (" + reason +
                       "); change the permissions of the folder, or write to another one");
}

/// Throws BadInput for a file of more than kMaxDocumentBytes.
[[noreturn]] inline void ThrowTooLarge(const std::string& path) {
    ThrowBadInput(path, "larger than " + std::to_string(kMaxDocumentBytes >> 20) + " MB, the maximum size of a file");
}
