#include "GpxReader.h"

#include "DecimalText.h"
#include "UtcSeconds.h"
#include "XmlScanner.h"

#include <optional>
#include <string>

namespace {

// Longer than any number or time a point holds; a longer value is malformed, not read.
constexpr std::size_t kMaxValueChars = 64;
constexpr double kMaxSpeedMetresPerSecond = 1000.0;
constexpr double kMinAltitudeMetres = -10000.0;
constexpr double kMaxAltitudeMetres = 100000.0;

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view kSpaces = " \t\r\n";
    const std::size_t first = text.find_first_not_of(kSpaces);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(kSpaces) - first + 1);
}

std::optional<double> decimalIn(std::string_view text, double low, double high) {
    const auto value = parseDecimal(trimmed(text), DecimalSign::Signed);
    if (!value || *value < low || *value > high) return std::nullopt;
    return value;
}

// YYYY-MM-DDThh:mm:ss[.fff][Z | +hh:mm | -hh:mm | +hhmm | +hh], as UTC seconds.
std::optional<double> parseIsoTime(std::string_view text) {
    text = trimmed(text);
    if (text.size() < 19 || text[4] != '-' || text[7] != '-' || text[13] != ':' || text[16] != ':') return std::nullopt;
    if (text[10] != 'T' && text[10] != 't' && text[10] != ' ') return std::nullopt;
    const auto year = parseDigits(text.substr(0, 4), 4);
    const auto month = parseDigits(text.substr(5, 2), 2);
    const auto day = parseDigits(text.substr(8, 2), 2);
    const auto hour = parseDigits(text.substr(11, 2), 2);
    const auto minute = parseDigits(text.substr(14, 2), 2);
    if (!year || !month || !day || !hour || !minute) return std::nullopt;

    std::size_t secondsEnd = 19;
    if (secondsEnd < text.size() && text[secondsEnd] == '.') {
        ++secondsEnd;
        while (secondsEnd < text.size() && text[secondsEnd] >= '0' && text[secondsEnd] <= '9') ++secondsEnd;
    }
    if (!parseDigits(text.substr(17, 2), 2)) return std::nullopt;
    const auto second = parseDecimal(text.substr(17, secondsEnd - 17), DecimalSign::Unsigned);
    if (!second) return std::nullopt;

    double offsetSeconds = 0;
    const std::string_view zone = text.substr(secondsEnd);
    if (zone == "Z" || zone == "z" || zone.empty()) {
        offsetSeconds = 0;
    } else if (zone[0] == '+' || zone[0] == '-') {
        const std::string_view hours = zone.substr(1, 2);
        std::string_view minutes = "00";
        if (zone.size() == 6 && zone[3] == ':') minutes = zone.substr(4, 2);
        else if (zone.size() == 5) minutes = zone.substr(3, 2);
        else if (zone.size() != 3) return std::nullopt;
        const auto offsetHours = parseDigits(hours, 2);
        const auto offsetMinutes = parseDigits(minutes, 2);
        if (!offsetHours || !offsetMinutes || *offsetHours > 23 || *offsetMinutes > 59) return std::nullopt;
        offsetSeconds = (zone[0] == '-' ? -1.0 : 1.0) * (*offsetHours * 3600.0 + *offsetMinutes * 60.0);
    } else {
        return std::nullopt;
    }
    const auto local = utcSeconds(*year, unsigned(*month), unsigned(*day), *hour, *minute, *second);
    if (!local) return std::nullopt;
    return *local - offsetSeconds;
}

std::optional<GPSFix::Quality> parseFixKind(std::string_view text) {
    text = trimmed(text);
    if (text == "none") return GPSFix::Quality::NoFix;
    if (text == "2d") return GPSFix::Quality::Fix2D;
    if (text == "3d" || text == "dgps" || text == "pps") return GPSFix::Quality::Fix3D;
    return std::nullopt;
}

class GpxCollector {
public:
    // False once the document may be read no further.
    bool take(const XmlScanner::Token& token) {
        switch (token.kind) {
            case XmlScanner::Kind::StartTag:
                return open(token);
            case XmlScanner::Kind::EndTag:
                close(xmlLocalName(token.name));
                return fixes_.size() < kMaxGpxFixes;
            case XmlScanner::Kind::Text:
                if (point_ && value_.size() + token.text.size() <= kMaxValueChars * 8) {
                    value_.append(token.text);
                } else if (point_) {
                    valueTooLong_ = true;
                }
                return true;
            case XmlScanner::Kind::End:
                return false;
        }
        return false;
    }

