#pragma once

#include "files/WholeFile.h"

#include "text/Utf8Path.h"

#include <filesystem>
#include <string>
#include <system_error>

/// Returns the absolute path without symbolic links, or the path itself if it is standard input or cannot be resolved.
inline std::filesystem::path RealPath(const std::string& path) {
    std::error_code error;
    const std::filesystem::path real = std::filesystem::weakly_canonical(Utf8::ToPath(path), error);
    return error || path == kStandardStream ? Utf8::ToPath(path) : std::filesystem::absolute(real, error);
}
