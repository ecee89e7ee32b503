#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

// Reads and replaces whole files. A document is read once, kept in memory and written once, so there is no stream
// interface. Each system has its own source. Paths are UTF-8 on every system.

/// The path that means standard input or standard output.
inline constexpr const char* kStandardStream = "-";

/// The largest file that is read: 256 MB.
inline constexpr std::size_t kMaxDocumentBytes = std::size_t{256} << 20;

/// Returns all bytes of a file, or of standard input if `path` is kStandardStream. Throws BadInput if the file does not
/// exist, cannot be read or is larger than kMaxDocumentBytes.
[[nodiscard]] std::string ReadWholeFile(const std::string& path);

/// Locks a file until the returned object is destroyed or the process ends. Other calls of LockFile for this file, in
/// any process, wait until then. The lock does not prevent reading or replacing the content. If `path` is a symbolic
/// link, its target is locked. Throws BadInput if the file does not exist or cannot be locked.
/// @param waits  called once, before the first wait; not called if the lock is free
[[nodiscard]] std::shared_ptr<void> LockFile(const std::string& path, const std::function<void()>& waits);

/// Replaces the content of a file, or creates the file. The bytes are written to a temporary file in the same folder,
/// flushed to the disk and moved over the file in one step, so that the file always has either the former or the new
/// content, even after a crash. Throws BadInput if any step fails, or if the file is write-protected; the file then has
/// its former content.
/// - On POSIX systems, SIGHUP, SIGINT and SIGTERM are delivered after the temporary file has been moved or removed. Any
///   other end of the process can leave it behind.
/// - An existing file keeps its permissions. A new file gets those of the file `model`, or the default permissions if
///   `model` is kStandardStream. On Windows, a new file gets those of its folder.
/// - If `path` is a symbolic link, its target is replaced.
/// @pre `path` is not kStandardStream
void ReplaceWholeFile(const std::string& path, const std::string& bytes, const std::string& model);
