#pragma once
// The tool's exit statuses.

enum ExitStatus : int {
    kExitSuccess = 0,
    kExitFileError = 1,  // a file could not be read, or the output could not be written
    kExitUsage = 2,      // the command line itself is wrong
};
