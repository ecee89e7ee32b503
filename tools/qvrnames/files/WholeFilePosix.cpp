#include "files/WholeFile.h"

#include "files/ReadToEnd.h"

#include <cassert>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <tuple>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

[[noreturn]] void ThrowFileError(const std::string& path, const std::string& action, int error) {
    ::ThrowFileError(path, action, std::generic_category().message(error));
}

/// Owns a file descriptor.
class OpenFile {
public:
    explicit OpenFile(int file) : m_file(file) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (m_file >= 0)
            std::ignore = close(m_file);
    }
    operator int() const noexcept { return m_file; }

private:
    int m_file;
};

/// Delays the signals that end a program until the object is destroyed.
class DelayedSignals {
public:
    DelayedSignals() {
        sigset_t signals;
        std::ignore = sigemptyset(&signals);
        for (const int signal : {SIGHUP, SIGINT, SIGTERM})
            std::ignore = sigaddset(&signals, signal);
        std::ignore = pthread_sigmask(SIG_BLOCK, &signals, &m_former);
    }
    DelayedSignals(const DelayedSignals&) = delete;
    DelayedSignals& operator=(const DelayedSignals&) = delete;
    ~DelayedSignals() { std::ignore = pthread_sigmask(SIG_SETMASK, &m_former, nullptr); }

private:
    sigset_t m_former{};
};

/// A temporary file next to the file that it will replace. The destructor removes it unless ReplaceTarget succeeded. A
/// signal ends the program only after that.
class TemporaryFile {
public:
    explicit TemporaryFile(const std::string& target)
        : m_target(target),
          m_path((std::filesystem::path(target).parent_path() / ".qvrnames-XXXXXX").string()),
          m_file(mkstemp(m_path.data())) {
        if (m_file < 0)
            ThrowFolderError(errno);
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!m_isInPlace && m_file >= 0)
            std::ignore = unlink(m_path.c_str());
    }

    /// Copies the permissions, and the owner if the process may change it.
    void CopyOwnerAndMode(const struct stat& model) {
        std::ignore = fchown(m_file, model.st_uid, model.st_gid);
        Check(fchmod(m_file, model.st_mode & 07777U));
    }
    void Write(std::string_view bytes) {
        while (!bytes.empty()) {
            const ssize_t written = write(m_file, bytes.data(), bytes.size());
            if (written < 0 && errno == EINTR)
                continue;
            Check(written);
            bytes.remove_prefix(static_cast<std::size_t>(written));
        }
        Check(fsync(m_file));
    }
    void ReplaceTarget() {
        if (std::rename(m_path.c_str(), m_target.c_str()) < 0)
            ThrowFolderError(errno);
        m_isInPlace = true;
        const OpenFile folder(open(std::filesystem::path(m_path).parent_path().c_str(), O_RDONLY | O_CLOEXEC));
        // Brings the new folder entry to the disk. If this fails, a crash may restore the former file, which is whole.
        std::ignore = fsync(folder);
    }

private:
    void Check(ssize_t result) const {
        if (result < 0)
            ThrowFileError(m_target, "written", errno);
    }
    /// Reports an error of a request that changes the entries of the folder.
    [[noreturn]] void ThrowFolderError(int error) const {
        if (error != EACCES && error != EPERM)
            ThrowFileError(m_target, "written", error);
        ::ThrowFolderError(m_target, std::filesystem::path(m_target).parent_path().string(),
                           std::generic_category().message(error));
    }

    const DelayedSignals m_signals; // the first member, so that it is destroyed last
    std::string m_target;
    std::string m_path;
    OpenFile m_file;
    bool m_isInPlace = false;
};

bool IsWriteProtected(const std::string& path, const struct stat& status) {
    constexpr mode_t kAnyWriter = S_IWUSR | S_IWGRP | S_IWOTH;
    return (status.st_mode & kAnyWriter) == 0 || access(path.c_str(), W_OK) < 0; // root has access to every file
}

/// Returns the permissions that the process gives to new files.
mode_t DefaultPermissions() {
    const mode_t mask = umask(0); // the mask can only be read by setting it
    std::ignore = umask(mask);
    return 0666U & ~mask;
}

} // namespace

std::string ReadWholeFile(const std::string& path) {
    const OpenFile file(path == kStandardStream ? dup(STDIN_FILENO) : open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (file < 0 || fstat(file, &status) < 0)
        ThrowFileError(path, "read", errno);
    if (S_ISDIR(status.st_mode))
        ThrowFileError(path, "read", EISDIR);
    const std::size_t size = S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
    return ReadToEnd(path, size, [&](char* buffer, std::size_t capacity) {
        for (;;) {
            const ssize_t count = read(file, buffer, capacity);
            if (count >= 0)
                return static_cast<std::size_t>(count);
            if (errno != EINTR)
                ThrowFileError(path, "read", errno);
        }
    });
}

std::shared_ptr<void> LockFile(const std::string& path, const std::function<void()>& waits) {
    for (bool mustWait = false;;) {
        auto file = std::make_shared<OpenFile>(open(path.c_str(), O_RDONLY | O_CLOEXEC));
        if (*file < 0)
            ThrowFileError(path, "read", errno);
        while (flock(*file, mustWait ? LOCK_EX : LOCK_EX | LOCK_NB) < 0) {
            if (errno == EWOULDBLOCK) {
                mustWait = true;
                waits();
            } else if (errno != EINTR) {
                ThrowFileError(path, "locked", errno);
            }
        }
        // The former owner of the lock replaced the file: the lock is on a file that no longer has this path.
        struct stat locked {};
        struct stat current {};
        if (fstat(*file, &locked) < 0 || stat(path.c_str(), &current) < 0)
            ThrowFileError(path, "locked", errno);
        if (locked.st_dev == current.st_dev && locked.st_ino == current.st_ino)
            return file;
    }
}

void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model) {
    assert(path != kStandardStream);
    std::error_code error;
    // Replaces the target of a link, not the link. A path that does not exist yet is a new file.
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    const std::string target = error ? std::filesystem::absolute(path).string() : real.string();
    struct stat status {};
    const bool exists = stat(target.c_str(), &status) == 0;
    if (exists && !S_ISREG(status.st_mode))
        ::ThrowFileError(path, "written", "not a regular file");
    if (exists && IsWriteProtected(target, status))
        ThrowFileError(path, "written", EACCES);
    if (!exists && model == kStandardStream) {
        status.st_uid = geteuid();
        status.st_gid = getegid();
        status.st_mode = DefaultPermissions();
    } else if (!exists && stat(model.c_str(), &status) < 0) {
        ThrowFileError(model, "read", errno);
    }
    TemporaryFile file(target);
    file.CopyOwnerAndMode(status);
    file.Write(bytes);
    file.ReplaceTarget();
}