    std::vector<GPSFix> finish() { return std::move(fixes_); }

private:
    struct OpenPoint {
        std::size_t depth;  // the point element's place in the stack
        std::optional<GPSFix> fix;  // absent when lat/lon are missing or out of range
        bool speedFromGpx10 = false;
        bool courseFromGpx10 = false;
    };

    bool open(const XmlScanner::Token& token) {
        if (stack_.size() >= kMaxGpxDepth) return false;
        const std::string_view name = xmlLocalName(token.name);
        if (!point_ && (name == "trkpt" || name == "rtept")) point_ = OpenPoint{stack_.size(), pointAt(token.attributes)};
        stack_.push_back(name);
        value_.clear();
        valueTooLong_ = false;
        if (token.selfClosing) close(name);
        return true;
    }

    static std::optional<GPSFix> pointAt(std::string_view attributes) {
        const auto latText = xmlAttribute(attributes, "lat");
        const auto lonText = xmlAttribute(attributes, "lon");
        if (!latText || !lonText) return std::nullopt;
        const auto lat = decodeXmlText(*latText, kMaxValueChars);
        const auto lon = decodeXmlText(*lonText, kMaxValueChars);
        if (!lat || !lon) return std::nullopt;
        const auto latitude = decimalIn(*lat, -90.0, 90.0);
        const auto longitude = decimalIn(*lon, -180.0, 180.0);
        if (!latitude || !longitude) return std::nullopt;
        GPSFix fix;
        fix.latitude = *latitude;
        fix.longitude = *longitude;
        return fix;
    }

    // An end tag closes the innermost open element of its name and any left open inside it, so a
    // missing end tag costs only that element. An end tag that matches nothing open is ignored.
    void close(std::string_view name) {
        std::size_t match = stack_.size();
        while (match > 0 && stack_[match - 1] != name) --match;
        if (match == 0) return;
        const std::size_t closing = match - 1;
        if (point_ && closing == stack_.size() - 1 && closing > point_->depth) readValue(name);
        stack_.resize(closing);
        value_.clear();
        if (point_ && closing <= point_->depth) {
            if (point_->fix) fixes_.push_back(*point_->fix);
            point_.reset();
        }
    }

    // The text of the element just closed, if it is one of the point's values.
    void readValue(std::string_view name) {
        if (!point_->fix || valueTooLong_) return;
        const auto text = decodeXmlText(trimmed(value_), kMaxValueChars);
        if (!text) return;
        GPSFix& fix = *point_->fix;
        const std::size_t depth = stack_.size() - 1;
        const bool child = depth == point_->depth + 1;
        const bool inExtensions = depth > point_->depth + 1 && stack_[point_->depth + 1] == "extensions";
        if (child && name == "ele") {
            fix.altitudeMetres = decimalIn(*text, kMinAltitudeMetres, kMaxAltitudeMetres);
        } else if (child && name == "time") {
            fix.clockSeconds = parseIsoTime(*text);
        } else if (child && name == "fix") {
            fix.quality = parseFixKind(*text).value_or(GPSFix::Quality::Unknown);
        } else if (name == "speed" && (child || (inExtensions && !point_->speedFromGpx10))) {
            fix.speedMetresPerSecond = decimalIn(*text, 0.0, kMaxSpeedMetresPerSecond);
            point_->speedFromGpx10 = child;
        } else if (name == "course" && (child || (inExtensions && !point_->courseFromGpx10))) {
            fix.headingDegrees = decimalIn(*text, 0.0, 360.0);
            if (fix.headingDegrees == 360.0) fix.headingDegrees = 0.0;
            point_->courseFromGpx10 = child;
        }
    }

    std::vector<GPSFix> fixes_;
    std::vector<std::string_view> stack_;  // local names of the open elements, outermost first
    std::optional<OpenPoint> point_;
    std::string value_;  // raw text of the innermost open element inside a point
    bool valueTooLong_ = false;
};

}  // namespace

std::vector<GPSFix> readGpxFixes(std::string_view document) {
    XmlScanner scanner(document);
    GpxCollector collector;
    while (collector.take(scanner.next())) {
    }
    return collector.finish();
}
