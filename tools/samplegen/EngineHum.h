#pragma once
// A quiet engine-and-road sound for the movie's sound track: a low hum whose pitch follows the
// speed, and tyre noise that grows with it. 16-bit little-endian PCM, channels interleaved.

#include <cstdint>
#include <vector>

class EngineHum {
public:
    EngineHum(int sampleRate, int channels);

    // Appends frames, the speed moving linearly from speedFrom to speedTo across them. Successive
    // calls continue the waveform without a click.
    void render(std::vector<uint8_t>& out, int frames, double speedFrom, double speedTo);

private:
    int sampleRate_;
    int channels_;
    double phase_ = 0;  // of the fundamental, in cycles
    double noise_ = 0;  // low-passed noise state
    uint32_t random_ = 1;
};
