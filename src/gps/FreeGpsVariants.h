#pragma once
// The other layouts found in the chipset's "free" GPS blocks (u32 BE size, "free", "GPS ", u32 LE,
// then the payload), told apart by content only. A block whose status byte (0x48) says 'A' or 'V'
// holds the classic record and is never looked at here, so the classic reading stays as it was;
// so does a block that shows none of these layouts.
//
//  - Type1: bytes 18-25 AA AA F2 E1 F0 EE 54 54; XOR 0xAA from byte 18 gives ASCII: the clock
//    YYYYMMDDhhmmss at 8, N/S at 38, latitude DDMM.MMMM x 1e4 (8 digits), E/W at 47, longitude
//    (9 digits), then the speed in km/h as 8 digits, or as "+AAAA" and 3 digits.
//  - Type2: the camera's clock as 14 ASCII digits at 52, an NMEA RMC sentence after it.
//  - Type3: int32 LE hour, minute, second, year, month, day at 0x10-0x24 (year below 2000 counts
//    from 2000); status, N/S, E/W at 0x28-0x2A; float LE latitude, longitude (DDMM.MMMM), speed
//    (knots), track at 0x2C-0x38.
//  - Type20: 32-byte big-endian records from 0x30: speed m/s x 100 (u16, 0x32), track x 100 (s16),
//    year (u16), month, day, hour, minute (u8), seconds x 10 (u16), one byte, latitude and
//    longitude x 1e7 (s32, 0x3F, 0x43). The first record is the block's fix.

#include "GPSData.h"
#include "GPSFix.h"
#include "GPSRecord.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

// The layout a block's first kGPSBlockSize bytes show, in the order the layouts must be tried;
// absent for the classic record and for a block of none of these layouts.
std::optional<GPSRecordForm> detectFreeGpsVariant(std::span<const uint8_t, kGPSBlockSize> head);

// How much of a block the layout's reader looks at: more than the head only for NMEA text.
std::size_t variantBytesWanted(GPSRecordForm form);

// The block's fix (without a movie time) from as much of the block as there is. A block that says
// it has no fix ('V'), or lacks what the layout needs, gives a fix of quality NoFix.
GPSFix decodeFreeGpsVariant(GPSRecordForm form, std::span<const uint8_t> block);
