#include "GpmfWriter.h"

#include "ByteWriter.h"
#include "CivilTime.h"

#include <cmath>
#include <cstdio>
#include <string_view>

namespace {

// One KLV item: key, type, size of one value, count of values, the values padded to 4 bytes.
void item(ByteWriter& out, std::string_view key, char type, uint8_t size, uint16_t repeat,
          std::span<const uint8_t> data) {
    out.fourcc(key);
    out.u8(uint8_t(type));
    out.u8(size);
    out.u16(repeat);
    out.bytes(data);
    out.zeros((4 - data.size() % 4) % 4);
}

// A nest (type 0) of the items body writes, counted in bytes.
template <class Body>
void nest(ByteWriter& out, std::string_view key, Body&& body) {
    ByteWriter inner;
    body(inner);
    item(out, key, '\0', 1, uint16_t(inner.size()), inner.data());
}

void text(ByteWriter& out, std::string_view key, std::string_view value) {
    item(out, key, 'c', 1, uint16_t(value.size()), {reinterpret_cast<const uint8_t*>(value.data()), value.size()});
}

void u32Item(ByteWriter& out, std::string_view key, uint32_t value) {
    ByteWriter data;
    data.u32(value);
    item(out, key, 'L', 4, 1, data.data());
}

std::string gpsuText(double utc) {
    const double whole = std::floor(utc);
    const CivilTime t = fromClockSeconds(int64_t(whole));
    char out[64];
    std::snprintf(out, sizeof out, "%02d%02d%02d%02d%02d%02d.%03d", t.year % 100, t.month, t.day, t.hour, t.minute,
                  t.second, int(std::lround((utc - whole) * 1000)) % 1000);
    return out;
}

uint32_t scaled(double value, double scale) { return uint32_t(int32_t(std::lround(value * scale))); }

}  // namespace

std::vector<uint8_t> makeGpmfPayload(const TimedRoute& route, int64_t second) {
    ByteWriter out;
    nest(out, "DEVC", [&](ByteWriter& device) {
        u32Item(device, "DVID", 1);
        text(device, "DVNM", "Dashtrack samplegen");
        nest(device, "STRM", [&](ByteWriter& stream) {
            text(stream, "STNM", "GPS (Lat., Long., Alt., 2D speed, 3D speed)");
            u32Item(stream, "GPSF", 3);
            const std::string utc = gpsuText(route.utcAt(double(second)));
            item(stream, "GPSU", 'U', 16, 1, {reinterpret_cast<const uint8_t*>(utc.data()), 16});
            ByteWriter scale;
            for (uint32_t divisor : {10000000u, 10000000u, 1000u, 1000u, 100u}) scale.u32(divisor);
            item(stream, "SCAL", 'l', 4, 5, scale.data());
            ByteWriter fixes;
            for (int i = 0; i < kGpmfFixesPerSecond; ++i) {
                const RouteSample at = route.at(double(second) + double(i) / kGpmfFixesPerSecond);
                const double speed = at.speed * kMetresPerSecondPerRouteSpeed;
                fixes.u32(scaled(at.latitude, 1e7));
                fixes.u32(scaled(at.longitude, 1e7));
                fixes.u32(0);  // altitude: the route has none
                fixes.u32(scaled(speed, 1000));
                fixes.u32(scaled(speed, 100));
            }
            item(stream, "GPS5", 'l', 20, uint16_t(kGpmfFixesPerSecond), fixes.data());
        });
    });
    return out.take();
}
