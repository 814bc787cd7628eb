#include "EngineHum.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kIdleHertz = 32.0;
constexpr double kHertzPerSpeed = 1.6;
constexpr double kHumLevel = 900.0;  // of 32767: about -31 dBFS, quiet as a cabin
constexpr double kRoadLevel = 40.0;  // per unit of speed
constexpr double kHarmonics[] = {1.0, 0.55, 0.3, 0.15};

}  // namespace

EngineHum::EngineHum(int sampleRate, int channels) : sampleRate_(sampleRate), channels_(channels) {}

void EngineHum::render(std::vector<uint8_t>& out, int frames, double speedFrom, double speedTo) {
    // The tyre noise is white noise through a one-pole low-pass near 400 Hz.
    const double smoothing = 1.0 - std::exp(-2.0 * std::numbers::pi * 400.0 / sampleRate_);
    out.reserve(out.size() + std::size_t(frames) * std::size_t(channels_) * 2);
    for (int i = 0; i < frames; ++i) {
        const double speed = speedFrom + (speedTo - speedFrom) * i / frames;
        phase_ += (kIdleHertz + kHertzPerSpeed * speed) / sampleRate_;
        phase_ -= std::floor(phase_);

        double hum = 0;
        for (std::size_t h = 0; h < std::size(kHarmonics); ++h)
            hum += kHarmonics[h] * std::sin(2.0 * std::numbers::pi * phase_ * double(h + 1));

        random_ = random_ * 1664525u + 1013904223u;
        const double white = double(random_ >> 8) / double(1u << 24) * 2.0 - 1.0;
        noise_ += smoothing * (white - noise_);

        const double value = kHumLevel * hum + kRoadLevel * speed * noise_ * 4.0;
        const auto sample = int16_t(std::clamp(std::lround(value), -32768L, 32767L));
        for (int c = 0; c < channels_; ++c) {
            out.push_back(uint8_t(uint16_t(sample) & 0xFF));
            out.push_back(uint8_t(uint16_t(sample) >> 8));
        }
    }
}
