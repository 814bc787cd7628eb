#include "HelpText.h"

#include "CommandLine.h"
#include "Commands.h"
#include "Diagnostics.h"
#include "TrackFormats.h"

namespace {

// Columns line up at this width; longer entries push their text to the next line.
constexpr std::size_t kTermWidth = 28;

std::string entry(std::string term, std::string_view text) {
    term.insert(0, "  ");
    if (term.size() + 2 > kTermWidth)
        term += "\n" + std::string(kTermWidth, ' ');
    else
        term.resize(kTermWidth, ' ');
    return term + std::string(text) + "\n";
}

}  // namespace

std::string helpText() {
    const std::string program(kProgramName);
    std::string text = "Usage:\n";
    for (const Command& command : commands()) {
        text += "  " + program + " " + std::string(command.name);
        if (!command.synopsis.empty()) text += " " + std::string(command.synopsis);
        text += "\n";
    }
    text += "\nReads the GPS track that a dash camera records inside its MP4 or MOV movies.\n\nCommands:\n";
    for (const Command& command : commands()) text += entry(std::string(command.name), command.summary);

    text += "\nOptions:\n";
    for (const Option& option : CommandLine::options()) {
        std::string term = option.shortName.empty() ? "" : std::string(option.shortName) + ", ";
        term += option.name;
        if (!option.valueName.empty()) term += " " + std::string(option.valueName);
        text += entry(term, option.help);
    }

    text += "\nFormats of extract:\n";
    for (const TrackFormat& format : trackFormats()) text += entry(std::string(format.name), format.description);

    text += R"(
extract writes one document for all FILEs, in the order given. JSON holds, per
sample, latitude, longitude and speed (the stored value, shown as MPH) as numbers,
the read-out texts in both units, and the record's date and time fields. Times in
GPX, KML, GeoJSON and CSV are the recording's date and time as the player shows
them, in ISO 8601 without a time zone.

probe prints one line per FILE, fields separated by tabs:
  FILE  movie|not-movie  index|sound-chunk|none  FORMS  SAMPLES
where FORMS lists the record forms found (mp4, scaled, fixed-point, joined by
commas), or "-" when there are no samples.

A FILE that cannot be read is reported on stderr and left out; the others are
still processed. Exit status: 0 success, 1 a FILE could not be read or the output
could not be written, 2 a usage error.
)";
    return text;
}
