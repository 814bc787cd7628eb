#include "MpvPlayerFactory.h"

#include "EmptyMediaPlayer.h"
#include "MovieProbe.h"
#include "MpvMediaPlayer.h"
#include "MpvSession.h"

#include <QElapsedTimer>

#include <system_error>

MpvPlayerFactory::MpvPlayerFactory(MpvOptions coreOptions) : coreOptions_(std::move(coreOptions)) {}
MpvPlayerFactory::~MpvPlayerFactory() = default;

std::unique_ptr<MediaPlayer> MpvPlayerFactory::playerWithURL(const std::filesystem::path& url) {
    QElapsedTimer sinceRequested;
    sinceRequested.start();
    const std::optional<MovieInfo> info = probeMovie(url);
    if (!info) return nullptr;
    // Started with the first movie, so that a view that never plays one costs no core.
    if (!session_) session_ = MpvSession::create(MpvMediaPlayer::observedProperties(), coreOptions_);
    if (!session_) return nullptr;
    // mpv reads a relative name with a colon in it as a protocol ("a:b.mp4").
    std::error_code error;
    std::filesystem::path absolute = std::filesystem::absolute(url, error);
    return std::make_unique<MpvMediaPlayer>(session_, error ? url : absolute, *info, sinceRequested);
}

std::unique_ptr<MediaPlayer> MpvPlayerFactory::emptyPlayer() { return std::make_unique<EmptyMediaPlayer>(); }

std::unique_ptr<MediaPlayerFactory> makeMediaPlayerFactory() { return std::make_unique<MpvPlayerFactory>(); }
