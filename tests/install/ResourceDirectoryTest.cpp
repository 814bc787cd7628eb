// Where a program finds its resources, in made-up installed and build trees.

#include "ResourceDirectory.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <string>
#include <vector>

namespace {

// The installed resource folder as the program sees it from its own folder.
const std::filesystem::path kInstalled = std::filesystem::path("bin") / DASHTRACK_BIN_TO_RESOURCEDIR;

struct Layout {
    const char* name;
    std::vector<std::filesystem::path> folders;
    std::vector<std::filesystem::path> files;
    std::filesystem::path executable;
    std::optional<std::filesystem::path> expected;
};

TEST(ResourceDirectory, FindsTheInstalledFolderOrTheBuildTreeAboveTheProgram) {
    const std::vector<Layout> layouts = {
        {"installed", {kInstalled}, {}, "bin/dashtrack", kInstalled},
        {"build tree", {"resources", "src/app"}, {"CMakeCache.txt"}, "src/app/dashtrack", "resources"},
        {"program at the build tree's top", {"resources"}, {"CMakeCache.txt"}, "dashtrack", "resources"},
        {"installed inside a build tree", {"resources", "stage" / kInstalled}, {"CMakeCache.txt"},
         "stage/bin/dashtrack", "stage" / kInstalled},
        {"nearest build tree", {"resources", "sub/resources", "sub/tests"}, {"CMakeCache.txt", "sub/CMakeCache.txt"},
         "sub/tests/prog", "sub/resources"},
        {"cache without resources", {"src/app"}, {"CMakeCache.txt"}, "src/app/dashtrack", std::nullopt},
        {"resources without cache", {"resources", "src/app"}, {}, "src/app/dashtrack", std::nullopt},
        {"cache that is a folder", {"resources", "CMakeCache.txt", "src"}, {}, "src/dashtrack", std::nullopt},
        {"installed name is a file", {"bin"}, {kInstalled}, "bin/dashtrack", std::nullopt},
        {"nothing", {"bin"}, {}, "bin/dashtrack", std::nullopt},
    };
    for (const Layout& layout : layouts) {
        SCOPED_TRACE(layout.name);
        TempDir root;
        ASSERT_FALSE(root.path().empty());
        for (const auto& folder : layout.folders) std::filesystem::create_directories(root.path() / folder);
        for (const auto& file : layout.files) {
            std::filesystem::create_directories((root.path() / file).parent_path());
            std::ofstream(root.path() / file) << "x";
        }
        const auto found = resourceDirectoryOf(root.path() / layout.executable);
        if (layout.expected)
            EXPECT_EQ(found, (root.path() / *layout.expected).lexically_normal());
        else
            EXPECT_EQ(found, std::nullopt);
    }
}

TEST(ResourceDirectory, AProgramWithoutAFolderHasNone) {
    EXPECT_EQ(resourceDirectoryOf("dashtrack"), std::nullopt);
    EXPECT_EQ(resourceDirectoryOf(""), std::nullopt);
}

}  // namespace
