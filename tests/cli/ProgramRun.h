#pragma once
// Runs the built dashtrack-gps and captures what it prints.

#include <string>
#include <vector>

struct ProgramResult {
    int exitCode = -1;  // -1 when the program could not be started or did not exit normally
    std::string out;
    std::string err;
};

// Runs the tool with the arguments, in the UTC time zone so that results do not depend on the
// machine's zone.
ProgramResult runTool(const std::vector<std::string>& arguments);
// The same with another copy of the program.
ProgramResult runProgram(const std::string& program, const std::vector<std::string>& arguments);
