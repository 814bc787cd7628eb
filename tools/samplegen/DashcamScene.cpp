#include "DashcamScene.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace {

constexpr double kCameraHeight = 1.3;  // metres above the road
constexpr double kLaneLines[] = {-5.4, -1.8, 1.8, 5.4};
constexpr double kRoadEdge = 9.0;
constexpr double kPavementEdge = 12.0;
constexpr double kDashPeriod = 12.0, kDashLength = 4.0, kMarkingWidth = 0.15;
constexpr double kLampSpacing = 30.0, kLampLateral = 10.8, kLampHeight = 6.5, kLampWidth = 0.25;
constexpr double kNearest = 2.0, kFarthestMarking = 90.0, kFarthestLamp = 240.0;

const Yuv kSkyTop = Yuv::fromRgb(35, 85, 165);
const Yuv kSkyHorizon = Yuv::fromRgb(175, 200, 225);
const Yuv kRoad = Yuv::fromRgb(88, 88, 94);
const Yuv kPaint = Yuv::fromRgb(235, 235, 230);
const Yuv kPavement = Yuv::fromRgb(150, 144, 136);
const Yuv kVerge = Yuv::fromRgb(74, 104, 62);
const Yuv kLamp = Yuv::fromRgb(45, 50, 48);
const Yuv kBonnet = Yuv::fromRgb(28, 30, 36);
const Yuv kStampBox = Yuv::fromRgb(12, 12, 12);
const Yuv kStampText = Yuv::fromRgb(250, 250, 250);

Yuv mix(Yuv a, Yuv b, double f) {
    const auto lerp = [f](uint8_t x, uint8_t y) { return uint8_t(std::lround(x + (y - x) * f)); };
    return {lerp(a.y, b.y), lerp(a.u, b.u), lerp(a.v, b.v)};
}

// Deterministic skyline heights: the same picture on every run.
uint32_t nextRandom(uint32_t& state) {
    state = state * 1664525u + 1013904223u;
    return state >> 8;
}

}  // namespace

DashcamScene::DashcamScene(int width, int height)
    : width_(width),
      height_(height),
      horizon_(height * 46 / 100),
      focal_(width / 2.0 / std::tan(50.0 * std::numbers::pi / 180.0)),  // 100 degrees across
      bonnetTop_(std::size_t(width)),
      background_(width, height),
      digits_(std::max(10, height / 24)) {
    for (int x = 0; x < width; ++x) {
        const double across = (x - width / 2.0) / (width / 2.0);
        bonnetTop_[std::size_t(x)] = int(height * (0.90 + 0.07 * across * across));
    }
    paintBackground();
}

double DashcamScene::screenX(double lateral, double z) const { return width_ / 2.0 + focal_ * lateral / z; }
double DashcamScene::screenRow(double z) const { return horizon_ + focal_ * kCameraHeight / z; }

void DashcamScene::paintBackground() {
    YuvCanvas canvas = background_.canvas();
    for (int y = 0; y < horizon_; ++y)
        canvas.fillRect(0, y, width_, y + 1, mix(kSkyTop, kSkyHorizon, double(y) / horizon_));

    uint32_t seed = 2026;
    const int unit = std::max(2, width_ / 64);
    for (int x = 0; x < width_;) {
        const int blockWidth = unit * int(2 + nextRandom(seed) % 5);
        const int blockHeight = int(height_ * (0.02 + 0.05 * double(nextRandom(seed) % 100) / 100.0));
        const uint8_t shade = uint8_t(120 + nextRandom(seed) % 40);
        canvas.fillRect(x, horizon_ - blockHeight, x + blockWidth, horizon_,
                        Yuv::fromRgb(shade, shade + 5, shade + 15));
        x += blockWidth;
    }

    for (int y = horizon_; y < height_; ++y) {
        const double metresPerPixel = kCameraHeight / std::max(1, y - horizon_);
        const auto at = [&](double lateral) { return int(std::lround(width_ / 2.0 + lateral / metresPerPixel)); };
        canvas.fillRect(0, y, width_, y + 1, kVerge);
        canvas.fillRect(at(-kPavementEdge), y, at(kPavementEdge), y + 1, kPavement);
        canvas.fillRect(at(-kRoadEdge), y, at(kRoadEdge), y + 1, kRoad);
        for (double side : {-1.0, 1.0}) {
            const double left = side * (kRoadEdge - 0.3) - kMarkingWidth / 2;
            canvas.fillRect(at(left), y, std::max(at(left) + 1, at(left + kMarkingWidth)), y + 1, kPaint);
        }
    }
}

