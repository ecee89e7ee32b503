#include "files/WholeFile.h"

#include "files/ReadToEnd.h"

#include "text/Utf8Path.h"

#include <algorithm>
#include <cassert>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <tuple>
#include <utility>

#include <windows.h>

namespace {

/// Throws BadInput with the system's last error, in the generic wording that POSIX systems use as well.
[[noreturn]] void ThrowFileError(const std::string& path, const std::string& action) {
    const int error = static_cast<int>(GetLastError());
    ::ThrowFileError(path, action, std::system_category().default_error_condition(error).message());
}

/// Owns a file handle.
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
            std::ignore = CloseHandle(m_file);
        m_file = INVALID_HANDLE_VALUE;
    }

private:
    HANDLE m_file;
};

constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

HANDLE OpenExisting(const std::filesystem::path& path, DWORD access) {
    return CreateFileW(path.c_str(), access, kShareAll, nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
}

/// Returns a duplicate of the handle of standard input, which the caller closes.
HANDLE StandardInput() {
    HANDLE duplicate = INVALID_HANDLE_VALUE;
    DuplicateHandle(GetCurrentProcess(), GetStdHandle(STD_INPUT_HANDLE), GetCurrentProcess(), &duplicate, 0, FALSE,
                    DUPLICATE_SAME_ACCESS);
    return duplicate;
}

bool IsSameFile(HANDLE a, HANDLE b) {
    BY_HANDLE_FILE_INFORMATION ofA{};
    BY_HANDLE_FILE_INFORMATION ofB{};
    return GetFileInformationByHandle(a, &ofA) != 0 && GetFileInformationByHandle(b, &ofB) != 0 &&
           ofA.dwVolumeSerialNumber == ofB.dwVolumeSerialNumber && ofA.nFileIndexHigh == ofB.nFileIndexHigh &&
           ofA.nFileIndexLow == ofB.nFileIndexLow;
}

/// Opens a file to lock it. ReplaceFileW takes the name away for a moment, so a missing file is looked up again for
/// 100 ms.
HANDLE OpenToLock(const std::filesystem::path& name) {
    HANDLE file = OpenExisting(name, GENERIC_READ);
    for (int i = 0; i < 10 && file == INVALID_HANDLE_VALUE && GetLastError() == ERROR_FILE_NOT_FOUND; ++i) {
        Sleep(10);
        file = OpenExisting(name, GENERIC_READ);
    }
    return file;
}

bool HasAttribute(DWORD attributes, DWORD attribute) {
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & attribute) != 0;
}

/// A temporary file next to the file that it will replace. The destructor removes it unless ReplaceTarget succeeded. A
/// process uses one at a time, because the name contains only the process id.
class TemporaryFile {
public:
    TemporaryFile(const std::string& displayPath, const std::filesystem::path& target)
        : m_displayPath(displayPath),
          m_target(target),
          m_path(target.parent_path() / (L".qvrnames-" + std::to_wstring(GetCurrentProcessId()))),
          m_file(
              CreateFileW(m_path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr)) {
        if (!m_file.IsOpen() && GetLastError() == ERROR_ACCESS_DENIED)
            ThrowFolderError(m_displayPath, Utf8::FromPath(target.parent_path()),
                             std::generic_category().message(EACCES));
        Check(m_file.IsOpen());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        m_file.Close();
        if (!m_isInPlace)
            std::ignore = DeleteFileW(m_path.c_str());
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
    /// Replaces the target, whose permissions and attributes are kept, or creates it if it does not exist.
    void ReplaceTarget(bool exists) {
        m_file.Close();
        Check(exists ? ReplaceFileW(m_target.c_str(), m_path.c_str(), nullptr, 0, nullptr, nullptr) != 0
                     : MoveFileExW(m_path.c_str(), m_target.c_str(), MOVEFILE_WRITE_THROUGH) != 0);
        m_isInPlace = true;
    }

private:
    void Check(bool isDone) const {
        if (!isDone)
            ThrowFileError(m_displayPath, "written");
    }

    std::string m_displayPath;
    std::filesystem::path m_target;
    std::filesystem::path m_path;
    FileHandle m_file;
    bool m_isInPlace = false;
};

} // namespace

std::string ReadWholeFile(const std::string& path) {
    const std::filesystem::path name = Utf8::ToPath(path);
    const bool isStream = path == kStandardStream;
    if (!isStream && HasAttribute(GetFileAttributesW(name.c_str()), FILE_ATTRIBUTE_DIRECTORY))
        ::ThrowFileError(path, "read", std::generic_category().message(EISDIR));
    const FileHandle file(isStream ? StandardInput() : OpenExisting(name, GENERIC_READ));
    if (!file.IsOpen())
        ThrowFileError(path, "read");
    LARGE_INTEGER size{}; // stays 0 for a pipe, which has no size
    std::ignore = GetFileSizeEx(file, &size);
    return ReadToEnd(path, static_cast<std::size_t>(size.QuadPart), [&](char* buffer, std::size_t capacity) {
        DWORD count = 0;
        if (ReadFile(file, buffer, static_cast<DWORD>(capacity), &count, nullptr) == 0 &&
            GetLastError() != ERROR_BROKEN_PIPE) // the other end was closed: the end of the input
            ThrowFileError(path, "read");
        return static_cast<std::size_t>(count);
    });
}

std::shared_ptr<void> LockFile(const std::string& path, const std::function<void()>& waits) {
    const std::filesystem::path name = Utf8::ToPath(path);
    for (bool hasWaited = false;;) {
        auto file = std::make_shared<FileHandle>(OpenToLock(name));
        if (!file->IsOpen())
            ThrowFileError(path, "read");
        const auto lock = [&](DWORD mode) {
            OVERLAPPED lastByte{}; // not a byte of a document, because other programs may not read a locked byte
            lastByte.Offset = lastByte.OffsetHigh = 0x7FFFFFFF;
            return LockFileEx(*file, LOCKFILE_EXCLUSIVE_LOCK | mode, 0, 1, 0, &lastByte) != 0;
        };
        if (!lock(LOCKFILE_FAIL_IMMEDIATELY)) {
            if (GetLastError() == ERROR_LOCK_VIOLATION && !std::exchange(hasWaited, true))
                waits();
            if (!lock(0))
                ThrowFileError(path, "locked");
        }
        // The former owner of the lock may have replaced the file; then the locked file no longer has this path.
        const FileHandle current(OpenExisting(name, GENERIC_READ));
        if (current.IsOpen() && IsSameFile(*file, current))
            return file;
    }
}

void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& /*model*/) {
    assert(path != kStandardStream);
    std::error_code error;
    const std::filesystem::path name = Utf8::ToPath(path);
    // Replaces the target of a link, not the link. A path that does not exist yet is a new file.
    const std::filesystem::path real = std::filesystem::canonical(name, error);
    const std::filesystem::path target = error ? std::filesystem::absolute(name) : real;
    const DWORD attributes = GetFileAttributesW(target.c_str());
    if (HasAttribute(attributes, FILE_ATTRIBUTE_DIRECTORY))
        ::ThrowFileError(path, "written", "not a regular file");
    const bool exists = attributes != INVALID_FILE_ATTRIBUTES;
    // Reports a file that another program has locked before anything is written.
    if (exists && !FileHandle(OpenExisting(target, DELETE)).IsOpen())
        ThrowFileError(path, "written");
    TemporaryFile file(path, target);
    file.Write(bytes);
    file.ReplaceTarget(exists);
}
