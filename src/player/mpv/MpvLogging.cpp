#include "MpvLogging.h"

Q_LOGGING_CATEGORY(lcMpv, "dashtrack.mpv", QtWarningMsg)
Q_LOGGING_CATEGORY(lcMpvStats, "dashtrack.mpv.stats", QtWarningMsg)
Q_LOGGING_CATEGORY(lcVideoSurface, "dashtrack.videosurface", QtWarningMsg)
