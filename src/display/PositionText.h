#pragma once
// The place on screen as text for others to use: "lat, lon" with six decimals (about 0.1 m), and a
// link that shows it on OpenStreetMap's own site.

#include <string>

// Locale-free: "48.858370, 2.294481".
std::string positionText(double latitude, double longitude);
// https://www.openstreetmap.org/?mlat=…&mlon=…#map=17/…/…, a marker at the place, street level.
std::string openStreetMapLink(double latitude, double longitude);
