#pragma once
// Log categories of the mpv player. "dashtrack.mpv.stats" is off by default; turn it on with
// QT_LOGGING_RULES="dashtrack.mpv.stats.info=true" to log first-frame times and dropped frames.

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcMpv)
Q_DECLARE_LOGGING_CATEGORY(lcMpvStats)
Q_DECLARE_LOGGING_CATEGORY(lcVideoSurface)