void DashcamScene::paintLaneMarkings(YuvCanvas& canvas, double travelled) const {
    const int nearestRow = std::min(height_, int(screenRow(kNearest)));
    for (int y = int(std::ceil(screenRow(kFarthestMarking))); y < nearestRow; ++y) {
        const double z = focal_ * kCameraHeight / (y - horizon_ + 0.5);
        if (std::fmod(z + travelled, kDashPeriod) >= kDashLength) continue;
        for (double lateral : kLaneLines) {
            const int x0 = int(std::lround(screenX(lateral - kMarkingWidth / 2, z)));
            const int x1 = std::max(x0 + 1, int(std::lround(screenX(lateral + kMarkingWidth / 2, z))));
            canvas.fillRect(x0, y, x1, y + 1, kPaint);
        }
    }
}

void DashcamScene::paintLampPosts(YuvCanvas& canvas, double travelled) const {
    // Posts stand at every multiple of the spacing along the road; draw the far ones first.
    const double first = std::ceil((travelled + kNearest) / kLampSpacing) * kLampSpacing;
    for (double at = std::floor((travelled + kFarthestLamp) / kLampSpacing) * kLampSpacing; at >= first;
         at -= kLampSpacing) {
        const double z = at - travelled;
        const int base = int(std::lround(screenRow(z)));
        const int top = int(std::lround(base - focal_ * kLampHeight / z));
        for (double side : {-1.0, 1.0}) {
            const int x0 = int(std::lround(screenX(side * kLampLateral - kLampWidth / 2, z)));
            const int x1 = std::max(x0 + 1, int(std::lround(screenX(side * kLampLateral + kLampWidth / 2, z))));
            canvas.fillRect(x0, top, x1, base, kLamp);
            // The arm reaches over the road.
            const int arm = std::max(1, (x1 - x0) / 2);
            const int reach = int(std::lround(focal_ * 1.6 / z));
            if (side < 0)
                canvas.fillRect(x0, top, x1 + reach, top + arm, kLamp);
            else
                canvas.fillRect(x0 - reach, top, x1, top + arm, kLamp);
        }
    }
}

void DashcamScene::paintBonnet(YuvCanvas& canvas) const {
    for (int x = 0; x < width_; ++x) canvas.fillRect(x, bonnetTop_[std::size_t(x)], x + 1, height_, kBonnet);
}

void DashcamScene::paintStamps(YuvCanvas& canvas, const SceneMoment& moment) const {
    const int margin = digits_.height() / 2;
    const int pad = std::max(2, digits_.height() / 5);
    const auto stamp = [&](int x, int y, const std::string& text) {
        canvas.fillRect(x - pad, y - pad, x + digits_.textWidth(text) + pad, y + digits_.height() + pad, kStampBox);
        digits_.draw(canvas, x, y, text, kStampText);
    };

    stamp(margin + pad, margin + pad, moment.clock);

    char text[32];
    std::snprintf(text, sizeof text, "%03d", int(std::lround(moment.speed)));
    const int bottom = height_ - margin - pad - digits_.height();
    stamp(margin + pad, bottom, text);
    std::snprintf(text, sizeof text, "%06lld", static_cast<long long>(moment.frameNumber));
    stamp(width_ - margin - pad - digits_.textWidth(text), bottom, text);
}

void DashcamScene::paint(YuvCanvas& canvas, const SceneMoment& moment) const {
    background_.copyTo(canvas);
    paintLaneMarkings(canvas, moment.travelledMetres);
    paintLampPosts(canvas, moment.travelledMetres);
    paintBonnet(canvas);
    paintStamps(canvas, moment);
}
