#include "Geodesy.h"

#include <cmath>
#include <numbers>

namespace {

// WGS 84.
constexpr double kSemiMajorAxis = 6378137.0;
constexpr double kFlattening = 1 / 298.257223563;
constexpr double kSemiMinorAxis = kSemiMajorAxis * (1 - kFlattening);
// The mean radius (2a + b) / 3, for the spherical fallback.
constexpr double kMeanRadius = (2 * kSemiMajorAxis + kSemiMinorAxis) / 3;

constexpr int kMaxIterations = 200;
constexpr double kConvergence = 1e-12;  // radians of longitude on the auxiliary sphere, ~0.006 mm

constexpr double radians(double degrees) { return degrees * std::numbers::pi / 180; }
constexpr double degrees(double radians) { return radians * 180 / std::numbers::pi; }

struct Geodesic {
    double metres = 0;
    std::optional<double> azimuth;  // radians clockwise from north; absent for coincident points
};

Geodesic sphericalGeodesic(GeoPoint from, GeoPoint to) {
    const double phi1 = radians(from.latitude), phi2 = radians(to.latitude);
    const double dLambda = radians(to.longitude - from.longitude);
    const double sinHalfPhi = std::sin((phi2 - phi1) / 2), sinHalfLambda = std::sin(dLambda / 2);
    const double h = sinHalfPhi * sinHalfPhi + std::cos(phi1) * std::cos(phi2) * sinHalfLambda * sinHalfLambda;
    const double y = std::sin(dLambda) * std::cos(phi2);
    const double x = std::cos(phi1) * std::sin(phi2) - std::sin(phi1) * std::cos(phi2) * std::cos(dLambda);
    Geodesic result{2 * kMeanRadius * std::asin(std::sqrt(std::fmin(1.0, h))), std::nullopt};
    if (x != 0 || y != 0) result.azimuth = std::atan2(y, x);
    return result;
}

// Vincenty's inverse formula. It does not converge for some nearly antipodal points; those fall
// back to the great circle on the mean sphere, off by at most ~0.1 % there but always finite.
Geodesic ellipsoidalGeodesic(GeoPoint from, GeoPoint to) {
    const double L = radians(to.longitude - from.longitude);
    const double U1 = std::atan((1 - kFlattening) * std::tan(radians(from.latitude)));
    const double U2 = std::atan((1 - kFlattening) * std::tan(radians(to.latitude)));
    const double sinU1 = std::sin(U1), cosU1 = std::cos(U1);
    const double sinU2 = std::sin(U2), cosU2 = std::cos(U2);

    double lambda = L;
    double sinLambda = 0, cosLambda = 0, sinSigma = 0, cosSigma = 0, sigma = 0, cosSqAlpha = 0, cos2SigmaM = 0;
    bool converged = false;
    for (int i = 0; i < kMaxIterations && !converged; ++i) {
        sinLambda = std::sin(lambda), cosLambda = std::cos(lambda);
        const double a = cosU2 * sinLambda, b = cosU1 * sinU2 - sinU1 * cosU2 * cosLambda;
        sinSigma = std::sqrt(a * a + b * b);
        if (sinSigma == 0) return {};  // the same point
        cosSigma = sinU1 * sinU2 + cosU1 * cosU2 * cosLambda;
        sigma = std::atan2(sinSigma, cosSigma);
        const double sinAlpha = cosU1 * cosU2 * sinLambda / sinSigma;
        cosSqAlpha = 1 - sinAlpha * sinAlpha;
        // On the equator cos^2(alpha) is 0 and so is this term.
        cos2SigmaM = cosSqAlpha != 0 ? cosSigma - 2 * sinU1 * sinU2 / cosSqAlpha : 0;
        const double C = kFlattening / 16 * cosSqAlpha * (4 + kFlattening * (4 - 3 * cosSqAlpha));
        const double previous = lambda;
        lambda = L + (1 - C) * kFlattening * sinAlpha *
                         (sigma + C * sinSigma * (cos2SigmaM + C * cosSigma * (-1 + 2 * cos2SigmaM * cos2SigmaM)));
        converged = std::fabs(lambda - previous) <= kConvergence;
    }
    if (!converged) return sphericalGeodesic(from, to);

    constexpr double aSq = kSemiMajorAxis * kSemiMajorAxis, bSq = kSemiMinorAxis * kSemiMinorAxis;
    const double uSq = cosSqAlpha * (aSq - bSq) / bSq;
    const double A = 1 + uSq / 16384 * (4096 + uSq * (-768 + uSq * (320 - 175 * uSq)));
    const double B = uSq / 1024 * (256 + uSq * (-128 + uSq * (74 - 47 * uSq)));
    const double cos2SigmaMSq = cos2SigmaM * cos2SigmaM;
    const double deltaSigma =
        B * sinSigma *
        (cos2SigmaM + B / 4 *
                          (cosSigma * (-1 + 2 * cos2SigmaMSq) -
                           B / 6 * cos2SigmaM * (-3 + 4 * sinSigma * sinSigma) * (-3 + 4 * cos2SigmaMSq)));
    return {kSemiMinorAxis * A * (sigma - deltaSigma),
            std::atan2(cosU2 * sinLambda, cosU1 * sinU2 - sinU1 * cosU2 * cosLambda)};
}

bool onTheGlobe(double latitude, double longitude) {
    return std::isfinite(latitude) && std::isfinite(longitude) && std::fabs(latitude) <= 90 &&
           std::fabs(longitude) <= 180;
}

}  // namespace

std::optional<GeoPoint> samplePlace(const GPSData& sample) {
    const double latitude = sample.Latitude(), longitude = sample.Longitude();
    if (!onTheGlobe(latitude, longitude) || (latitude == 0 && longitude == 0)) return std::nullopt;
    return GeoPoint{latitude, longitude};
}

double geodesicDistanceMetres(GeoPoint from, GeoPoint to) { return ellipsoidalGeodesic(from, to).metres; }

std::optional<double> initialBearingDegrees(GeoPoint from, GeoPoint to) {
    const std::optional<double> azimuth = ellipsoidalGeodesic(from, to).azimuth;
    if (!azimuth || !std::isfinite(*azimuth)) return std::nullopt;
    // From (-180, 180] to [0, 360); -0 and tiny negatives become 0, not 360.
    return std::fmod(degrees(*azimuth) + 360, 360);
}

double trackDistanceMetres(std::span<const GPSData> track) {
    double metres = 0;
    std::optional<GeoPoint> last;
    for (const GPSData& sample : track) {
        const std::optional<GeoPoint> place = samplePlace(sample);
        if (!place) continue;
        if (last) metres += geodesicDistanceMetres(*last, *place);
        last = place;
    }
    return metres;
}
