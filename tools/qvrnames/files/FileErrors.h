#pragma once

#include "BadInput.h"

#include <cstddef>
#include <string>

/// The largest document that is read: 256 MB.
inline constexpr std::size_t kMaxDocumentBytes = std::size_t{256} << 20;

/// The path that means standard input or standard output.
inline constexpr const char* kStandardStream = "-";

/// Returns the path for messages: "standard input" for kStandardStream.
inline std::string DisplayFileName(const std::string& path) {
    return path == kStandardStream ? "standard input" : path;
}

/// Throws BadInput: "PATH: cannot be ACTION: REASON". `action` is "read", "written" or "locked".
[[noreturn]] inline void ThrowFileError(const std::string& path, const std::string& action, const std::string& reason) {
    throw BadInput(DisplayFileName(path) + ": cannot be " + action + ": " + reason);
}

/// Throws BadInput for a file of more than kMaxDocumentBytes.
[[noreturn]] inline void ThrowTooLarge(const std::string& path) {
    throw BadInput(DisplayFileName(path) + ": larger than " + std::to_string(kMaxDocumentBytes >> 20) +
                   " MB, the maximum size of a file");
}
