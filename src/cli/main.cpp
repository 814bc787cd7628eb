// dashtrack-gps: reads the GPS tracks of dash-camera movies without the player.

#include "CommandLine.h"
#include "Commands.h"
#include "Diagnostics.h"
#include "ExitStatus.h"

#include <iostream>
#include <string>
#include <vector>

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    const ParsedArguments parsed = CommandLine::parse(arguments);
    if (!parsed.invocation) {
        reportUsageError(std::cerr, parsed.error);
        return kExitUsage;
    }
    const Invocation& invocation = *parsed.invocation;
    const Command* command = findCommand(invocation.help ? "help" : invocation.command);
    return command->run(invocation, std::cout, std::cerr);
}
