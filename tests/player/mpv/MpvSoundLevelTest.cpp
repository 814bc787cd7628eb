// The real player's volume and mute, heard: mpv writes the sound of a steady tone to a WAV file
// instead of a sound card, and the level of what it wrote is measured.

#include "MpvPlayerFactory.h"
#include "MpvRenderSource.h"
#include "MpvTestSupport.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace {

// 16-bit samples of a WAV file's data chunk. mpv fills the chunk sizes in only when it closes the
// file, so the data is taken to run to the end of the file.
std::vector<int16_t> wavSamples(const std::filesystem::path& file) {
    std::ifstream in(file, std::ios::binary);
    const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    std::size_t at = 12;
    while (at + 8 <= bytes.size() && bytes.compare(at, 4, "data") != 0) {
        uint32_t size = 0;
        std::memcpy(&size, bytes.data() + at + 4, 4);
        at += 8 + size + (size & 1);
    }
    std::vector<int16_t> samples;
    if (at + 8 > bytes.size()) return samples;
    samples.resize((bytes.size() - at - 8) / 2);
    std::memcpy(samples.data(), bytes.data() + at + 8, samples.size() * 2);
    return samples;
}

// Root mean square of the samples from `from` to `to` (fractions of the whole), 0 to 1.
double rms(const std::vector<int16_t>& samples, double from, double to) {
    const auto begin = static_cast<std::size_t>(from * static_cast<double>(samples.size()));
    const auto end = static_cast<std::size_t>(to * static_cast<double>(samples.size()));
    double sum = 0;
    for (std::size_t i = begin; i < end; ++i) sum += static_cast<double>(samples[i]) * samples[i];
    return end > begin ? std::sqrt(sum / static_cast<double>(end - begin)) / 32768.0 : 0.0;
}

double decibels(double ratio) { return 20.0 * std::log10(ratio); }

class MpvSoundLevelTest : public ::testing::Test {
protected:
    std::filesystem::path wav() const { return std::filesystem::path(dir_.path().toStdString()) / "sound.wav"; }

    // Plays the 3 s tone to its end at this volume and mute (unless left as the player starts),
    // then a second time after `between` has changed the player. Returns what mpv wrote, once it
    // has closed the file.
    std::vector<int16_t> play(std::optional<float> volume, std::optional<bool> muted,
                              const std::function<void(MediaPlayer&)>& between = {}) {
        auto player = factory_.playerWithURL(testClip("tone.mp4"));
        EXPECT_NE(player, nullptr);
        if (!player) return {};
        const MpvCore core = dynamic_cast<MpvRenderSource&>(*player).renderCore();
        if (volume) player->setVolume(*volume);
        if (muted) player->setMuted(*muted);
        const auto toTheEnd = [&] {
            player->play();
            EXPECT_TRUE(runUntil([&] { return player->currentTime() == player->duration() && isAtRest(*player); }));
        };
        toTheEnd();
        if (between) {
            between(*player);
            player->seek(MediaTime::make(0, 1));
            toTheEnd();
        }
        player.reset();
        // The sound output closes the file when the core has unloaded the movie.
        EXPECT_TRUE(runUntil([&] { return coreIsIdle(core); }));
        return wavSamples(wav());
    }

    QTemporaryDir dir_;
    MpvPlayerFactory factory_{{{"ao", "pcm"}, {"ao-pcm-file", wav().string()}, {"audio-format", "s16"}}};
};

TEST_F(MpvSoundLevelTest, TheGainIsTheVolumeMuteSilencesAndANewPlayerStartsAfresh) {
    // The middle of the tone, away from the encoder's ramps at either end.
    const double full = rms(play(1.0f, false), 0.25, 0.75);
    ASSERT_GT(full, 0.05);
    EXPECT_NEAR(decibels(rms(play(0.125f, false), 0.25, 0.75) / full), decibels(0.125), 0.2);
    const std::vector<int16_t> muted = play(0.5f, true);
    ASSERT_FALSE(muted.empty());
    EXPECT_EQ(rms(muted, 0.0, 1.0), 0.0);
    // Played muted, then again unmuted: the second half of what was written is the tone again.
    const std::vector<int16_t> unmuted = play(0.5f, true, [](MediaPlayer& player) { player.setMuted(false); });
    EXPECT_EQ(rms(unmuted, 0.05, 0.4), 0.0);
    EXPECT_NEAR(decibels(rms(unmuted, 0.6, 0.9) / full), decibels(0.5), 0.2);
    // The players before were muted and quieter: a new one plays at its own full volume.
    EXPECT_NEAR(decibels(rms(play(std::nullopt, std::nullopt), 0.25, 0.75) / full), 0.0, 0.2);
}

}  // namespace
