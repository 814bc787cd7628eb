#include "FreeGpsVariantBlocks.h"

#include "CivilTime.h"
#include "NmeaSentences.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdio>
#include <string>

namespace {

constexpr double kKnotsToKmh = 1.852;
constexpr double kKnotsToMetresPerSecond = 1852.0 / 3600.0;

class BlockBytes {
public:
    BlockBytes() : bytes_(kVariantBlockSize, 0) {
        putU32BE(0, uint32_t(kVariantBlockSize));
        std::copy_n("freeGPS ", 8, bytes_.begin() + 4);
        putU32LE(12, uint32_t(kVariantBlockSize - 16));  // its last byte stays zero, as the header test wants
    }
    void putU8(std::size_t at, uint8_t v) { bytes_[at] = v; }
    void putU16BE(std::size_t at, uint16_t v) {
        bytes_[at] = uint8_t(v >> 8);
        bytes_[at + 1] = uint8_t(v);
    }
    void putU32BE(std::size_t at, uint32_t v) {
        for (int i = 0; i < 4; ++i) bytes_[at + std::size_t(i)] = uint8_t(v >> (24 - 8 * i));
    }
    void putU32LE(std::size_t at, uint32_t v) {
        for (int i = 0; i < 4; ++i) bytes_[at + std::size_t(i)] = uint8_t(v >> (8 * i));
    }
    void putFloatLE(std::size_t at, float v) { putU32LE(at, std::bit_cast<uint32_t>(v)); }
    void putText(std::size_t at, const std::string& text) { std::copy(text.begin(), text.end(), bytes_.begin() + long(at)); }
    std::vector<uint8_t>& bytes() { return bytes_; }

private:
    std::vector<uint8_t> bytes_;
};

// |degrees| as DDDMM.MMMM in units of 1e-4 minute, rounded once so the minutes never reach 60.
uint64_t degreesMinutesTenThousandths(double degrees) {
    const uint64_t tenThousandthMinutes = uint64_t(std::llround(std::fabs(degrees) * 60.0 * 1e4));
    return tenThousandthMinutes / 600000 * 1000000 + tenThousandthMinutes % 600000;
}

std::string printed(const char* format, auto... values) {
    char text[160];
    const int n = std::snprintf(text, sizeof text, format, values...);
    return std::string(text, std::size_t(std::clamp(n, 0, int(sizeof text) - 1)));
}

char northSouth(double latitude) { return latitude < 0 ? 'S' : 'N'; }
char eastWest(double longitude) { return longitude < 0 ? 'W' : 'E'; }

std::vector<uint8_t> type1Block(const RouteSample& s, const CivilTime& clock) {
    std::string text(kVariantBlockSize - 18, '\0');
    text.replace(0, 8, std::string("\0\0XKZD\xFE\xFE", 8));  // XOR 0xAA gives the signature
    text.replace(8, 14, clockDigits(clock));
    text[22] = '\x0c';
    text.replace(23, 6, "DTCAM ");  // the user's label, blank-padded
    text[38] = northSouth(s.latitude);
    text.replace(39, 8, printed("%08llu", (unsigned long long)degreesMinutesTenThousandths(s.latitude)));
    text[47] = eastWest(s.longitude);
    text.replace(48, 9, printed("%09llu", (unsigned long long)degreesMinutesTenThousandths(s.longitude)));
    text.replace(57, 8, printed("%08ld", std::lround(s.speed * kKnotsToKmh)));
    BlockBytes block;
    for (std::size_t i = 0; i < text.size(); ++i) block.putU8(18 + i, uint8_t(text[i]) ^ 0xAA);
    return std::move(block.bytes());
}

// The block's RMC: two decimals of speed and course, a blank before it and CR LF after.
std::string type2Sentence(const RouteSample& s, const CivilTime& c) {
    const auto lat = degreesMinutesTenThousandths(s.latitude), lon = degreesMinutesTenThousandths(s.longitude);
    const std::string body = printed("GPRMC,%02d%02d%02d.000,A,%04llu.%04llu,%c,%05llu.%04llu,%c,%.2f,%.2f,%02d%02d%02d,,,A",
                                     c.hour, c.minute, c.second, (unsigned long long)(lat / 10000),
                                     (unsigned long long)(lat % 10000), northSouth(s.latitude),
                                     (unsigned long long)(lon / 10000), (unsigned long long)(lon % 10000),
                                     eastWest(s.longitude), s.speed, s.heading, c.day, c.month, c.year % 100);
    return " " + nmeaSentence(body) + "\r\n";
}

std::vector<uint8_t> type2Block(const RouteSample& s, const CivilTime& clock) {
    BlockBytes block;
    block.putText(52, clockDigits(clock));
    block.putText(0x50, type2Sentence(s, clock));  // the accelerometer words at 68 stay zero
    return std::move(block.bytes());
}

std::vector<uint8_t> type3Block(const RouteSample& s, const CivilTime& c) {
    BlockBytes block;
    const uint32_t fields[] = {uint32_t(c.hour), uint32_t(c.minute), uint32_t(c.second),
                               uint32_t(c.year - 2000), uint32_t(c.month), uint32_t(c.day)};
    for (std::size_t i = 0; i < 6; ++i) block.putU32LE(0x10 + 4 * i, fields[i]);
    block.putU8(0x28, 'A');
    block.putU8(0x29, uint8_t(northSouth(s.latitude)));
    block.putU8(0x2A, uint8_t(eastWest(s.longitude)));
    block.putFloatLE(0x2C, float(degreesMinutesTenThousandths(s.latitude) / 1e4));
    block.putFloatLE(0x30, float(degreesMinutesTenThousandths(s.longitude) / 1e4));
    block.putFloatLE(0x34, float(s.speed));  // knots
    block.putFloatLE(0x38, float(s.heading));
    return std::move(block.bytes());
}

std::vector<uint8_t> type20Block(const RouteSample& s, const CivilTime& c) {
    BlockBytes block;
    constexpr std::size_t r = 0x30;  // one record; the zeros after it end the block's list
    block.putText(r, "$S");
    block.putU16BE(r + 2, uint16_t(std::lround(s.speed * kKnotsToMetresPerSecond * 100)));
    const double track = s.heading > 180 ? s.heading - 360 : s.heading;
    block.putU16BE(r + 4, uint16_t(int16_t(std::lround(track * 100))));
    block.putU16BE(r + 6, uint16_t(c.year));
    block.putU8(r + 8, uint8_t(c.month));
    block.putU8(r + 9, uint8_t(c.day));
    block.putU8(r + 10, uint8_t(c.hour));
    block.putU8(r + 11, uint8_t(c.minute));
    block.putU16BE(r + 12, uint16_t(c.second * 10));
    block.putU8(r + 14, 2);
    block.putU32BE(r + 15, uint32_t(int32_t(std::lround(s.latitude * 1e7))));
    block.putU32BE(r + 19, uint32_t(int32_t(std::lround(s.longitude * 1e7))));
    block.putU8(r + 23, 16);
    return std::move(block.bytes());
}

}  // namespace

std::vector<uint8_t> makeFreeGpsVariantBlock(const RouteSample& sample, GPSRecordForm form) {
    const CivilTime clock = fromClockSeconds(sample.time);
    switch (form) {
        case GPSRecordForm::Type1:
            return type1Block(sample, clock);
        case GPSRecordForm::Type2:
            return type2Block(sample, clock);
        case GPSRecordForm::Type3:
            return type3Block(sample, clock);
        case GPSRecordForm::Type20:
            return type20Block(sample, clock);
        default:
            return {};
    }
}
