#include "GPSRecord.h"

#include <bit>
#include <cstring>

namespace {

uint32_t readU32LE(const uint8_t* p) {
    return uint32_t(p[0]) | uint32_t(p[1]) << 8 | uint32_t(p[2]) << 16 | uint32_t(p[3]) << 24;
}

void writeU32LE(uint8_t* p, uint32_t v) {
    p[0] = uint8_t(v);
    p[1] = uint8_t(v >> 8);
    p[2] = uint8_t(v >> 16);
    p[3] = uint8_t(v >> 24);
}

// Field offsets within the 76-byte record.
constexpr std::size_t kIQVer = 0, kIQBuildDate = 16, kHour = 32, kMinute = 36, kSecond = 40, kYear = 44, kMonth = 48,
                      kDay = 52, kStatus = 56, kNSInd = 57, kEWInd = 58, kReserved = 59, kLatitude = 60,
                      kLongitude = 64, kSpeed = 68, kAngle = 72;

}  // namespace

GPSDATA decodeGPSRecord(std::span<const uint8_t, kGPSRecordSize> bytes) {
    const uint8_t* p = bytes.data();
    GPSDATA r;
    std::memcpy(r.IQVer.data(), p + kIQVer, r.IQVer.size());
    std::memcpy(r.IQBuildDate.data(), p + kIQBuildDate, r.IQBuildDate.size());
    RMCINFO& f = r.rmcinfo;
    f.Hour = readU32LE(p + kHour);
    f.Minute = readU32LE(p + kMinute);
    f.Second = readU32LE(p + kSecond);
    f.Year = readU32LE(p + kYear);
    f.Month = readU32LE(p + kMonth);
    f.Day = readU32LE(p + kDay);
    f.Status = char(p[kStatus]);
    f.NSInd = char(p[kNSInd]);
    f.EWInd = char(p[kEWInd]);
    f.reserved = char(p[kReserved]);
    f.Latitude = std::bit_cast<float>(readU32LE(p + kLatitude));
    f.Longitude = std::bit_cast<float>(readU32LE(p + kLongitude));
    f.Speed = std::bit_cast<float>(readU32LE(p + kSpeed));
    f.Angle = std::bit_cast<float>(readU32LE(p + kAngle));
    return r;
}

std::array<uint8_t, kGPSRecordSize> encodeGPSRecord(const GPSDATA& r) {
    std::array<uint8_t, kGPSRecordSize> bytes{};
    uint8_t* p = bytes.data();
    std::memcpy(p + kIQVer, r.IQVer.data(), r.IQVer.size());
    std::memcpy(p + kIQBuildDate, r.IQBuildDate.data(), r.IQBuildDate.size());
    const RMCINFO& f = r.rmcinfo;
    writeU32LE(p + kHour, f.Hour);
    writeU32LE(p + kMinute, f.Minute);
    writeU32LE(p + kSecond, f.Second);
    writeU32LE(p + kYear, f.Year);
    writeU32LE(p + kMonth, f.Month);
    writeU32LE(p + kDay, f.Day);
    p[kStatus] = uint8_t(f.Status);
    p[kNSInd] = uint8_t(f.NSInd);
    p[kEWInd] = uint8_t(f.EWInd);
    p[kReserved] = uint8_t(f.reserved);
    writeU32LE(p + kLatitude, std::bit_cast<uint32_t>(f.Latitude));
    writeU32LE(p + kLongitude, std::bit_cast<uint32_t>(f.Longitude));
    writeU32LE(p + kSpeed, std::bit_cast<uint32_t>(f.Speed));
    writeU32LE(p + kAngle, std::bit_cast<uint32_t>(f.Angle));
    return bytes;
}
