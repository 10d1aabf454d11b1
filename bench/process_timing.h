#pragma once

// Times a program run as a fresh process, from its start to its exit, its output thrown away.

// Standard library
#include <chrono>
#include <string>
#include <vector>

// POSIX
#include <spawn.h>
#include <sys/wait.h>

namespace marivale::bench {

// Seconds from spawning `path` with `args` to its exit; negative when it could not run.
inline double timeProcess(const std::string& path, const std::vector<std::string>& args) {
    std::vector<char*> argv;
    std::string program = path;
    argv.push_back(program.data());
    std::vector<std::string> copies = args;
    for (std::string& arg : copies) {
        argv.push_back(arg.data());
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", 01 /* O_WRONLY */, 0);
    const auto start = std::chrono::steady_clock::now();
    pid_t pid = 0;
    const int failed = posix_spawn(&pid, path.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (failed != 0) {
        return -1.0;
    }
    int status = 0;
    waitpid(pid, &status, 0);
    const auto end = std::chrono::steady_clock::now();
    return WIFEXITED(status) && WEXITSTATUS(status) == 0
               ? std::chrono::duration<double>(end - start).count()
               : -1.0;
}

} // namespace marivale::bench
