#include "PositionText.h"

#include <cstdio>

std::string positionText(double latitude, double longitude) {
    char text[64];
    std::snprintf(text, sizeof text, "%.6f, %.6f", latitude, longitude);
    return text;
}

std::string openStreetMapLink(double latitude, double longitude) {
    char link[160];
    std::snprintf(link, sizeof link, "https://www.openstreetmap.org/?mlat=%.6f&mlon=%.6f#map=17/%.6f/%.6f", latitude,
                  longitude, latitude, longitude);
    return link;
}
