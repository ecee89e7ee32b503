#pragma once

#include <string>
#include <sys/types.h>
#include <vector>

/// A program and its arguments.
using Command = std::vector<std::string>;

/// A child process. Its standard output is discarded.
class Process {
public:
    /// Starts a program. If its name contains no slash, it is searched for in PATH.
    explicit Process(Command command);
    /// Waits for the end of the process. Returns its exit code, or -1 if it did not start or was killed.
    int Wait() const;

private:
    pid_t m_id = -1;
};
