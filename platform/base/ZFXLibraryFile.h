#pragma once

#include <filesystem>

/// Returns the file of the library or program that contains `address`, as the system's loader found it: the path may be
/// relative to the folder that was current then. Returns an empty path if the system does not know the file.
[[nodiscard]] std::filesystem::path ZFXLibraryFileAt(const void* address);
