#pragma once
// The picture a forward-facing dash camera would see, drawn from scratch: sky and skyline, a
// boulevard in perspective whose lane markings and lamp posts move with the distance driven, the
// car's bonnet, and the camera's burned-in clock, speed and frame counter.

#include "SevenSegment.h"
#include "YuvCanvas.h"

#include <cstdint>
#include <string>
#include <vector>

struct SceneMoment {
    double travelledMetres = 0;  // moves the road; its rate is the car's speed
    std::string clock;           // "YYYY-MM-DD HH:MM:SS" as the camera stamps it
    double speed = 0;
    int64_t frameNumber = 0;  // tells neighbouring frames apart in a snapshot
};

class DashcamScene {
public:
    DashcamScene(int width, int height);
    void paint(YuvCanvas& canvas, const SceneMoment& moment) const;

private:
    // Screen position of a point on the road, lateral metres right of the camera, z metres ahead.
    double screenX(double lateral, double z) const;
    double screenRow(double z) const;

    void paintBackground();
    void paintLaneMarkings(YuvCanvas& canvas, double travelled) const;
    void paintLampPosts(YuvCanvas& canvas, double travelled) const;
    void paintBonnet(YuvCanvas& canvas) const;
    void paintStamps(YuvCanvas& canvas, const SceneMoment& moment) const;

    int width_;
    int height_;
    int horizon_;
    double focal_;                // pixels
    std::vector<int> bonnetTop_;  // first row of the bonnet, per column
    Yuv420Image background_;
    SevenSegment digits_;
};
