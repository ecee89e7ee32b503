#include "files/WholeFile.h"

#include "files/ReadToEnd.h"

#include "text/Utf8Path.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <windows.h>

namespace {

/// The system's last error, in the words that other systems have for it.
[[noreturn]] void RefuseFile(const std::string& path, const std::string& action) {
    const int error = static_cast<int>(GetLastError());
    ::RefuseFile(path, action, std::system_category().default_error_condition(error).message());
}

/// Closes the file when it goes.
class FileHandle {
public:
    explicit FileHandle(HANDLE file) : m_file(file) {}
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle() { Close(); }

    bool IsOpen() const noexcept { return m_file != INVALID_HANDLE_VALUE; }
    operator HANDLE() const noexcept { return m_file; }
    void Close() noexcept {
        if (IsOpen())
            CloseHandle(m_file);
        m_file = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE m_file;
};

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE OpenAsItIs(const std::filesystem::path& path, DWORD access) {
    return CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// A handle of its own, so that it may be closed like any other.
HANDLE StandardInput() {
    HANDLE own = INVALID_HANDLE_VALUE;
    DuplicateHandle(GetCurrentProcess(), GetStdHandle(STD_INPUT_HANDLE), GetCurrentProcess(), &own, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    return own;
}

bool Has(DWORD attributes, DWORD attribute) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

/// The file that takes the place of another, removed again unless it did. One at a time in a process.
class FileBeside {
public:
    FileBeside(const std::string& asGiven, const std::filesystem::path& target)
        : m_asGiven(asGiven),
          m_target(target),
          m_path(target.parent_path() / (L".qvrnames-" + std::to_wstring(GetCurrentProcessId()))),
          m_file(
              CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {
        Check(m_file.IsOpen());
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        m_file.Close();
        if (!m_isInPlace)
            DeleteFileW(m_path.c_str());
    }

    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            DWORD written = 0;
            const auto part = static_cast<DWORD>(std::min(bytes.size(), std::size_t{1} << 20));
            Check(WriteFile(m_file, bytes.data(), part, &written, nullptr) != 0);
            bytes.remove_prefix(written);
        }
        Check(FlushFileBuffers(m_file) != 0);
    }
    /// What is there hands over its permissions and attributes.
    void TakeThePlace(bool isThere) {
        m_file.Close();
        Check(isThere ? ReplaceFileW(m_target.c_str(), m_path.c_str(), nullptr, 0, nullptr, nullptr) != 0
                      : MoveFileExW(m_path.c_str(), m_target.c_str(), MOVEFILE_WRITE_THROUGH) != 0);
        m_isInPlace = true;
    }

private:
    void Check(bool isDone) const {
        if (!isDone)
            RefuseFile(m_asGiven, "written");
    }

    std::string m_asGiven;
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    FileHandle m_file;
    bool m_isInPlace = false;
};

} // namespace

std::string ReadWholeFile(const std::string& path) {
    const std::filesystem::path name = Utf8::ToPath(path);
    const bool isStream = path == kStandardStream;
    if (!isStream && Has(GetFileAttributesW(name.c_str()), FILE_ATTRIBUTE_DIRECTORY))
        RefuseFile(path, "read", std::generic_category().message(EISDIR));
    const FileHandle file(isStream ? StandardInput() : OpenAsItIs(name, GENERIC_READ));
    if (!file.IsOpen())
        RefuseFile(path, "read");
    LARGE_INTEGER size{}; // stays 0 for what has none
    GetFileSizeEx(file, &size);
    return AllBytes(path, static_cast<std::size_t>(size.QuadPart), [&](char* place, std::size_t room) {
        DWORD got = 0;
        if (ReadFile(file, place, static_cast<DWORD>(room), &got, nullptr) == 0 &&
            GetLastError() != ERROR_BROKEN_PIPE) // the end of a pipe
            RefuseFile(path, "read");
        return static_cast<std::size_t>(got);
    });
}

void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& /*model*/) {
    std::error_code error;
    const std::filesystem::path name = Utf8::ToPath(path);
    // Where a link leads, so that the link stays; a path that leads nowhere yet is a new file.
    const std::filesystem::path real = std::filesystem::canonical(name, error);
    const std::filesystem::path target = error ? std::filesystem::absolute(name) : real;
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (Has(attributes, FILE_ATTRIBUTE_DIRECTORY))
        throw BadInput(path + ": cannot be written: it is no regular file");
    const bool isThere = attributes != INVALID_FILE_ATTRIBUTES;
    // A file that another program keeps for itself is told before anything is written.
    if (isThere && !FileHandle(OpenAsItIs(target, DELETE)).IsOpen())
        RefuseFile(path, "written");
    FileBeside file(path, target);
    file.Write(bytes);
    file.TakeThePlace(isThere);
}
