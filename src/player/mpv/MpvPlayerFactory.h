#pragma once
// Makes the application's media players: one libmpv core per movie, after libavformat has said that
// the file holds something to play.

#include "MediaPlayer.h"

#include <memory>

class MpvPlayerFactory final : public MediaPlayerFactory {
public:
    // Null for a file that cannot be read or holds no audio or video stream, or when libmpv fails.
    std::unique_ptr<MediaPlayer> playerWithURL(const std::filesystem::path& url) override;
    // No core at all: an empty player only stands in for "nothing loaded".
    std::unique_ptr<MediaPlayer> emptyPlayer() override;
};

// The factory the player engine uses by default.
std::unique_ptr<MediaPlayerFactory> makeMediaPlayerFactory();
