#pragma once
// Makes the application's media players: each movie, once libavformat has said that the file holds
// something to play, is loaded into the one libmpv core this factory starts on first use and keeps.

#include "MediaPlayer.h"
#include "MpvCore.h"

#include <memory>

class MpvSession;

class MpvPlayerFactory final : public MediaPlayerFactory {
public:
    // `coreOptions` are set on the core besides the player's own.
    explicit MpvPlayerFactory(MpvOptions coreOptions = {});
    ~MpvPlayerFactory() override;

    // Null for a file that cannot be read or holds no audio or video stream, or when libmpv fails.
    // The player made last has the core; the ones before it fall silent.
    std::unique_ptr<MediaPlayer> playerWithURL(const std::filesystem::path& url) override;
    // No core at all: an empty player only stands in for "nothing loaded".
    std::unique_ptr<MediaPlayer> emptyPlayer() override;

private:
    MpvOptions coreOptions_;
    std::shared_ptr<MpvSession> session_;
};

// The factory the player engine uses by default.
std::unique_ptr<MediaPlayerFactory> makeMediaPlayerFactory();
