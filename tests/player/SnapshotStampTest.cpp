// Stamped snapshots: the band across the bottom at a small and a 4K frame, its text inside the
// picture and large enough to read, and the facts of the sample as text chunks that a PNG reader
// other than our encoder reads back.

#include "GPSData.h"
#include "GPSSamples.h"
#include "PngEncoder.h"
#include "ResourceDirectory.h"
#include "SnapshotFacts.h"
#include "SnapshotStamp.h"

#include <QFontDatabase>
#include <QImage>

#include <gtest/gtest.h>

#include <cmath>
#include <map>

namespace {

StampFaces faces() {
    static const int id =
        QFontDatabase::addApplicationFont(QString::fromStdString((resourceDirectory() / "DigifaceWide.ttf").string()));
    const QStringList families = QFontDatabase::applicationFontFamilies(id);
    return {families.isEmpty() ? QFont() : QFont(families.front()), QFont()};
}

// A frame with no flat areas: a stamp that draws nothing, or draws outside its band, shows.
RgbImage gradient(int width, int height) {
    RgbImage image{width, height, {}};
    image.pixels.resize(image.rowBytes() * std::size_t(height));
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            uint8_t* pixel = image.pixels.data() + image.rowBytes() * std::size_t(y) + std::size_t(x) * 3;
            pixel[0] = uint8_t(90 + x % 80);
            pixel[1] = uint8_t(90 + y % 80);
            pixel[2] = 120;
        }
    return image;
}

int brightness(const RgbImage& image, int x, int y) {
    const uint8_t* pixel = image.pixels.data() + image.rowBytes() * std::size_t(y) + std::size_t(x) * 3;
    return pixel[0] + pixel[1] + pixel[2];
}

// The longest texts a stamp shows: three-digit speed, both coordinates negative and wide.
const std::vector<StampItem> kWidestItems{
    {"188", "KM/H"}, {"LAT -33.86785", ""}, {"LON -151.20732", ""}, {"2024-12-31 23:59:59", ""}};

TEST(SnapshotStampTest, BandAcrossTheBottomWithItsTextInsideThePicture) {
    const struct {
        int width, height;
        double mostOfTheHeight;  // the band's largest share: a thumbnail needs a few lines
    } cases[] = {{640, 360, 0.2},
                 {3840, 2160, 0.2},
                 {160, 90, 0.6},
                 {361, 641, 0.3}};  // portrait, and rows not a multiple of four bytes
    for (const auto& c : cases) {
        SCOPED_TRACE(std::to_string(c.width) + "x" + std::to_string(c.height));
        const RgbImage frame = gradient(c.width, c.height);
        RgbImage stamped = frame;
        const std::optional<StampBand> band = SnapshotStamp::draw(stamped, kWidestItems, faces());
        ASSERT_TRUE(band);
        EXPECT_EQ(band->top + band->height, c.height);
        EXPECT_GE(band->height, 0.06 * c.height);
        EXPECT_LE(band->height, c.mostOfTheHeight * c.height);

        const std::size_t above = frame.rowBytes() * std::size_t(band->top);
        EXPECT_TRUE(
            std::equal(frame.pixels.begin(), frame.pixels.begin() + std::ptrdiff_t(above), stamped.pixels.begin()))
            << "the picture above the band is untouched";

        // The band only darkens; any pixel brighter than the frame's is the stamp's text.
        long darker = 0, lit = 0;
        int left = c.width, right = -1, top = c.height, bottom = -1;
        for (int y = band->top; y < c.height; ++y)
            for (int x = 0; x < c.width; ++x) {
                const int before = brightness(frame, x, y), after = brightness(stamped, x, y);
                darker += after < before;
                if (after > before + 60) {
                    ++lit;
                    left = std::min(left, x), right = std::max(right, x);
                    top = std::min(top, y), bottom = std::max(bottom, y);
                }
            }
        const double area = double(c.width) * band->height;
        EXPECT_GT(darker, 0.6 * area) << "a dark band";
        EXPECT_GT(lit, 0.02 * area) << "text in it";
        EXPECT_GT(left, 0);
        EXPECT_LT(right, c.width - 1) << "text clipped at the right edge";
        EXPECT_GT(top, band->top);
        EXPECT_LT(bottom, c.height - 1);
        // Legible: a line of digits at least 2% of the picture's height, and never under 8 pixels.
        EXPECT_GE(bottom - top, std::max(8.0, 0.02 * c.height));
    }
}

