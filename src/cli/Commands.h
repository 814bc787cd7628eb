#pragma once
// The subcommands of dashtrack-gps by name.

#include "Invocation.h"

#include <iosfwd>
#include <span>
#include <string_view>

struct Command {
    std::string_view name;
    std::string_view synopsis;  // the arguments after the name, for --help
    std::string_view summary;   // one line for --help
    bool needsFiles;
    int (*run)(const Invocation& invocation, std::ostream& out, std::ostream& err);
};

std::span<const Command> commands();
// The command called name, or null.
const Command* findCommand(std::string_view name);
