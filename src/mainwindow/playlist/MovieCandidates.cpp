#include "MovieCandidates.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <system_error>

namespace {

std::vector<std::filesystem::path> folderMovies(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> movies;
    std::error_code error;
    // A relative name without a folder lives in the working directory; it stays relative.
    std::filesystem::directory_iterator entries(folder.empty() ? std::filesystem::path(".") : folder, error);
    for (const std::filesystem::directory_iterator end; !error && entries != end; entries.increment(error)) {
        const auto name = entries->path().filename();
        if (hasMovieExtension(name)) movies.push_back(folder / name);
    }
    if (error) return {};
    return movies;
}

}  // namespace

bool hasMovieExtension(const std::filesystem::path& name) {
    static constexpr std::array<std::string_view, 6> accepted{"mp4", "MP4", "Mp4", "mov", "Mov", "MOV"};
    const std::string text = name.filename().native();
    const auto dot = text.rfind('.');
    if (dot == std::string::npos) return false;
    const std::string_view extension = std::string_view(text).substr(dot + 1);
    return std::find(accepted.begin(), accepted.end(), extension) != accepted.end();
}

std::vector<std::filesystem::path> movieCandidates(const std::filesystem::path& firstChosen) {
    return folderMovies(firstChosen.parent_path());
}

std::vector<std::filesystem::path> commandLineCandidates(const std::vector<std::filesystem::path>& args) {
    std::vector<std::filesystem::path> candidates;
    for (const auto& arg : args) {
        std::error_code error;
        if (std::filesystem::is_directory(arg, error)) {
            auto movies = folderMovies(arg);
            candidates.insert(candidates.end(), std::make_move_iterator(movies.begin()),
                              std::make_move_iterator(movies.end()));
        } else {
            candidates.push_back(arg);
        }
    }
    return candidates;
}
