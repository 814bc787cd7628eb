#pragma once
// The 76-byte GPS record that dash cameras write into their movies, and its little-endian byte form.

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

// The fix part of the record. Field meanings hold after GPSData::SetData has normalised it.
struct RMCINFO {
    uint32_t Hour = 0;
    uint32_t Minute = 0;
    uint32_t Second = 0;
    uint32_t Year = 0;  // year of the century once normalised (2016 -> 16)
    uint32_t Month = 0;
    uint32_t Day = 0;
    char Status = 0;
    char NSInd = 0;  // 'N' north, anything else south
    char EWInd = 0;  // 'E' east, anything else west
    char reserved = 0;
    float Latitude = 0;  // raw before normalising: float, or int32 in 1e-7 degree (fixed-point form)
    float Longitude = 0;
    float Speed = 0;  // raw before normalising: float, or uint32 in cm/s (fixed-point form)
    float Angle = 0;
};

struct GPSDATA {
    std::array<char, 16> IQVer{};
    std::array<char, 16> IQBuildDate{};
    RMCINFO rmcinfo{};
};

inline constexpr std::size_t kGPSRecordSize = 76;
inline constexpr std::size_t kGPSHeaderSize = 16;
inline constexpr std::size_t kGPSBlockSize = kGPSHeaderSize + kGPSRecordSize;

// Decodes/encodes the record as it stands in the file (little-endian), independent of host byte order.
GPSDATA decodeGPSRecord(std::span<const uint8_t, kGPSRecordSize> bytes);
std::array<uint8_t, kGPSRecordSize> encodeGPSRecord(const GPSDATA& record);
