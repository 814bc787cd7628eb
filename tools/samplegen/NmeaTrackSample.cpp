#include "NmeaTrackSample.h"

#include "CivilTime.h"
#include "NmeaSentences.h"

#include <cstdio>
#include <string>

namespace {

// A checksum that never validates: the right one plus one.
std::string withWrongChecksum(std::string sentence) {
    const std::size_t star = sentence.rfind('*');
    if (star == std::string::npos) return sentence;
    const unsigned right = unsigned(std::stoul(sentence.substr(star + 1), nullptr, 16));
    char hex[4];
    std::snprintf(hex, sizeof hex, "%02X", (right + 1) & 0xFF);
    return sentence.substr(0, star + 1) + hex;
}

void appendPadded(std::vector<uint8_t>& out, const std::string& text, std::size_t width) {
    const std::size_t used = std::min(text.size(), width);
    out.insert(out.end(), text.begin(), text.begin() + std::ptrdiff_t(used));
    out.insert(out.end(), width - used, 0);
}

void appendI32LE(std::vector<uint8_t>& out, int32_t value) {
    for (int shift = 0; shift < 32; shift += 8) out.push_back(uint8_t(uint32_t(value) >> shift));
}

}  // namespace

std::vector<uint8_t> makeNmeaTrackSample(const TimedRoute& route, int64_t second) {
    std::vector<uint8_t> out(2 + 4, 0);
    const CivilTime t = fromClockSeconds(route.clockStart + second);
    appendPadded(out, clockDigits(t), 16);
    for (int32_t g : {12, -40, 1024}) appendI32LE(out, g);  // at rest, tilted a little
    const RouteSample at = route.at(double(second));
    const double utc = route.utcAt(double(second));
    appendPadded(out, withWrongChecksum(rmcSentence(at, utc)), kNmeaTrackSentenceBytes);
    appendPadded(out, withWrongChecksum(ggaSentence(at, utc)), kNmeaTrackSentenceBytes);
    const std::size_t following = out.size() - 2;
    out[0] = uint8_t(following >> 8);
    out[1] = uint8_t(following);
    return out;
}
