#include "FreeGpsVariants.h"

#include "BigEndian.h"
#include "NmeaReader.h"
#include "UtcSeconds.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <string_view>

namespace {

constexpr std::size_t kClassicStatus = 0x48;
constexpr std::array<uint8_t, 8> kType1Signature = {0xAA, 0xAA, 0xF2, 0xE1, 0xF0, 0xEE, 0x54, 0x54};
constexpr std::size_t kType1Start = 18;
constexpr std::size_t kType1MaxText = 0x101;
constexpr std::size_t kType2Clock = 52;
constexpr std::size_t kType2ClockDigits = 14;
// NMEA text beyond this far into a block is not looked for: the sentence follows the clock closely.
constexpr std::size_t kType2Bytes = 1024;
constexpr std::size_t kType20Record = 0x30;
constexpr double kKnotsToMetresPerSecond = 1852.0 / 3600.0;

uint32_t readU32LE(const uint8_t* p) {
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

double readFloatLE(const uint8_t* p) { return double(std::bit_cast<float>(readU32LE(p))); }

bool isDigit(uint8_t c) { return c >= '0' && c <= '9'; }
bool isLetter(uint8_t c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool isNorthSouth(uint8_t c) { return c == 'N' || c == 'S'; }
bool isEastWest(uint8_t c) { return c == 'E' || c == 'W'; }

// The value of count ASCII digits from at; absent unless all are digits and in range.
std::optional<uint32_t> digitsAt(std::span<const uint8_t> text, std::size_t at, std::size_t count) {
    if (at + count > text.size()) return std::nullopt;
    uint32_t value = 0;
    for (std::size_t i = at; i < at + count; ++i) {
        if (!isDigit(text[i])) return std::nullopt;
        value = value * 10 + uint32_t(text[i] - '0');
    }
    return value;
}

// DDDMM.MMMM as cameras store it, to degrees.
double degreesFromDegreesMinutes(double value) {
    const double degrees = std::trunc(value / 100.0);
    return degrees + (value - degrees * 100.0) / 60.0;
}

// A year below 2000 counts from 2000 in these layouts.
std::optional<double> clockOf(uint32_t year, uint32_t month, uint32_t day, uint32_t hour, uint32_t minute,
                              double second) {
    if (year < 2000) year += 2000;
    if (year > 2199 || month > 12 || day > 31 || hour > 23 || minute > 59) return std::nullopt;
    return utcSeconds(int(year), month, day, int(hour), int(minute), second);
}

GPSFix noFix(std::optional<double> clock = std::nullopt) {
    GPSFix fix;
    fix.quality = GPSFix::Quality::NoFix;
    fix.clockSeconds = clock;
    return fix;
}

// Type 1 ---------------------------------------------------------------------------------------

bool isType1(std::span<const uint8_t> head) {
    return std::equal(kType1Signature.begin(), kType1Signature.end(), head.begin() + kType1Start);
}

GPSFix decodeType1(std::span<const uint8_t> block) {
    const std::size_t length = std::min(block.size() - kType1Start, kType1MaxText);
    std::array<uint8_t, kType1MaxText> plain{};
    for (std::size_t i = 0; i < length; ++i) plain[i] = block[kType1Start + i] ^ 0xAA;
    const std::span<const uint8_t> text(plain.data(), length);

    const auto year = digitsAt(text, 8, 4), month = digitsAt(text, 12, 2), day = digitsAt(text, 14, 2);
    const auto hour = digitsAt(text, 16, 2), minute = digitsAt(text, 18, 2), second = digitsAt(text, 20, 2);
    std::optional<double> clock;
    if (year && month && day && hour && minute && second)
        clock = clockOf(*year, *month, *day, *hour, *minute, double(*second));

    const auto latitude = digitsAt(text, 39, 8), longitude = digitsAt(text, 48, 9);
    if (!clock || !latitude || !longitude || !isNorthSouth(text[38]) || !isEastWest(text[47])) return noFix(clock);

    GPSFix fix;
    fix.clockSeconds = clock;
    fix.latitude = degreesFromDegreesMinutes(*latitude / 1e4) * (text[38] == 'S' ? -1 : 1);
    fix.longitude = degreesFromDegreesMinutes(*longitude / 1e4) * (text[47] == 'W' ? -1 : 1);
    // Two ways of writing the speed in km/h are known: 8 digits right after the longitude, or
    // a signed four-digit field and then three digits.
    std::optional<uint32_t> kmh = digitsAt(text, 57, 8);
    if (!kmh && text.size() > 57 && (text[57] == '+' || text[57] == '-') && digitsAt(text, 58, 4))
        kmh = digitsAt(text, 62, 3);
    if (kmh) fix.speedMetresPerSecond = *kmh / 3.6;
    return fix;
}

// Type 2 ---------------------------------------------------------------------------------------

bool isType2(std::span<const uint8_t> head) { return digitsAt(head, kType2Clock, 8) && digitsAt(head, kType2Clock + 8, 6); }

GPSFix decodeType2(std::span<const uint8_t> block) {
    // A block the file cuts short may end inside a sentence whose checksum is not trusted either:
    // only text up to the last line end or NUL is read then.
    const std::size_t stated = std::min<std::size_t>(readU32BE(block.data()), kType2Bytes);
    if (block.size() < stated) {
        const auto end = std::find_if(block.rbegin(), block.rend(), [](uint8_t c) { return c == '\n' || c == '\r' || c == 0; });
        block = block.first(std::size_t(block.rend() - end));
    }
    if (block.size() <= kType2Clock + kType2ClockDigits) return noFix();
    const auto from = block.begin() + kType2Clock + kType2ClockDigits;
    const auto dollar = std::find(from, block.end(), uint8_t('$'));
    const std::string_view text(reinterpret_cast<const char*>(block.data()) + (dollar - block.begin()),
                                std::size_t(block.end() - dollar));
    const std::vector<GPSFix> fixes = readNmeaFixes(text, NmeaReadOptions::forEmbeddedText());
    return fixes.empty() ? noFix() : fixes.front();
}

// Type 3 ---------------------------------------------------------------------------------------

// A 20-byte field of text: base64 (an encrypted coordinate) or a plain decimal number, NUL-padded.
bool looksLikeBase64(std::span<const uint8_t> field) {
    std::size_t i = 0;
    while (i < field.size() && (isDigit(field[i]) || isLetter(field[i]) || field[i] == '+' || field[i] == '/')) ++i;
    if (i < 8) return false;
    for (std::size_t pad = 0; pad < 2 && i < field.size() && field[i] == '='; ++pad) ++i;
    return std::all_of(field.begin() + i, field.end(), [](uint8_t c) { return c == 0; });
}

bool looksLikeDecimalText(std::span<const uint8_t> field) {
    std::size_t i = 0;
    while (i < field.size() && isDigit(field[i])) ++i;
    if (i < 1 || i > 5 || i == field.size() || field[i] != '.') return false;
    const std::size_t point = i++;
    while (i < field.size() && isDigit(field[i])) ++i;
    return i > point + 1 && std::all_of(field.begin() + i, field.end(), [](uint8_t c) { return c == 0; });
}

bool isType3(std::span<const uint8_t> head) {
    const bool marks = head[0x25] == 0 && head[0x26] == 0 && head[0x27] == 0 &&
                       (head[0x28] == 'A' || head[0x28] == 'V') && isNorthSouth(head[0x29]) &&
                       isEastWest(head[0x2A]) && head[0x2B] == 0;
    if (!marks) return false;
    // Another maker writes its coordinates as text (base64 of an encrypted string, or plain) at
    // 0x2C and 0x40 behind the same marks; that layout is not this one.
    const auto latitude = head.subspan(0x2C, 20), longitude = head.subspan(0x40, 20);
    const bool encrypted = looksLikeBase64(latitude) && looksLikeBase64(longitude);
    const bool plainText = looksLikeDecimalText(latitude) && looksLikeDecimalText(longitude);
    return !encrypted && !plainText;
}

GPSFix decodeType3(std::span<const uint8_t> block) {
    const uint8_t* p = block.data();
    const std::optional<double> clock =
        clockOf(readU32LE(p + 0x1C), readU32LE(p + 0x20), readU32LE(p + 0x24), readU32LE(p + 0x10),
                readU32LE(p + 0x14), double(readU32LE(p + 0x18)));
    const double latitude = readFloatLE(p + 0x2C), longitude = readFloatLE(p + 0x30);
    const double knots = readFloatLE(p + 0x34), track = readFloatLE(p + 0x38);
    if (p[0x28] != 'A' || !std::isfinite(latitude) || !std::isfinite(longitude)) return noFix(clock);

    GPSFix fix;
    fix.clockSeconds = clock;
    fix.latitude = degreesFromDegreesMinutes(std::fabs(latitude)) * (p[0x29] == 'S' ? -1 : 1);
    fix.longitude = degreesFromDegreesMinutes(std::fabs(longitude)) * (p[0x2A] == 'W' ? -1 : 1);
    if (std::isfinite(knots)) fix.speedMetresPerSecond = std::fabs(knots) * kKnotsToMetresPerSecond;
    if (std::isfinite(track)) fix.headingDegrees = track;
    return fix;
}

// Type 20 --------------------------------------------------------------------------------------

struct Type20Record {
    uint16_t speedCentimetres;
    int16_t trackHundredths;
    uint16_t year;
    uint8_t month, day, hour, minute;
    uint16_t secondTenths;
    int32_t latitude, longitude;  // 1e-7 degree
};

Type20Record readType20(const uint8_t* r) {
    return {readU16BE(r + 2),
            int16_t(readU16BE(r + 4)),
            readU16BE(r + 6),
            r[8],
            r[9],
            r[10],
            r[11],
            readU16BE(r + 12),
            int32_t(readU32BE(r + 15)),
            int32_t(readU32BE(r + 19))};
}

bool isValidType20(const Type20Record& r) {
    return r.year >= 2000 && r.year <= 2199 && r.month >= 1 && r.month <= 12 && r.day >= 1 && r.day <= 31 &&
           r.hour <= 23 && r.minute <= 59 && r.secondTenths <= 600;
}

bool isType20(std::span<const uint8_t> head) { return isValidType20(readType20(head.data() + kType20Record)); }

GPSFix decodeType20(std::span<const uint8_t> block) {
    const Type20Record r = readType20(block.data() + kType20Record);
    GPSFix fix;
    fix.clockSeconds = utcSeconds(r.year, r.month, r.day, r.hour, r.minute, r.secondTenths / 10.0);
    fix.latitude = r.latitude / 1e7;
    fix.longitude = r.longitude / 1e7;
    fix.speedMetresPerSecond = r.speedCentimetres / 100.0;
    const double track = r.trackHundredths / 100.0;
    fix.headingDegrees = track < 0 ? track + 360.0 : track;
    if (!fix.clockSeconds || std::fabs(fix.latitude) > 90 || std::fabs(fix.longitude) > 180) return noFix();
    return fix;
}

}  // namespace

std::optional<GPSRecordForm> detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize> head) {
    if (head[kClassicStatus] == 'A' || head[kClassicStatus] == 'V') return std::nullopt;
    if (isType1(head)) return GPSRecordForm::Type1;
    if (isType2(head)) return GPSRecordForm::Type2;
    if (isType3(head)) return GPSRecordForm::Type3;
    if (isType20(head)) return GPSRecordForm::Type20;
    return std::nullopt;
}

std::size_t variantBytesWanted(GPSRecordForm form) {
    return form == GPSRecordForm::Type2 ? kType2Bytes : kGPSBlockSize;
}

GPSFix decodeFreeGpsVariant(GPSRecordForm form, std::span<const uint8_t> block) {
    // Every layout is recognised from the head, so a shorter block cannot be one of them.
    if (block.size() < kGPSBlockSize) return noFix();
    switch (form) {
        case GPSRecordForm::Type1:
            return decodeType1(block);
        case GPSRecordForm::Type2:
            return decodeType2(block);
        case GPSRecordForm::Type3:
            return decodeType3(block);
        case GPSRecordForm::Type20:
            return decodeType20(block);
        default:
            return noFix();
    }
}
