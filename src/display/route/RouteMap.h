#pragma once
// What the route needs from the map it draws on. The widget side implements it; tests record it.

#include "MapTypes.h"

#include <memory>
#include <string>
#include <vector>

class RouteMap {
public:
    virtual ~RouteMap() = default;

    // Takes every listed line off the map; lines not on it are ignored.
    virtual void removeOverlays(const std::vector<std::shared_ptr<const Polyline>>& overlays) = 0;
    virtual void addOverlay(std::shared_ptr<const Polyline> overlay) = 0;
    // Puts the one car marker at the coordinate (showing it the first time).
    virtual void moveMarker(Coordinate coordinate, const std::string& title) = 0;
    virtual void setRegion(CoordinateRegion region, bool animated) = 0;
    // Centres the map on the coordinate and keeps the zoom.
    virtual void setCenterCoordinate(Coordinate coordinate) = 0;
    // A diagnostic for every intake that finds a route: the line "new = <newText>, last = <lastText>".
    virtual void logIntake(const std::string& newText, const std::string& lastText) = 0;
};
