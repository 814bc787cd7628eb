#include "MovieArguments.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace {

using Paths = std::vector<std::filesystem::path>;

std::optional<Paths> plain(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "dashtrack");
    std::vector<char*> argv;
    for (auto& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    return plainMovieArguments(static_cast<int>(arguments.size()), argv.data());
}

// The launcher hands over only what needs no parsing; anything with an option goes to the window.
TEST(LauncherArguments, OnlyMoviesAreHandedOverByTheLauncher) {
    const struct {
        std::vector<std::string> arguments;
        std::optional<Paths> movies;
    } cases[] = {
        {{}, Paths{}},
        {{"a.MOV", "clips/"}, Paths{"a.MOV", "clips/"}},
        {{"-"}, Paths{"-"}},
        {{"--", "--new-window", "-x.MOV"}, Paths{"--new-window", "-x.MOV"}},
        {{"--new-window", "a.MOV"}, std::nullopt},
        {{"a.MOV", "-platform", "offscreen"}, std::nullopt},
        {{"--help"}, std::nullopt},
    };
    for (const auto& c : cases) {
        std::string shown;
        for (const auto& a : c.arguments) shown += a + ' ';
        EXPECT_EQ(plain(c.arguments), c.movies) << shown;
    }
}

}  // namespace
