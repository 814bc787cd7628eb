// File names on Linux are bytes: a name that is not UTF-8 must still be read, and everything
// printed about it must stay valid text.
#include "OutputText.h"
#include "ProgramRun.h"
#include "TempDir.h"
#include "Utf8.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

bool isValidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Char c = nextUtf8Char(text, at);
        if (!c.valid) return false;
        at += c.length;
    }
    return true;
}

std::string fixture(const std::string& name) { return std::string(DASHTRACK_FIXTURE_DIR) + "/" + name; }

TEST(FileNameBytes, AMovieWhoseNameIsNotUtf8IsReadAndNamedAsValidText) {
    const TempDir folder;
    const std::string movie = (folder.path() / "clip\xFF\xFE.mov").string();
    std::filesystem::copy_file(fixture("index_fixed.mov"), movie);
    const std::string other = fixture("index_scaled.mov");  // two files, so the name is printed

    const ProgramResult probe = runTool({"probe", movie});
    EXPECT_EQ(probe.exitCode, 0);
    EXPECT_EQ(lines(probe.out),
              std::vector<std::string>{folder.path().string() + "/clip\\xff\\xfe.mov\tmovie\tindex\tfixed-point\t10"});

    for (const char* format : {"json", "gpx", "kml", "geojson"}) {
        const ProgramResult run = runTool({"extract", "--format", format, movie, other});
        EXPECT_EQ(run.exitCode, 0) << format;
        EXPECT_TRUE(isValidUtf8(run.out)) << format;
        EXPECT_EQ(occurrences(run.out, "clip\xEF\xBF\xBD\xEF\xBF\xBD.mov"), 1u) << format;  // U+FFFD per bad byte
    }
    // CSV carries the name as the bytes it is, so a script can open the file again.
    const ProgramResult csv = runTool({"extract", "--format", "csv", movie, other});
    EXPECT_EQ(csv.exitCode, 0);
    EXPECT_EQ(occurrences(csv.out, movie + ","), 10u);

    const ProgramResult missing = runTool({"extract", folder.path().string() + "/gone\xFF.mov"});
    EXPECT_EQ(missing.exitCode, 1);
    EXPECT_TRUE(isValidUtf8(missing.err));
    EXPECT_NE(missing.err.find("gone\\xff.mov: No such file"), std::string::npos) << missing.err;
}

TEST(ProbeModule, WithoutItsModuleProbeFailsInOneLineAndExtractStillWorks) {
    const TempDir folder;
    const auto lonely = folder.path() / "dashtrack-gps";
    std::filesystem::copy_file(DASHTRACK_GPS_PATH, lonely);
    std::filesystem::permissions(lonely, std::filesystem::perms::owner_exec, std::filesystem::perm_options::add);

    const ProgramResult probe = runProgram(lonely, {"probe", fixture("index_fixed.mov")});
    EXPECT_EQ(probe.exitCode, 1);
    EXPECT_EQ(probe.out, "");
    EXPECT_TRUE(probe.err.starts_with("dashtrack-gps: probe: ")) << probe.err;
    EXPECT_EQ(occurrences(probe.err, "\n"), 1u) << probe.err;

    const ProgramResult extract = runProgram(lonely, {"extract", "--format", "csv", fixture("index_fixed.mov")});
    EXPECT_EQ(extract.exitCode, 0);
    EXPECT_EQ(lines(extract.out).size(), 11u);
}

}  // namespace
