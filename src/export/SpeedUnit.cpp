#include "SpeedUnit.h"

#include "GPSUtils.h"

namespace {

// The player's KM/H read-out is the stored speed times this, in single precision.
constexpr float kShownKMHPerMPH = 1.852f;

}  // namespace

std::string speedUnitName(SpeedUnit unit) {
    return unit == SpeedUnit::KMH ? GPSUtils::SpeedUnitNameKMH() : GPSUtils::SpeedUnitNameMPH();
}

float speedIn(SpeedUnit unit, const GPSData& sample) {
    return unit == SpeedUnit::KMH ? sample.SpeedKMH() : sample.SpeedMPH();
}

std::string speedTextIn(SpeedUnit unit, const GPSData& sample) {
    return unit == SpeedUnit::KMH ? sample.SpeedKMHText() : sample.SpeedMPHText();
}

float maximumIn(SpeedUnit unit, float storedMaximum) {
    return unit == SpeedUnit::KMH ? storedMaximum * kShownKMHPerMPH : storedMaximum;
}
