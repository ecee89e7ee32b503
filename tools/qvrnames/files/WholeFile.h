#pragma once

#include <cstddef>
#include <string>

// Paths are UTF-8 on every system.

/// The largest document that is read: 256 MB.
inline constexpr std::size_t kLargestDocument = std::size_t{256} << 20;

/// What stands for standard input where a file is read.
inline constexpr const char* kStandardStream = "-";

/// The path, or what a message calls the standard stream.
inline std::string FileForPeople(const std::string& path) { return path == kStandardStream ? "standard input" : path; }

/// All bytes of the file, or of standard input for "-". BadInput when there is no such file, when it cannot be read or
/// is too large.
std::string ReadWholeFile(const std::string& path);

/// The file holds these bytes from now on, or, with BadInput, what it held before: they are written beside
/// it, brought to the disk and put in its place in one go. A file that is there keeps its permissions, a new
/// one gets those of `model`, or the usual ones when that is "-" (on Windows those of its folder); a symbolic link
/// stays one.
void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model);
