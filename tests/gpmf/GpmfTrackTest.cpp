// The metadata track of a real camera's movie against exiftool's reading, and built movies for
// the sample-table layouts and hostile tables.
#include "GpmfBytes.h"
#include "GpmfTrack.h"

#include "RunCommand.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>
#include <string>

namespace {

const std::filesystem::path kMovie = std::filesystem::path(DASHTRACK_CAMERA_DIR) / "max-heromode.mp4";

Bytes payloadAt(double latitude, std::size_t samples) {
    Bytes data;
    for (std::size_t i = 0; i < samples; ++i) {
        const Bytes one = int32s({std::llround(latitude * 1e7), 100000000, 0, 1000, 0});
        data.insert(data.end(), one.begin(), one.end());
    }
    return nest("DEVC", {nest("STRM", {gpsf(3), gps5Scale(), item("GPS5", 'l', 20, uint16_t(samples), data)})});
}

Bytes fullBox(std::string_view type, const Bytes& words) { return box(type, concat({Bytes(4, 0), words})); }

// ftyp, mdat with the payloads, then moov with one timed metadata track: time scale 1000, every
// sample 1001 long, two samples a chunk, chunk offsets in 64 bits. `table` replaces the sample
// table's size, chunk and offset boxes when given.
Bytes movie(const std::vector<Bytes>& payloads, std::string_view handler = "meta", std::string_view entry = "gpmd",
            const Bytes& table = {}) {
    const uint32_t n = uint32_t(payloads.size());
    Bytes mdat, sizes = int32s({0, n}), offsets = int32s({(n + 1) / 2});
    for (std::size_t i = 0; i < n; ++i) {
        if (i % 2 == 0) appendBE(offsets, 24 + mdat.size(), 8);
        appendBE(sizes, payloads[i].size(), 4);
        mdat.insert(mdat.end(), payloads[i].begin(), payloads[i].end());
    }
    const Bytes stsd = concat({int32s({1, 16}), Bytes(entry.begin(), entry.end()), Bytes(8, 0)});
    const Bytes hdlr = concat({Bytes{'m', 'h', 'l', 'r'}, Bytes(handler.begin(), handler.end()), Bytes(12, 0)});
    const Bytes stbl = box(
        "stbl", {fullBox("stsd", stsd), fullBox("stts", int32s({1, n, 1001})),
                 table.empty()
                     ? concat({fullBox("stsz", sizes), fullBox("stsc", int32s({1, 1, 2, 1})), fullBox("co64", offsets)})
                     : table});
    const Bytes mdia =
        box("mdia", {fullBox("mdhd", int32s({0, 0, 1000, 0, 0})), fullBox("hdlr", hdlr), box("minf", {stbl})});
    return concat(
        {box("ftyp", Bytes{'i', 's', 'o', 'm', 0, 0, 0, 0}), box("mdat", mdat), box("moov", {box("trak", {mdia})})});
}

TEST(GpmfTrack, LocatesSamplesThroughChunksOfTwoWith64BitOffsets) {
    const std::vector<Bytes> payloads = {payloadAt(10, 3), payloadAt(20, 4), payloadAt(30, 5)};
    MemoryFile file(movie(payloads));
    ASSERT_TRUE(GpmfTrack::hasGpmfTrack(file));
    const std::vector<GpmfSample> samples = GpmfTrack::samples(file);
    ASSERT_EQ(samples.size(), 3u);
    uint64_t offset = 24;
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(samples[i].offset, offset);
        EXPECT_EQ(samples[i].bytes, payloads[i].size());
        EXPECT_DOUBLE_EQ(samples[i].startSeconds, 1.001 * double(i));
        EXPECT_DOUBLE_EQ(samples[i].durationSeconds, 1.001);
        offset += payloads[i].size();
    }
    const std::vector<GPSFix> fixes = GpmfTrack::readFixes(file);
    ASSERT_EQ(fixes.size(), 12u);
    EXPECT_DOUBLE_EQ(fixes[3].latitude, 20.0);
    EXPECT_DOUBLE_EQ(*fixes[3].movieSeconds, 1.001);
    EXPECT_DOUBLE_EQ(fixes[11].latitude, 30.0);
}

TEST(GpmfTrack, IgnoresMetadataTracksOfOtherKinds) {
    for (const auto& [handler, entry] : {std::pair{"meta", "fdsc"}, std::pair{"vide", "gpmd"}}) {
        MemoryFile file(movie({payloadAt(10, 3)}, handler, entry));
        EXPECT_FALSE(GpmfTrack::hasGpmfTrack(file)) << handler << " " << entry;
        EXPECT_TRUE(GpmfTrack::readFixes(file).empty());
    }
}

