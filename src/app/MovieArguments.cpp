#include "MovieArguments.h"

#include <cstring>

std::vector<std::filesystem::path> movieArguments(int argc, char** argv) {
    std::vector<std::filesystem::path> movies;
    bool optionsEnded = false;
    for (int i = 1; i < argc && argv[i] != nullptr; ++i) {
        const char* argument = argv[i];
        if (!optionsEnded && std::strcmp(argument, "--") == 0) {
            optionsEnded = true;
        } else if (optionsEnded || argument[0] != '-' || argument[1] == '\0') {
            movies.emplace_back(argument);
        }
    }
    return movies;
}

std::vector<std::filesystem::path> absoluteArguments(const std::vector<std::filesystem::path>& arguments) {
    std::vector<std::filesystem::path> absolute;
    absolute.reserve(arguments.size());
    for (const auto& argument : arguments) {
        std::error_code error;
        const std::filesystem::path whole = std::filesystem::absolute(argument, error);
        absolute.push_back(error ? argument : whole.lexically_normal());
    }
    return absolute;
}

std::optional<std::vector<std::filesystem::path>> plainMovieArguments(int argc, char** argv) {
    for (int i = 1; i < argc && argv[i] != nullptr; ++i) {
        if (std::strcmp(argv[i], "--") == 0) break;
        if (argv[i][0] == '-' && argv[i][1] != '\0') return std::nullopt;
    }
    return movieArguments(argc, argv);
}
