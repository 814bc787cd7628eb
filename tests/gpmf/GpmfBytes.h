#pragma once
// Builds GPMF payloads byte by byte, for cases no camera file shows; boxes come from the movie
// builder of the GPS tests.

#include "SyntheticMovie.h"

#include <array>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

// Seconds since 1970 of a UTC date and time.
inline double utc(int y, unsigned mo, unsigned d, int h, int mi, double s) {
    using namespace std::chrono;
    return double(sys_days(year(y) / month(mo) / day(d)).time_since_epoch().count()) * 86400 + h * 3600 + mi * 60 + s;
}

inline void appendBE(Bytes& out, uint64_t v, int bytes) {
    for (int i = bytes - 1; i >= 0; --i) out.push_back(uint8_t(v >> (8 * i)));
}

// One GPMF item, its data padded to 4 bytes.
inline Bytes item(std::string_view key, char type, uint8_t structBytes, uint16_t repeat, Bytes data) {
    Bytes out(key.begin(), key.end());
    out.push_back(uint8_t(type));
    out.push_back(structBytes);
    appendBE(out, repeat, 2);
    data.resize((data.size() + 3) & ~std::size_t(3), 0);
    return concat({out, data});
}

inline Bytes nest(std::string_view key, std::initializer_list<Bytes> children) {
    const Bytes inside = concat(children);
    return item(key, 0, 1, uint16_t(inside.size()), inside);
}

inline Bytes int32s(std::initializer_list<int64_t> values) {
    Bytes out;
    for (int64_t v : values) appendBE(out, uint32_t(v), 4);
    return out;
}

inline Bytes scal(std::initializer_list<int64_t> divisors) {
    return item("SCAL", 'l', 4, uint16_t(divisors.size()), int32s(divisors));
}
inline Bytes gps5Scale() { return scal({10000000, 10000000, 1000, 1000, 100}); }
inline Bytes gpsu(std::string_view text) { return item("GPSU", 'U', 16, 1, Bytes(text.begin(), text.end())); }
inline Bytes gpsf(uint32_t fix) { return item("GPSF", 'L', 4, 1, int32s({fix})); }

// GPS5 samples as the camera stores them: degrees ×1e7, metres and m/s ×1000, 3D speed ×100.
inline Bytes gps5(std::initializer_list<std::array<double, 3>> latLonSpeed) {
    Bytes data;
    for (const auto& [lat, lon, speed] : latLonSpeed) {
        const Bytes one =
            int32s({std::llround(lat * 1e7), std::llround(lon * 1e7), 12000, std::llround(speed * 1000), 0});
        data.insert(data.end(), one.begin(), one.end());
    }
    return item("GPS5", 'l', 20, uint16_t(latLonSpeed.size()), data);
}

inline Bytes box(std::string_view type, std::initializer_list<Bytes> children) { return box(type, concat(children)); }
