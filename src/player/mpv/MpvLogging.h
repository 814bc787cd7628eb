#pragma once
// Log categories of the mpv player; only warnings show unless QT_LOGGING_RULES says otherwise.
// "dashtrack.mpv.debug=true" shows mpv's own messages; "dashtrack.mpv.stats.info=true" logs
// first-frame times and dropped frames.

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcMpv)
Q_DECLARE_LOGGING_CATEGORY(lcMpvStats)
Q_DECLARE_LOGGING_CATEGORY(lcVideoSurface)
