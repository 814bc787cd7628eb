#include "RunCommand.h"
#include "TempDir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace {

const std::string kRoute = std::string(DASHTRACK_FIXTURE_DIR) + "/route10.csv";

CommandResult samplegen(const std::string& arguments) {
    return runCommand(std::string(SAMPLEGEN_PROGRAM) + " " + arguments + " 2>&1");
}

}  // namespace

TEST(SamplegenProgram, RefusesWhatItCannotDoWithOneLineAndAStatus) {
    const TempDir dir;
    const std::string out = quoted((dir / "out.mov").string());
    const std::string badRoute = (dir / "bad.csv").string();
    std::ofstream(badRoute)
        << "time,latitude,longitude,speed\n2026-11-15T08:15:00,48.5,2.25,20\n2026-11-15T08:15:01,91,2.25,20\n";

    const struct {
        std::string arguments;
        int status;
        std::string message;
    } cases[] = {
        {"--layout chunk --form mp4 " + kRoute + " " + out, 2, "--layout chunk cannot be combined with --form mp4"},
        {"--form gps " + kRoute + " " + out, 2, "--form: 'gps' is not one of"},
        {"--track gpmf " + kRoute + " " + out, 2, "--track and --sidecar need --layout none"},
        {"--layout none --sidecar kml " + kRoute + " " + out, 2, "--sidecar: 'kml' is not one of"},
        {"--size 321x180 " + kRoute + " " + out, 2, "width must be even"},
        {"--fps ten " + kRoute + " " + out, 2, "--fps: not a whole number"},
        {"--seconds 0 " + kRoute + " " + out, 2, "--seconds must be at least 1"},
        {"--colour red " + kRoute + " " + out, 2, "unknown option --colour"},
        {kRoute + " " + out + " --fps", 2, "--fps needs a value"},
        {kRoute, 2, "want a route file and an output file"},
        {quoted((dir / "missing.csv").string()) + " " + out, 1, "cannot open route file"},
        {quoted(badRoute) + " " + out, 1, "bad.csv:3: bad latitude '91'"},
        {"--seconds 11 " + kRoute + " " + out, 1, "does not fit"},
        {kRoute + " " + quoted((dir / "no" / "such" / "dir.mov").string()), 1, "cannot create output"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.arguments);
        const CommandResult run = samplegen(c.arguments);
        EXPECT_EQ(run.status, c.status);
        EXPECT_EQ(std::count(run.output.begin(), run.output.end(), '\n'), 1) << run.output;
        EXPECT_EQ(run.output.rfind("dashtrack-samplegen: ", 0), 0u) << run.output;
        EXPECT_NE(run.output.find(c.message), std::string::npos) << run.output;
    }
    // Nothing half-written stays behind.
    EXPECT_FALSE(std::filesystem::exists(dir / "out.mov"));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);  // bad.csv
}

TEST(SamplegenProgram, HelpDocumentsTheRouteFormat) {
    const CommandResult run = samplegen("--help");
    EXPECT_EQ(run.status, 0);
    for (const char* text : {"usage: dashtrack-samplegen", "time,latitude,longitude,speed", "--layout index|chunk|none",
                             "--form mp4|scaled|fixed"})
        EXPECT_NE(run.output.find(text), std::string::npos) << text;
}
