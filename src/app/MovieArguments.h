#pragma once
// The movie files named on the command line, as the bytes given: a Linux file name need not be
// valid UTF-8, and a trip through QString would replace what is not.

#include <filesystem>
#include <optional>
#include <vector>

// argv after QApplication has taken out its own options. Our options take no values, so every
// argument that is not an option names a movie; after "--" all of them do.
std::vector<std::filesystem::path> movieArguments(int argc, char** argv);

// The arguments as whole paths against this process's working folder, for a window that has
// another one.
std::vector<std::filesystem::path> absoluteArguments(const std::vector<std::filesystem::path>& arguments);

// The movies when argv holds nothing else (no option before "--"), before QApplication has seen
// it; absent when there is any option to parse first.
std::optional<std::vector<std::filesystem::path>> plainMovieArguments(int argc, char** argv);
