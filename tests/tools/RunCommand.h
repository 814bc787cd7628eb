#pragma once
// Runs a program through the shell and collects its exit status and what it printed.

#include <sys/wait.h>
#include <array>
#include <cstdio>
#include <string>

struct CommandResult {
    int status = -1;  // exit status, -1 when it did not exit normally
    std::string output;
};

// stderr goes where the command line sends it; add "2>&1" to collect it.
inline CommandResult runCommand(const std::string& command) {
    CommandResult result;
    FILE* pipe = popen(command.c_str(), "r");
    if (pipe == nullptr) return result;
    std::array<char, 4096> buffer;
    for (std::size_t n; (n = std::fread(buffer.data(), 1, buffer.size(), pipe)) > 0;)
        result.output.append(buffer.data(), n);
    const int status = pclose(pipe);
    if (WIFEXITED(status)) result.status = WEXITSTATUS(status);
    return result;
}

inline std::string quoted(const std::string& path) { return "'" + path + "'"; }
