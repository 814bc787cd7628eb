#pragma once
// The one-line messages the tool writes to stderr.

#include <iosfwd>
#include <string>
#include <string_view>

inline constexpr std::string_view kProgramName = "dashtrack-gps";

// A file name fit for one line of terminal output: control characters and backslashes become
// C-style escapes (\n, \t, \x1b, \\), so a strange name can neither break nor forge a line.
std::string displayName(std::string_view file);

// "dashtrack-gps: FILE: reason", the reason being strerror of the error number.
void reportFileError(std::ostream& err, std::string_view file, int errorNumber);
// "dashtrack-gps: message (try 'dashtrack-gps --help')".
void reportUsageError(std::ostream& err, std::string_view message);
// Flushes the output; a failed write turns the status into a file error with a message, since a
// full disk or a closed pipe must not pass for a complete export.
int finishOutput(std::ostream& out, std::ostream& err, int status);