TEST(GpmfTrack, HostileTablesStayWithinTheFile) {
    const Bytes payload = payloadAt(10, 18);
    // One size for 4 billion samples, and 5000 chunks that all name the one payload.
    Bytes stco = int32s({5000});
    for (int i = 0; i < 5000; ++i) appendBE(stco, 24, 4);
    const Bytes table = concat({fullBox("stsz", int32s({int64_t(payload.size()), 0xFFFFFFFF})),
                                fullBox("stsc", int32s({1, 1, 1})), fullBox("stco", stco)});
    MemoryFile file(movie({payload}, "meta", "gpmd", table));
    EXPECT_EQ(GpmfTrack::samples(file).size(), 5000u);
    // Reading stops once it has read as many bytes as the file holds.
    EXPECT_LE(GpmfTrack::readFixes(file).size(), file.size() / payload.size() * 18);
}

// exiftool 12.57 (-ee -n -a -G3 -s): eleven payloads, 1.001 s apart, the last 0.533 s long.
TEST(GpmfTrack, CameraMovieAsExiftoolReadsIt) {
    const std::vector<GpmfSample> samples = GpmfTrack::samples(*PosixFile::open(kMovie));
    ASSERT_EQ(samples.size(), 11u);
    EXPECT_NEAR(samples[10].startSeconds, 10.01, 1e-9);
    EXPECT_NEAR(samples[10].durationSeconds, 0.533, 1e-9);
    const std::vector<GPSFix> fixes = GpmfTrack::readFixes(kMovie);
    ASSERT_EQ(fixes.size(), 191u);
    EXPECT_DOUBLE_EQ(fixes[0].latitude, 33.12677);
    EXPECT_DOUBLE_EQ(fixes[0].longitude, -117.3273436);
    EXPECT_DOUBLE_EQ(*fixes[0].speedMetresPerSecond, 1.046);
    EXPECT_NEAR(*fixes[0].clockSeconds, utc(2019, 11, 18, 23, 45, 14.0), 1e-6);
    EXPECT_DOUBLE_EQ(fixes[190].latitude, 33.1266674);
    EXPECT_DOUBLE_EQ(fixes[190].longitude, -117.3272734);
    EXPECT_NEAR(*fixes[181].clockSeconds, utc(2019, 11, 18, 23, 45, 25.435), 1e-6);
}

// Where exiftool is installed, every value it prints, payload by payload.
TEST(GpmfTrack, CameraMovieAgreesWithExiftoolWhenPresent) {
    if (std::system("command -v exiftool >/dev/null 2>&1") != 0) GTEST_SKIP() << "exiftool not installed";
    const std::string command =
        "exiftool -ee -n -a -G3 -s -GPSLatitude -GPSLongitude -GPSSpeed -GPSDateTime '" + kMovie.string() + "'";
    const CommandResult run = runCommand(command);
    ASSERT_EQ(run.status, 0);
    std::map<int, std::map<std::string, std::vector<std::string>>> docs;  // payload, tag, values
    std::istringstream lines(run.output);
    for (std::string line; std::getline(lines, line);) {
        int doc = 0;
        char tag[64], value[128];
        if (std::sscanf(line.c_str(), "[Doc%d] %63s : %127[^\n]", &doc, tag, value) == 3) docs[doc][tag].push_back(value);
    }

    const std::vector<GPSFix> fixes = GpmfTrack::readFixes(kMovie);
    const std::vector<GpmfSample> samples = GpmfTrack::samples(*PosixFile::open(kMovie));
    ASSERT_EQ(docs.size(), samples.size());
    std::size_t next = 0;
    for (auto& [doc, tags] : docs) {
        const GpmfSample& sample = samples[std::size_t(doc - 1)];
        const std::size_t first = next;
        for (std::size_t i = 0; i < tags["GPSLatitude"].size(); ++i, ++next) {
            ASSERT_LT(next, fixes.size());
            const GPSFix& fix = fixes[next];
            EXPECT_GE(*fix.movieSeconds, sample.startSeconds);
            EXPECT_LT(*fix.movieSeconds, sample.startSeconds + sample.durationSeconds);
            EXPECT_NEAR(fix.latitude, std::stod(tags["GPSLatitude"][i]), 5e-8) << "payload " << doc;
            EXPECT_NEAR(fix.longitude, std::stod(tags["GPSLongitude"][i]), 5e-8) << "payload " << doc;
            EXPECT_NEAR(*fix.speedMetresPerSecond, std::stod(tags["GPSSpeed"][i]), 5e-4) << "payload " << doc;
        }
        int y, mo, d, h, mi;
        double s;
        ASSERT_EQ(std::sscanf(tags["GPSDateTime"].at(0).c_str(), "%d:%d:%d %d:%d:%lf", &y, &mo, &d, &h, &mi, &s), 6);
        EXPECT_NEAR(*fixes[first].clockSeconds, utc(y, unsigned(mo), unsigned(d), h, mi, s), 0.0005)
            << "payload " << doc;
    }
    EXPECT_EQ(next, fixes.size());
}

}  // namespace
