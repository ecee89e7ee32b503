#pragma once

#include <string>
#include <vector>

/// A file to audit.
struct DocumentFile {
    std::string path;  ///< as in the command line, or found in a folder
    std::string error; ///< why it is unusable; empty if it has to be read
};

/// Returns the files to audit: the arguments, with each folder replaced by the files "*.json" in and below it, sorted.
/// A file with several paths is in the result once, at its first place.
/// A folder that cannot be read, or that contains no such file, is in the result with an error.
/// @param skipped  paths of files that are not documents; they are left out of folders. Empty paths are ignored
[[nodiscard]] std::vector<DocumentFile> FindDocuments(const std::vector<std::string>& arguments,
                                                      const std::vector<std::string>& skipped);
