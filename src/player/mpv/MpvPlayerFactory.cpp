#include "MpvPlayerFactory.h"

#include "EmptyMediaPlayer.h"
#include "MovieProbe.h"
#include "MpvCore.h"
#include "MpvMediaPlayer.h"

#include <QElapsedTimer>

#include <system_error>

std::unique_ptr<MediaPlayer> MpvPlayerFactory::playerWithURL(const std::filesystem::path& url) {
    QElapsedTimer sinceRequested;
    sinceRequested.start();
    const std::optional<MovieInfo> info = probeMovie(url);
    if (!info) return nullptr;
    MpvCore core = createMpvCore();
    if (!core) return nullptr;
    // mpv reads a relative name with a colon in it as a protocol ("a:b.mp4").
    std::error_code error;
    std::filesystem::path absolute = std::filesystem::absolute(url, error);
    return std::make_unique<MpvMediaPlayer>(std::move(core), error ? url : absolute, *info, sinceRequested);
}

std::unique_ptr<MediaPlayer> MpvPlayerFactory::emptyPlayer() { return std::make_unique<EmptyMediaPlayer>(); }

std::unique_ptr<MediaPlayerFactory> makeMediaPlayerFactory() { return std::make_unique<MpvPlayerFactory>(); }
