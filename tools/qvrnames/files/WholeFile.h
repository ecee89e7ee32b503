#pragma once

#include <string>

// Paths are UTF-8 on every system.

/// All bytes of the file, or of standard input for "-". BadInput when there is no such file, when it cannot be read or
/// is too large.
std::string ReadWholeFile(const std::string& path);

/// The file holds these bytes from now on, or, with BadInput, what it held before: they are written beside
/// it, brought to the disk and put in its place in one go. A file that is there keeps its permissions, a new
/// one gets those of `model`, or the usual ones when that is "-" (on Windows those of its folder); a symbolic link
/// stays one.
void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model);
