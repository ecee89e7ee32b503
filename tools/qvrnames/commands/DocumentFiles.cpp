#include "commands/DocumentFiles.h"

#include "files/Utf8Text.h"
#include "files/WholeFile.h"

#include "text/Utf8Path.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace {

using std::filesystem::file_type;

/// Returns the path with "/" on every system. On POSIX systems, it may be no UTF-8.
std::string GenericPath(const std::filesystem::path& path) { return Utf8::FromPath(path.generic_u8string()); }

/// Returns true for a file, and for an entry whose type is unknown, such as a broken link. Reading that one fails with
/// the reason.
bool IsReadable(const std::filesystem::directory_entry& entry) {
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
        else if (path.extension() == ".json" && IsReadable(*entry))
            files.push_back({GenericPath(path), IsUtf8(GenericPath(path.filename()))
                                                    ? ""
                                                    : "the name of the file is not UTF-8; rename the file"});
    }
    if (error)
        files.push_back({GenericPath(folder), "cannot be read: " + error.message()});
}

} // namespace

std::vector<DocumentFile> FindDocuments(const std::vector<std::string>& arguments) {
    std::vector<DocumentFile> files;
    for (const std::string& argument : arguments) {
        const std::filesystem::path path = Utf8::ToPath(argument);
        std::error_code ignored;
        if (argument == kStandardStream || !std::filesystem::is_directory(path, ignored)) {
            files.push_back({argument, ""});
            continue;
        }
        std::vector<DocumentFile> found;
        AppendFilesIn(path, found);
        if (found.empty())
            found.push_back({argument, "the folder contains no *.json file"});
        std::sort(found.begin(), found.end(),
                  [](const DocumentFile& a, const DocumentFile& b) { return a.path < b.path; });
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}
