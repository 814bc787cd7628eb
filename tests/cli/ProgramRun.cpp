#include "ProgramRun.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>

extern char** environ;

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

std::string readAll(std::FILE* file) {
    std::rewind(file);
    std::string text;
    char buffer[4096];
    for (std::size_t n; (n = std::fread(buffer, 1, sizeof buffer, file)) > 0;) text.append(buffer, n);
    return text;
}

}  // namespace

ProgramResult runTool(const std::vector<std::string>& arguments) { return runProgram(DASHTRACK_GPS_PATH, arguments); }

ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    ::setenv("TZ", "UTC", 1);  // the child inherits it
    // Temporary files rather than pipes: no risk of a deadlock on large output.
    const std::unique_ptr<std::FILE, CloseFile> out(std::tmpfile()), err(std::tmpfile());
    ProgramResult result;
    if (!out || !err) return result;

    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, fileno(out.get()), STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fileno(err.get()), STDERR_FILENO);
    pid_t pid = 0;
    const int spawned = posix_spawn(&pid, argv[0], &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (spawned != 0) return result;

    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
    result.out = readAll(out.get());
    result.err = readAll(err.get());
    return result;
}
