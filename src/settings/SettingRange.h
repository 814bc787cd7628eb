#pragma once
// An inclusive range of whole numbers with the value to use when a stored one falls outside it.

#include <cstdint>
#include <optional>

struct SettingRange {
    int64_t lowest = 0;
    int64_t highest = 0;
    int64_t fallback = 0;

    constexpr bool contains(int64_t value) const { return value >= lowest && value <= highest; }
    // The stored value when it is there and in range, else the fallback.
    constexpr int64_t valueOr(std::optional<int64_t> stored) const {
        return stored && contains(*stored) ? *stored : fallback;
    }
};

// The HTTP tile cache's bound in megabytes: 300 is what the program always used.
inline constexpr SettingRange kTileCacheMegabytes{10, 2000, 300};
// Minutes added to the camera's clock: up to a day less one minute either way.
inline constexpr SettingRange kClockCorrectionMinutes{-1439, 1439, 0};
