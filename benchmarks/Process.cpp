#include "Process.h"

#include <sys/wait.h>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

Process::Process(Command command) {
    std::vector<char*> pointers;
    for (std::string& argument : command)
        pointers.push_back(argument.data());
    pointers.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    if (posix_spawnp(&m_id, pointers[0], &actions, nullptr, pointers.data(), environ) != 0)
        m_id = -1;
    posix_spawn_file_actions_destroy(&actions);
}

int Process::Wait() const {
    int status = 0;
    if (m_id == -1 || waitpid(m_id, &status, 0) != m_id || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}
