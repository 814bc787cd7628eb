#include "Route.h"

#include "CivilTime.h"
#include "SampleGenError.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <numbers>
#include <optional>
#include <string_view>

namespace {

constexpr double kDegrees = 180.0 / std::numbers::pi;
constexpr double kStandingMetres = 0.5;  // below this a segment has no direction of its own

std::optional<double> parseNumber(std::string_view text) {
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
        return std::nullopt;
    return value;
}

std::vector<std::string_view> splitFields(std::string_view line) {
    std::vector<std::string_view> fields;
    for (std::size_t start = 0;;) {
        const std::size_t comma = line.find(',', start);
        fields.push_back(line.substr(start, comma - start));
        if (comma == std::string_view::npos) return fields;
        start = comma + 1;
    }
}

// Equirectangular approximation: ample for the few metres between two route points.
double metresBetween(const RoutePoint& a, const RoutePoint& b) {
    const double north = (b.latitude - a.latitude) * 111195.0;
    const double east = (b.longitude - a.longitude) * 111195.0 * std::cos(a.latitude / kDegrees);
    return std::hypot(north, east);
}

double bearing(const RoutePoint& a, const RoutePoint& b) {
    const double north = b.latitude - a.latitude;
    const double east = (b.longitude - a.longitude) * std::cos(a.latitude / kDegrees);
    const double degrees = std::atan2(east, north) * kDegrees;
    return degrees < 0 ? degrees + 360.0 : degrees;
}

RoutePoint parseRow(std::string_view line, const std::string& where) {
    const auto fields = splitFields(line);
    if (fields.size() != 4)
        throw SampleGenError(where + ": expected 4 fields (time,latitude,longitude,speed), found " +
                             std::to_string(fields.size()));
    const auto time = parseIsoDateTime(fields[0]);
    if (!time) throw SampleGenError(where + ": bad time '" + std::string(fields[0]) + "' (want YYYY-MM-DDTHH:MM:SS)");
    if (time->year < 2000 || time->year > 2099)
        throw SampleGenError(where + ": year " + std::to_string(time->year) + " outside 2000..2099");

    struct Column {
        const char* name;
        double low, high;
    };
    static constexpr Column columns[] = {{"latitude", -90, 90}, {"longitude", -180, 180}, {"speed", 0, 200}};
    double values[3] = {};
    for (std::size_t i = 0; i < 3; ++i) {
        const auto value = parseNumber(fields[i + 1]);
        if (!value || *value < columns[i].low || *value > columns[i].high)
            throw SampleGenError(where + ": bad " + columns[i].name + " '" + std::string(fields[i + 1]) + "'");
        values[i] = *value;
    }
    return {toClockSeconds(*time), values[0], values[1], values[2]};
}

}  // namespace

Route::Route(std::vector<RoutePoint> points) : points_(std::move(points)) {
    if (points_.size() < 2) throw SampleGenError("a route needs at least two points");
    for (std::size_t i = 1; i < points_.size(); ++i)
        if (points_[i].time <= points_[i - 1].time)
            throw SampleGenError("route times must increase (point " + std::to_string(i + 1) + ")");

    std::vector<std::optional<double>> own;
    for (std::size_t i = 1; i < points_.size(); ++i) {
        const auto& a = points_[i - 1];
        const auto& b = points_[i];
        own.push_back(metresBetween(a, b) < kStandingMetres ? std::nullopt : std::optional(bearing(a, b)));
    }
    // A standing car faces where it was going; before it first moves, where it will go.
    const auto first = std::find_if(own.begin(), own.end(), [](const auto& h) { return h.has_value(); });
    double last = first == own.end() ? 0.0 : **first;
    for (const auto& heading : own) {
        if (heading) last = *heading;
        headings_.push_back(last);
    }
}

Route Route::parse(std::istream& in, const std::string& source) {
    std::vector<RoutePoint> points;
    std::string line;
    bool headerAllowed = true;
    for (int number = 1; std::getline(in, line); ++number) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        if (line.empty() || line.front() == '#') continue;
        const bool isHeader = headerAllowed && line.rfind("time", 0) == 0;
        headerAllowed = false;
        if (isHeader) continue;
        points.push_back(parseRow(line, source + ":" + std::to_string(number)));
    }
    if (in.bad()) throw SampleGenError(source + ": read error");
    try {
        return Route(std::move(points));
    } catch (const SampleGenError& e) {
        throw SampleGenError(source + ": " + e.what());
    }
}

Route Route::load(const std::filesystem::path& path) {
    std::ifstream in(path);
    if (!in) throw SampleGenError(path.string() + ": cannot open route file");
    return parse(in, path.string());
}

RouteSample Route::at(double time) const {
    const auto after = std::upper_bound(points_.begin(), points_.end(), time,
                                        [](double t, const RoutePoint& p) { return t < double(p.time); });
    const auto clock = int64_t(std::floor(time));
    if (after == points_.begin() || after == points_.end()) {
        const auto& p = after == points_.begin() ? points_.front() : points_.back();
        return {clock, p.latitude, p.longitude, p.speed,
                after == points_.begin() ? headings_.front() : headings_.back()};
    }
    const auto& a = *(after - 1);
    const auto& b = *after;
    const double f = (time - double(a.time)) / double(b.time - a.time);
    const auto mix = [f](double x, double y) { return x + (y - x) * f; };
    return {clock, mix(a.latitude, b.latitude), mix(a.longitude, b.longitude), mix(a.speed, b.speed),
            headings_[std::size_t(after - points_.begin()) - 1]};
}
