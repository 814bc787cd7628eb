#pragma once
// Runs the built dashtrack-gps in the UTC time zone, so that results do not depend on the
// machine's zone, and captures what it prints.

#include "RunCommand.h"
#include "TempDir.h"

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

struct ProgramResult {
    int exitCode = -1;  // -1 when the program did not exit normally
    std::string out;
    std::string err;
};

inline ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments) {
    const TempDir scratch;
    std::string command = "TZ=UTC " + quoted(program);
    for (const std::string& argument : arguments) command += " " + quoted(argument);
    const CommandResult run = runCommand(command + " 2>" + quoted(scratch / "err"));
    std::ifstream err(scratch / "err", std::ios::binary);
    return {run.status, run.output, std::string(std::istreambuf_iterator<char>(err), {})};
}

inline ProgramResult runTool(const std::vector<std::string>& arguments) {
    return runProgram(DASHTRACK_GPS_PATH, arguments);
}
