#pragma once
// Box headers, box tables and GPS block headers are big-endian in movie files.

#include <cstdint>

inline uint16_t readU16BE(const uint8_t* p) { return uint16_t(p[0] << 8 | p[1]); }

inline uint32_t readU32BE(const uint8_t* p) {
    return uint32_t(p[0]) << 24 | uint32_t(p[1]) << 16 | uint32_t(p[2]) << 8 | uint32_t(p[3]);
}

inline uint64_t readU64BE(const uint8_t* p) { return uint64_t(readU32BE(p)) << 32 | readU32BE(p + 4); }
