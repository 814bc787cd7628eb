#pragma once
// Which files an open command considers: the movie-named files of a folder, and the command
// line's arguments. Whether each really is a movie is the video track test's decision.

#include <filesystem>
#include <vector>

// True when the text after the name's last "." is exactly mp4, MP4, Mp4, mov, Mov or MOV.
bool hasMovieExtension(const std::filesystem::path& name);

// The files of the folder that holds firstChosen with a movie extension, in listing order (not
// recursive; dot-files included). A folder that cannot be listed, in full, gives none.
std::vector<std::filesystem::path> movieCandidates(const std::filesystem::path& firstChosen);

// Each argument that is a folder gives its movie-named files; any other argument is kept as it
// is, whatever its name, for the video track test to judge.
std::vector<std::filesystem::path> commandLineCandidates(const std::vector<std::filesystem::path>& args);
