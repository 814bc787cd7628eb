#pragma once
// H.264 comes out of the encoder as an Annex B byte stream (start codes); MP4 wants each NAL unit
// prefixed by its length, and the parameter sets in an avcC record.

#include <cstdint>
#include <span>
#include <vector>

// The NAL units of an Annex B stream, without their start codes.
std::vector<std::span<const uint8_t>> splitAnnexB(std::span<const uint8_t> stream);

// The same units, each behind a 4-byte big-endian length.
std::vector<uint8_t> toLengthPrefixed(std::span<const uint8_t> annexB);

// AVCDecoderConfigurationRecord from the stream's sequence and picture parameter sets. Empty when
// either is missing.
std::vector<uint8_t> makeAvcConfig(std::span<const uint8_t> annexBHeaders);
