#include "files/WholeFile.h"

#include "files/ReadToEnd.h"

#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

[[noreturn]] void RefuseFile(const std::string& path, const std::string& action, int error) {
    ::RefuseFile(path, action, std::generic_category().message(error));
}

/// Closes the file when it goes.
class OpenFile {
public:
    explicit OpenFile(int file) : m_file(file) {}
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;
    ~OpenFile() {
        if (m_file >= 0)
            close(m_file);
    }
    operator int() const noexcept { return m_file; }

private:
    int m_file;
};

/// The file that takes the place of another, removed again unless it did.
class FileBeside {
public:
    explicit FileBeside(const std::string& target)
        : m_target(target),
          m_path((std::filesystem::path(target).parent_path() / ".qvrnames-XXXXXX").string()),
          m_file(mkstemp(m_path.data())) {
        if (m_file < 0)
            RefuseFile(m_target, "written", errno);
    }
    FileBeside(const FileBeside&) = delete;
    FileBeside& operator=(const FileBeside&) = delete;
    ~FileBeside() {
        if (!m_isInPlace && m_file >= 0)
            unlink(m_path.c_str());
    }

    void LookLike(const struct stat& model) {
        // Another owner can only be given by one who may; the permissions are what counts.
        [[maybe_unused]] const int ownerKept = fchown(m_file, model.st_uid, model.st_gid);
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
    void TakeThePlace() {
        Check(std::rename(m_path.c_str(), m_target.c_str()));
        m_isInPlace = true;
        const OpenFile folder(open(std::filesystem::path(m_path).parent_path().c_str(), O_RDONLY | O_CLOEXEC));
        fsync(folder); // the new name on the disk too; the file is whole either way
    }

private:
    void Check(ssize_t result) const {
        if (result < 0)
            RefuseFile(m_target, "written", errno);
    }

    std::string m_target;
    std::string m_path;
    OpenFile m_file;
    bool m_isInPlace = false;
};

/// The permissions that a new file gets.
mode_t UsualPermissions() {
    const mode_t mask = umask(0);
    umask(mask);
    return 0666U & ~mask;
}

} // namespace

std::string ReadWholeFile(const std::string& path) {
    const OpenFile file(path == kStandardStream ? dup(STDIN_FILENO) : open(path.c_str(), O_RDONLY | O_CLOEXEC));
    struct stat status {};
    if (file < 0 || fstat(file, &status) < 0)
        RefuseFile(path, "read", errno);
    if (S_ISDIR(status.st_mode))
        RefuseFile(path, "read", EISDIR);
    const std::size_t size = S_ISREG(status.st_mode) ? static_cast<std::size_t>(status.st_size) : 0;
    return AllBytes(path, size, [&](char* place, std::size_t room) {
        for (;;) {
            const ssize_t got = read(file, place, room);
            if (got >= 0)
                return static_cast<std::size_t>(got);
            if (errno != EINTR)
                RefuseFile(path, "read", errno);
        }
    });
}

void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model) {
    std::error_code error;
    // Where a link leads, so that the link stays; a path that leads nowhere yet is a new file.
    const std::filesystem::path real = std::filesystem::canonical(path, error);
    const std::string target = error ? std::filesystem::absolute(path).string() : real.string();
    struct stat status {};
    const bool isThere = stat(target.c_str(), &status) == 0;
    if (isThere && !S_ISREG(status.st_mode))
        throw BadInput(path + ": cannot be written: it is no regular file");
    if (!isThere && model == kStandardStream) {
        status.st_uid = geteuid();
        status.st_gid = getegid();
        status.st_mode = UsualPermissions();
    } else if (!isThere && stat(model.c_str(), &status) < 0) {
        RefuseFile(model, "read", errno);
    }
    FileBeside file(target);
    file.LookLike(status);
    file.Write(bytes);
    file.TakeThePlace();
}
