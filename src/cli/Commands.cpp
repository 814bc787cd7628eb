#include "Commands.h"

#include "ExitStatus.h"
#include "ExtractCommand.h"
#include "HelpText.h"
#include "ProbeCommand.h"

#include <algorithm>
#include <ostream>

namespace {

int runHelp(const Invocation&, std::ostream& out, std::ostream&) {
    out << helpText();
    return kExitSuccess;
}

constexpr Command kCommands[] = {
    {"extract", "[--format FORMAT] [--unit UNIT] FILE...", "print the GPS track of each movie", true, runExtract},
    {"probe", "FILE...", "print one line per movie: playable, GPS layout, record forms, samples", true, runProbe},
    {"help", "", "print this help", false, runHelp},
};

}  // namespace

std::span<const Command> commands() { return kCommands; }

const Command* findCommand(std::string_view name) {
    const auto found = std::find_if(std::begin(kCommands), std::end(kCommands),
                                    [&](const Command& command) { return command.name == name; });
    return found == std::end(kCommands) ? nullptr : found;
}
