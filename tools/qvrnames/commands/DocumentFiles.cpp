#include "commands/DocumentFiles.h"

#include "files/RealPath.h"
#include "files/WholeFile.h"

#include "text/Utf8Path.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <system_error>

namespace {

using std::filesystem::file_type;

/// Returns the path with "/" on every system. On POSIX systems, it may contain any bytes.
std::string GenericPath(const std::filesystem::path& path) { return Utf8::FromPath(path.generic_u8string()); }

/// Returns true for a file, and for an entry of unknown type, such as a broken link, which is reported when it is read.
bool IsFileOrUnknown(const std::filesystem::directory_entry& entry) {
    std::error_code ignored;
    const file_type type = entry.status(ignored).type();
    return type == file_type::regular || type == file_type::not_found || type == file_type::none;
}

/// Appends the files "*.json" in and below a folder, without those in linked folders.
void AppendFilesIn(const std::filesystem::path& folder, std::vector<DocumentFile>& files) {
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        const std::filesystem::path& path = entry->path();
        if (entry->symlink_status(ignored).type() == file_type::directory)
            AppendFilesIn(path, files);
        else if (path.extension() == ".json" && IsFileOrUnknown(*entry))
            files.push_back({GenericPath(path), ""});
    }
    if (error)
        files.push_back({GenericPath(folder), "cannot be read: " + error.message()});
}

/// Returns the files of a folder, sorted.
std::vector<DocumentFile> FilesIn(const std::string& folder, const std::set<std::filesystem::path>& skipped) {
    std::vector<DocumentFile> files;
    AppendFilesIn(Utf8::ToPath(folder), files);
    std::erase_if(files, [&](const DocumentFile& file) { return skipped.contains(RealPath(file.path)); });
    if (files.empty())
        files.push_back({folder, "the folder contains no document (*.json)"});
    std::sort(files.begin(), files.end(), [](const DocumentFile& a, const DocumentFile& b) { return a.path < b.path; });
    return files;
}

} // namespace

std::vector<DocumentFile> FindDocuments(const std::vector<std::string>& arguments,
                                        const std::vector<std::string>& skipped) {
    std::set<std::filesystem::path> skippedPaths;
    for (const std::string& path : skipped)
        if (!path.empty())
            skippedPaths.insert(RealPath(path));
    std::vector<DocumentFile> files;
    for (const std::string& argument : arguments) {
        std::error_code ignored;
        if (argument == kStandardStream || !std::filesystem::is_directory(Utf8::ToPath(argument), ignored)) {
            files.push_back({argument, ""});
            continue;
        }
        const std::vector<DocumentFile> found = FilesIn(argument, skippedPaths);
        files.insert(files.end(), found.begin(), found.end());
    }
    std::set<std::filesystem::path> former;
    std::erase_if(files, [&](const DocumentFile& file) { return !former.insert(RealPath(file.path)).second; });
    return files;
}
