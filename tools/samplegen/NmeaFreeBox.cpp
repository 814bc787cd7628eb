#include "NmeaFreeBox.h"

#include "ByteWriter.h"
#include "NmeaSentences.h"

#include <span>
#include <string_view>

namespace {

void textBytes(ByteWriter& out, std::string_view text) {
    out.bytes(std::span(reinterpret_cast<const uint8_t*>(text.data()), text.size()));
}

}  // namespace

std::string nmeaBoxText(const TimedRoute& route, int64_t seconds) {
    std::string text;
    for (int64_t k = 0; k <= seconds; ++k) {
        const std::string clock = "[" + std::to_string((route.clockStart + k) * 1000) + "]";
        const RouteSample at = route.at(double(k));
        text += clock + rmcSentence(at, route.utcAt(double(k))) + "\n";
        text += clock + ggaSentence(at, route.utcAt(double(k))) + "\n";
    }
    return text;
}

std::vector<uint8_t> nmeaFreeBox(const TimedRoute& route, int64_t seconds) {
    ByteWriter out;
    out.box("free", [&] {
        out.box("cprt", [&] { textBytes(out, std::string_view("dashtrack-samplegen\0", 20)); });
        out.box("sttm", [&] {
            const uint64_t ms = uint64_t(route.clockStart) * 1000;
            out.u32(uint32_t(ms >> 32));
            out.u32(uint32_t(ms));
        });
        out.box("gps ", [&] {
            textBytes(out, nmeaBoxText(route, seconds));
            out.u8(0);
        });
    });
    return out.take();
}
