#pragma once

#include "ExitCode.h"

#include <cstddef>
#include <string>

/// The largest document that is read: 256 MB.
inline constexpr std::size_t kLargestDocument = std::size_t{256} << 20;

/// What stands for standard input where a file is read.
inline constexpr const char* kStandardStream = "-";

/// The path, or what a message calls the standard stream.
inline std::string FileForPeople(const std::string& path) { return path == kStandardStream ? "standard input" : path; }

[[noreturn]] inline void RefuseFile(const std::string& path, const std::string& action, const std::string& reason) {
    throw BadInput(FileForPeople(path) + ": cannot be " + action + ": " + reason);
}

[[noreturn]] inline void RefuseSize(const std::string& path) {
    throw BadInput(FileForPeople(path) + ": larger than " + std::to_string(kLargestDocument >> 20) +
                   " MB, which is the largest document that is read");
}
