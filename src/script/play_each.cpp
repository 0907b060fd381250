#include "script/play_each.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

#include <sys/wait.h>
#include <unistd.h>

namespace quendal {

namespace {

int statusOf(pid_t child) {
    int state = 0;
    if (waitpid(child, &state, 0) != child) {
        return 1;
    }
    return WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
}

int playApart(const std::string& file, const PlayOne& play) {
    // What is still in the buffers would be written twice.
    std::cout.flush();
    std::fflush(nullptr);
    const pid_t child = fork();
    if (child < 0) {
        std::cerr << file << ": no process for it\n";
        return 1;
    }
    if (child > 0) {
        return statusOf(child);
    }
    const int status = play(file);
    std::cout.flush();
    std::fflush(nullptr);
    _exit(status);
}

} // namespace

int playEach(const std::vector<std::string>& files, const PlayOne& play) {
    if (files.size() == 1) {
        return play(files.front());
    }
    int status = 0;
    for (const std::string& file : files) {
        status = std::max(status, playApart(file, play));
    }
    return status;
}

} // namespace quendal
