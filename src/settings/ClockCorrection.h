#pragma once
// The clock correction as the settings file and the preferences show it: "+HH:MM" or "-HH:MM",
// minutes added to the times the camera recorded.

#include <optional>
#include <string>
#include <string_view>

// Minutes for texts like "+1:30", "-00:45", "2:00" or " +0:05 "; absent for anything else, for
// minutes past 59, and for corrections outside kClockCorrectionMinutes.
std::optional<int> parseClockCorrection(std::string_view text);

// "+01:30", "-00:45"; zero is "+00:00".
std::string clockCorrectionText(int minutes);