TEST(SnapshotStampTest, NothingToStampLeavesThePictureAlone) {
    RgbImage frame = gradient(64, 36);
    const RgbImage before = frame;
    EXPECT_FALSE(SnapshotStamp::draw(frame, {}, faces()));
    RgbImage broken{64, 36, std::vector<uint8_t>(10)};
    EXPECT_FALSE(SnapshotStamp::draw(broken, kWidestItems, faces()));
    EXPECT_EQ(frame.pixels, before.pixels);
}

GPSData sampleAt(double latitude, double longitude, std::optional<double> clock) {
    GPSFix fix;
    fix.latitude = latitude;
    fix.longitude = longitude;
    fix.speedMetresPerSecond = 17.5;  // 63.00 km/h, 34.02 knots
    fix.clockSeconds = clock;
    return GPSData::fromFix(fix);
}

constexpr double kMay1st = 1714566896;  // 2024-05-01 12:34:56 UTC

std::map<std::string, std::string> readBack(const std::vector<uint8_t>& png) {
    const QImage image = QImage::fromData(png.data(), int(png.size()), "PNG");
    std::map<std::string, std::string> texts;
    for (const QString& key : image.textKeys()) texts[key.toStdString()] = image.text(key).toStdString();
    return texts;
}

TEST(SnapshotFactsTest, TextChunksReadBackAndTheStampSaysTheSame) {
    using Texts = std::map<std::string, std::string>;
    const std::string source = "/clips/Straße/2024_0501_123456.MP4";
    const Texts always{{"Software", "Dashtrack"}, {"Source", source}, {"Position", "12.500"}};
    const struct {
        const char* name;
        std::optional<GPSData> sample;
        bool kilometres;
        Texts sampleTexts;
        std::vector<StampItem> stamp;
    } cases[] = {
        {"km/h",
         sampleAt(48.8583701, 2.2944813, kMay1st),
         true,
         {{"Speed", "63.00 KM/H"},
          {"Latitude", "48.85837"},
          {"Longitude", "2.2944813"},
          {"DateTime", "2024-05-01T12:34:56"}},
         {{"63", "KM/H"}, {"LAT 48.85837", ""}, {"LON 2.29448", ""}, {"2024-05-01 12:34:56", ""}}},
        // Fixed-point records (and hour-shifted ones) keep four-digit years.
        {"km/h, a four-digit year",
         fixedPointSample(488583701, 22944813, 1600, {2024, 5, 1, 12, 34, 56}),
         true,
         {{"Speed", "66.29 KM/H"},
          {"Latitude", "48.85837"},
          {"Longitude", "2.2944813"},
          {"DateTime", "2024-05-01T12:34:56"}},
         {{"66", "KM/H"}, {"LAT 48.85837", ""}, {"LON 2.29448", ""}, {"2024-05-01 12:34:56", ""}}},
        {"mph, south-west, no clock",
         sampleAt(-33.8678, -151.25, std::nullopt),
         false,
         {{"Speed", "34.02 MPH"}, {"Latitude", "-33.8678"}, {"Longitude", "-151.25"}},
         {{"34", "MPH"}, {"LAT -33.86780", ""}, {"LON -151.25000", ""}}},
        {"no sample", std::nullopt, true, {}, {}},
        {"an empty sample, as before the first fix", GPSData(), true, {}, {}},
        {"off the globe", sampleAt(NAN, 2, kMay1st), true, {}, {}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const SnapshotFacts facts(c.sample, c.kilometres, source, 12.5);
        const std::optional<std::vector<uint8_t>> png = PngEncoder::encode(gradient(8, 8), facts.textChunks());
        ASSERT_TRUE(png);
        Texts expected = always;
        expected.insert(c.sampleTexts.begin(), c.sampleTexts.end());
        EXPECT_EQ(readBack(*png), expected);
        EXPECT_EQ(facts.stampItems(), c.stamp);
        EXPECT_EQ(facts.hasSample(), !c.stamp.empty());
    }
}

TEST(PngEncoder, TextsPngCannotHoldAreLeftOutOrCut) {
    const std::vector<PngText> texts{
        {"", "no keyword"},
        {" Lead", "leading space"},
        {"Two  spaces", "double space"},
        {std::string(80, 'K'), "too long"},
        {"Tab\there", "control character"},
        {"Cut", std::string("before\0after", 12)},
        {std::string(79, 'L'), "longest keyword"},
    };
    const std::optional<std::vector<uint8_t>> png = PngEncoder::encode(gradient(4, 4), texts);
    ASSERT_TRUE(png);
    const std::map<std::string, std::string> expected{{"Cut", "before"}, {std::string(79, 'L'), "longest keyword"}};
    EXPECT_EQ(readBack(*png), expected);
}

}  // namespace
