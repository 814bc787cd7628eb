#pragma once
// Where the application's shipped resources (settings file, fonts, translations) live.

#include <filesystem>
#include <optional>

// The resource folder of the running program (resourceDirectoryOf its own file); when none is
// found, the folder of a standard installation, so that lookups fail rather than read elsewhere.
std::filesystem::path resourceDirectory();

// For the program file `executable`: the installed data folder relative to the program's folder
// (`../share/dashtrack` in the usual layout) when that exists; else, for a program inside a CMake
// build tree, the `resources` folder beside the nearest CMakeCache.txt above it; else nothing.
std::optional<std::filesystem::path> resourceDirectoryOf(const std::filesystem::path& executable);
