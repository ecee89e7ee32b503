#pragma once

#include <string>
#include <vector>

/// A file to audit.
struct DocumentFile {
    std::string path;  ///< as in the command line, or found in a folder
    std::string error; ///< why it is unusable; empty if it has to be read
};

/// Returns the files to audit: the arguments, with each folder replaced by the files "*.json" in and below it, sorted.
/// The result contains these with an error: a folder that cannot be read or contains no such file, and a file in a
/// folder whose name is not UTF-8.
[[nodiscard]] std::vector<DocumentFile> FindDocuments(const std::vector<std::string>& arguments);
