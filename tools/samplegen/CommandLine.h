#pragma once
// The command line of dashtrack-samplegen.

#include "MovieOptions.h"

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

struct CommandLine {
    MovieOptions options;
    std::filesystem::path route;
    std::filesystem::path output;
    bool help = false;
};

// Arguments without the program name. Throws UsageError.
CommandLine parseCommandLine(std::span<const std::string_view> arguments);

std::string usageText();
