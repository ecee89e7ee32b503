#pragma once

#include <cstddef>
#include <string>

// Paths are UTF-8 on every system.

/// The largest document that is read: 256 MB.
inline constexpr std::size_t kLargestDocument = std::size_t{256} << 20;

/// All bytes of the file. BadInput when there is no such file, when it cannot be read or is too large.
std::string ReadWholeFile(const std::string& path);

/// The file holds these bytes from now on, or, with BadInput, what it held before: they are written beside
/// it, brought to the disk and put in its place in one go. A file that is there keeps its permissions, a new
/// one gets those of `model` (on Windows those of its folder); a symbolic link stays one.
void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model);
