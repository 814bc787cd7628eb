#pragma once
// What must match for two clips' streams to be joined into one movie without re-encoding: the
// decoder's set-up and the clock the packets are stamped in.

#include <cstdint>
#include <vector>

struct StreamSignature {
    int mediaType = -1;  // AVMediaType
    int codecId = 0;     // AVCodecID
    int width = 0;
    int height = 0;
    int sampleRate = 0;
    int channels = 0;
    int timeBaseNumerator = 0;
    int timeBaseDenominator = 0;
    std::vector<std::uint8_t> extradata;

    bool operator==(const StreamSignature&) const = default;
};

// The streams a clip contributes to a segment, in the clip's order.
using ClipStreams = std::vector<StreamSignature>;
