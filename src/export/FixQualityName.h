#pragma once
// The kind of fix as GPX names it, which the JSON export uses too; empty where the format did not
// say, so that nothing is written.

#include "GPSFix.h"

#include <string_view>

constexpr std::string_view fixQualityName(GPSFix::Quality quality) {
    switch (quality) {
        case GPSFix::Quality::NoFix:
            return "none";
        case GPSFix::Quality::Fix2D:
            return "2d";
        case GPSFix::Quality::Fix3D:
            return "3d";
        case GPSFix::Quality::Unknown:
            break;
    }
    return {};
}
