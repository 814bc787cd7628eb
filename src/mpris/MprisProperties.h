#pragma once
// The media-player properties computed from the player's state: the playback status, the
// metadata of the loaded clip, and the conversions between seconds and the bus's microseconds.
// No bus is needed, so the mapping is tested on its own.

#include "MprisPlayerState.h"

#include <QDBusObjectPath>
#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <optional>

class MprisProperties {
public:
    static constexpr double kMinimumRate = -2.0;  // the fast-backward key
    static constexpr double kMaximumRate = 8.0;   // the Playback menu's fastest

    // "Playing", "Paused" or "Stopped".
    static QString playbackStatus(const MprisPlayerState& state);
    // /org/dashtrack/track/<row>; the standard "no track" path without a loaded entry.
    static QDBusObjectPath trackId(int64_t entry);
    // mpris:trackid, xesam:title (the file name), xesam:url and mpris:length; only the id without
    // a loaded movie.
    static QVariantMap metadata(const MprisPlayerState& state);
    // The Player interface's properties that change, by name, for PropertiesChanged (not Position).
    static QVariantMap changingProperties(const MprisPlayerState& state);
    // The entries of `after` that differ from (or are missing in) `before`.
    static QVariantMap changed(const QVariantMap& before, const QVariantMap& after);

    // Whole microseconds; not-a-number, infinities and negatives give 0.
    static qlonglong microseconds(double seconds);
    static double seconds(qlonglong microseconds);

    // Seek(offset): the new time, at least 0; absent when it passes the end (the next clip, then).
    static std::optional<double> seekTarget(double positionSeconds, qlonglong offsetMicroseconds,
                                            double durationSeconds);
    // SetPosition(trackId, position): the time to go to, absent for another track or a time
    // outside the clip.
    static std::optional<double> positionTarget(const MprisPlayerState& state, const QDBusObjectPath& track,
                                                qlonglong positionMicroseconds);
    // The rate a client asks for as the player can play it: 0 pauses, any backward rate is the
    // fast-backward key's, forward rates are clamped to the menu's range; absent for not-a-number.
    static std::optional<double> acceptedRate(double requested);
    static constexpr double kSlowestForwardRate = 0.25;
    static QStringList supportedMimeTypes();
};
