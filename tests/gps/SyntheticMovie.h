#pragma once
// Builds movie files box by box in memory, with GPS blocks where a test wants them.

#include "GPSRecord.h"

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

using Bytes = std::vector<uint8_t>;

inline void appendU32BE(Bytes& out, uint32_t v) {
    for (int shift : {24, 16, 8, 0}) out.push_back(uint8_t(v >> shift));
}

inline void appendU16BE(Bytes& out, uint16_t v) {
    out.push_back(uint8_t(v >> 8));
    out.push_back(uint8_t(v));
}

inline Bytes concat(std::initializer_list<Bytes> parts) {
    Bytes out;
    for (const Bytes& p : parts) out.insert(out.end(), p.begin(), p.end());
    return out;
}

// A box: 32-bit size, four-character type, payload.
inline Bytes box(std::string_view type, const Bytes& payload = {}) {
    Bytes out;
    appendU32BE(out, uint32_t(payload.size() + 8));
    out.insert(out.end(), type.begin(), type.end());
    out.insert(out.end(), payload.begin(), payload.end());
    return out;
}

// ftyp of a given total size: 28 bytes marks the MP4 form.
inline Bytes ftyp(std::size_t totalSize) {
    Bytes payload(totalSize - 8, 0);
    std::copy_n("isom", 4, payload.begin());
    return box("ftyp", payload);
}

inline Bytes gpsBlock(const GPSDATA& record, uint8_t tail = 0) {
    Bytes out;
    appendU32BE(out, uint32_t(kGPSBlockSize));
    for (char c : std::string_view("free")) out.push_back(uint8_t(c));
    for (char c : std::string_view("GPS ")) out.push_back(uint8_t(c));
    appendU32BE(out, tail);
    const auto bytes = encodeGPSRecord(record);
    out.insert(out.end(), bytes.begin(), bytes.end());
    return out;
}

// The "gps " index payload listing block offsets.
inline Bytes gpsIndex(const std::vector<uint32_t>& offsets, uint32_t entryCount) {
    Bytes out;
    appendU32BE(out, 0);
    appendU32BE(out, entryCount);
    for (uint32_t offset : offsets) {
        appendU32BE(out, offset);
        appendU32BE(out, uint32_t(kGPSBlockSize));
    }
    return out;
}

// tkhd payload (version 0) ending in width and height as 16.16 fixed point.
inline Bytes tkhd(uint16_t width, uint16_t height) {
    Bytes payload(76, 0);
    appendU32BE(payload, uint32_t(width) << 16);
    appendU32BE(payload, uint32_t(height) << 16);
    return payload;
}

// stsd payload with one sound sample entry.
inline Bytes soundStsd(uint16_t channels, uint16_t bits, uint16_t rate) {
    Bytes payload;
    appendU32BE(payload, 0);   // version and flags
    appendU32BE(payload, 1);   // entry count
    appendU32BE(payload, 36);  // entry size
    for (char c : std::string_view("sowt")) payload.push_back(uint8_t(c));
    payload.resize(payload.size() + 16, 0);  // reserved, data reference index, version, vendor
    appendU16BE(payload, channels);
    appendU16BE(payload, bits);
    appendU32BE(payload, 0);
    appendU32BE(payload, uint32_t(rate) << 16);
    return payload;
}

inline Bytes stco(const std::vector<uint32_t>& offsets, uint32_t entryCount) {
    Bytes payload;
    appendU32BE(payload, 0);
    appendU32BE(payload, entryCount);
    for (uint32_t o : offsets) appendU32BE(payload, o);
    return payload;
}

inline Bytes track(uint16_t width, uint16_t height, const Bytes& stsdPayload, const Bytes& stcoPayload) {
    return box(
        "trak",
        concat({box("tkhd", tkhd(width, height)),
                box("mdia", box("minf", box("stbl", concat({box("stsd", stsdPayload), box("stco", stcoPayload)}))))}));
}

// A record in the fixed-point form: whole degrees as 1e-7 integers, speed in cm/s.
GPSDATA fixedPointRecord(int32_t latitude, int32_t longitude, uint32_t speed, uint32_t second = 0);
// A record in the MP4 form with raw float fields.
GPSDATA mp4Record(float latitude, char ns, float longitude, char ew, float speed);
