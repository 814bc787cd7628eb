#include "MapGeometry.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

constexpr double kSemiMajorAxis = 6378137.0;            // WGS 84, metres
constexpr double kFlattening = 1.0 / 298.257223563;
constexpr double kEccentricitySquared = kFlattening * (2.0 - kFlattening);

// Metres in one degree of latitude and of longitude at a latitude (radii of curvature).
double metersPerLatitudeDegree(double latitudeRadians) {
    const double s = std::sin(latitudeRadians);
    const double w = 1.0 - kEccentricitySquared * s * s;
    const double meridional = kSemiMajorAxis * (1.0 - kEccentricitySquared) / (w * std::sqrt(w));
    return meridional * std::numbers::pi / 180.0;
}

double metersPerLongitudeDegree(double latitudeRadians) {
    const double s = std::sin(latitudeRadians);
    const double normal = kSemiMajorAxis / std::sqrt(1.0 - kEccentricitySquared * s * s);
    return normal * std::cos(latitudeRadians) * std::numbers::pi / 180.0;
}

}  // namespace

CoordinateRegion regionMakeWithDistance(Coordinate center, double latitudinalMeters, double longitudinalMeters) {
    const double phi = center.latitude * std::numbers::pi / 180.0;
    const double latitudeDelta = latitudinalMeters / metersPerLatitudeDegree(phi);
    const double perLongitudeDegree = metersPerLongitudeDegree(phi);
    double longitudeDelta = perLongitudeDegree > 1e-9 ? longitudinalMeters / perLongitudeDegree : 360.0;
    if (!std::isnan(longitudeDelta)) longitudeDelta = std::min(longitudeDelta, 360.0);
    return {center, {latitudeDelta, longitudeDelta}};
}
