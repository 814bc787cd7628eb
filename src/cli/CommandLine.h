#pragma once
// Reads the command line into an Invocation, by a table of options.

#include "Invocation.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

struct Option {
    std::string_view name;       // "--format"
    std::string_view shortName;  // "-f", or empty
    std::string_view valueName;  // "FORMAT", or empty for a flag
    std::string_view help;       // for --help
    std::string_view command;    // the one command it applies to, or empty for all
    // Stores the value; returns the reason when the value is not acceptable.
    std::optional<std::string> (*apply)(Invocation& invocation, std::string_view value);
};

// The arguments as understood, or the one-line reason they are not.
struct ParsedArguments {
    std::optional<Invocation> invocation;
    std::string error;
};

class CommandLine {
public:
    // Parses the arguments after the program name. Options may stand anywhere; the first other
    // word is the command and the rest are files; "--" makes every later word a file.
    static ParsedArguments parse(std::span<const std::string> arguments);

    static std::span<const Option> options();
};
