#include "CommandLine.h"

#include "Commands.h"
#include "Diagnostics.h"
#include "TrackFormats.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::pair<std::string_view, SpeedUnit> kUnits[] = {
    {"mph", SpeedUnit::MPH},
    {"kmh", SpeedUnit::KMH},
};

std::optional<std::string> applyFormat(Invocation& invocation, std::string_view value) {
    if (!findTrackFormat(value)) {
        std::string known;
        for (const TrackFormat& format : trackFormats())
            known += (known.empty() ? "" : ", ") + std::string(format.name);
        return "unknown format '" + displayName(value) + "': use " + known;
    }
    invocation.format = value;
    return std::nullopt;
}

std::optional<std::string> applyUnit(Invocation& invocation, std::string_view value) {
    const auto unit =
        std::find_if(std::begin(kUnits), std::end(kUnits), [&](const auto& u) { return u.first == value; });
    if (unit == std::end(kUnits)) return "unknown unit '" + displayName(value) + "': use mph or kmh";
    invocation.unit = unit->second;
    return std::nullopt;
}

std::optional<std::string> applyHelp(Invocation& invocation, std::string_view) {
    invocation.help = true;
    return std::nullopt;
}

constexpr Option kOptions[] = {
    {"--format", "-f", "FORMAT", "the document to write, from the formats below (default json)", "extract",
     applyFormat},
    {"--unit", "-u", "UNIT", "mph (default) or kmh: the unit of the speed texts in csv, gpx, geojson and kml",
     "extract", applyUnit},
    {"--help", "-h", "", "print this help and exit", "", applyHelp},
};

const Option* findOption(std::string_view name) {
    const auto found = std::find_if(std::begin(kOptions), std::end(kOptions), [&](const Option& option) {
        return option.name == name || (!option.shortName.empty() && option.shortName == name);
    });
    return found == std::end(kOptions) ? nullptr : found;
}

ParsedArguments failure(std::string message) { return {std::nullopt, std::move(message)}; }

// Options that do not suit the command, such as --format with probe, are refused rather than
// ignored: the user expected them to do something.
std::optional<std::string> misplacedOption(const Invocation& invocation) {
    for (const std::string_view given : invocation.optionsGiven) {
        const Option* option = findOption(given);
        if (!option->command.empty() && option->command != invocation.command)
            return "option '" + std::string(option->name) + "' applies to '" + std::string(option->command) + "' only";
    }
    return std::nullopt;
}

}  // namespace

std::span<const Option> CommandLine::options() { return kOptions; }

ParsedArguments CommandLine::parse(std::span<const std::string> arguments) {
    Invocation invocation;
    bool optionsEnded = false;
    std::vector<std::string> words;

    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& argument = arguments[i];
        if (optionsEnded || argument.size() < 2 || argument[0] != '-') {
            words.push_back(argument);
            continue;
        }
        if (argument == "--") {
            optionsEnded = true;
            continue;
        }

        const std::size_t equals = argument.starts_with("--") ? argument.find('=') : std::string::npos;
        const std::string_view name = std::string_view(argument).substr(0, equals);
        const Option* option = findOption(name);
        if (!option) return failure("unknown option '" + displayName(argument) + "'");

        std::string_view value;
        if (option->valueName.empty()) {
            if (equals != std::string::npos)
                return failure("option '" + std::string(option->name) + "' takes no value");
        } else if (equals != std::string::npos) {
            value = std::string_view(argument).substr(equals + 1);
        } else if (i + 1 < arguments.size()) {
            value = arguments[++i];
        } else {
            return failure("option '" + std::string(option->name) + "' needs a value");
        }
        if (auto error = option->apply(invocation, value)) return failure(std::move(*error));
        invocation.optionsGiven.push_back(option->name);
    }

    if (invocation.help) return {std::move(invocation), {}};
    if (words.empty()) return failure("missing command");

    invocation.command = words.front();
    invocation.files.assign(words.begin() + 1, words.end());
    const Command* command = findCommand(invocation.command);
    if (!command) return failure("unknown command '" + displayName(invocation.command) + "'");
    if (auto error = misplacedOption(invocation)) return failure(std::move(*error));
    if (command->needsFiles && invocation.files.empty())
        return failure("missing FILE for '" + invocation.command + "'");
    return {std::move(invocation), {}};
}
