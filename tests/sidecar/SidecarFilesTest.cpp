#include "SidecarFiles.h"

#include "TempDir.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace {

void write(const std::filesystem::path& path, const std::string& text) { std::ofstream(path, std::ios::binary) << text; }

const std::string kRmcLine = "$GPRMC,123519,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*6A\r\n";

TEST(SidecarFilesTest, FindsTheSidecarsOfTheMovieOnly) {
    TempDir dir;
    write(dir / "clip.MP4", "movie");
    write(dir / "clip.NMEA", kRmcLine);
    write(dir / "clip.log", kRmcLine);
    write(dir / "clip.gpx", "<gpx/>");
    write(dir / "clip.txt", "notes about the drive, no track");  // a .txt without RMC is not a track
    write(dir / "other.nmea", kRmcLine);
    write(dir / "clip.mp4.nmea", kRmcLine);
    std::filesystem::create_directory(dir / "clip.LOG");  // a folder is no sidecar

    const std::vector<SidecarFile> expected{{dir / "clip.NMEA", SidecarFormat::Nmea},
                                            {dir / "clip.log", SidecarFormat::Nmea},
                                            {dir / "clip.gpx", SidecarFormat::Gpx}};
    EXPECT_EQ(findSidecarFiles(dir / "clip.MP4"), expected);
}

TEST(SidecarFilesTest, TakesATextFileThatHoldsRmc) {
    TempDir dir;
    write(dir / "clip.txt", std::string(1000, '#') + "\nGNRMC,161313.00,A,4529.87489,N,00912.1,E,0,,150624\n");
    write(dir / "late.txt", std::string(kSidecarSniffBytes, '#') + kRmcLine);
    EXPECT_EQ(findSidecarFiles(dir / "clip.mov").size(), 1u);
    EXPECT_TRUE(findSidecarFiles(dir / "late.mov").empty());
}

TEST(SidecarFilesTest, AMovieWithoutSidecarsOrNameHasNone) {
    TempDir dir;
    EXPECT_TRUE(findSidecarFiles(dir / "clip.mov").empty());
    EXPECT_TRUE(findSidecarFiles("").empty());
    EXPECT_TRUE(findSidecarFiles(dir.path() / "").empty());
}

TEST(SidecarFilesTest, ReadsNoMoreThanTheCap) {
    TempDir dir;
    write(dir / "big.nmea", std::string(5000, 'x'));
    EXPECT_EQ(readSidecarText(dir / "big.nmea", 1234)->size(), 1234u);
    EXPECT_EQ(readSidecarText(dir / "big.nmea")->size(), 5000u);
    EXPECT_FALSE(readSidecarText(dir / "missing.nmea"));
    EXPECT_FALSE(readSidecarText(dir.path()));
}

TEST(SidecarFilesTest, ReadsFixesByFormat) {
    TempDir dir;
    write(dir / "a.nmea", kRmcLine + "$GPRMC,123520,A,4807.038,N,01131.000,E,022.4,084.4,230394,003.1,W*00\r\n");
    write(dir / "a.gpx", R"(<gpx><trk><trkseg><trkpt lat="1" lon="2"/><trkpt lat="3" lon="4"/></trkseg></trk></gpx>)");
    // A sidecar's checksums are checked: the second sentence's is wrong.
    EXPECT_EQ(readSidecarFixes({dir / "a.nmea", SidecarFormat::Nmea}).size(), 1u);
    EXPECT_EQ(readSidecarFixes({dir / "a.gpx", SidecarFormat::Gpx}).size(), 2u);
    EXPECT_TRUE(readSidecarFixes({dir / "gone.gpx", SidecarFormat::Gpx}).empty());
}

}  // namespace
