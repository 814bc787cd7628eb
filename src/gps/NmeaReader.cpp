#include "NmeaReader.h"

#include "DecimalText.h"
#include "UtcSeconds.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

constexpr double kMetresPerSecondPerKnot = 1852.0 / 3600.0;
// Beyond anything a receiver reports; larger values are taken as garbage, not as a fix.
constexpr double kMaxSpeedKnots = 2000.0;
constexpr double kMinAltitudeMetres = -10000.0;
constexpr double kMaxAltitudeMetres = 100000.0;
// Two times of day closer than this name the same fix.
constexpr double kSameTimeSeconds = 0.0005;
// RMC has 13 fields at most, GGA 15; a few more are kept so that a vendor's extra fields do no harm.
constexpr std::size_t kMaxFields = 24;

bool endsPiece(char c) { return c == '\r' || c == '\n' || c == '\0' || c == ';' || c == '$'; }

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t')) text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
    return text;
}

std::optional<int> hexDigit(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return std::nullopt;
}

// The XOR of every character between '$' and '*', as the two hex digits after '*' state it.
bool checksumMatches(std::string_view body, std::string_view stated) {
    if (stated.size() != 2) return false;
    const auto high = hexDigit(stated[0]);
    const auto low = hexDigit(stated[1]);
    if (!high || !low) return false;
    unsigned sum = 0;
    for (const char c : body) sum ^= static_cast<unsigned char>(c);
    return sum == unsigned(*high * 16 + *low);
}

struct Fields {
    std::array<std::string_view, kMaxFields> values{};
    std::size_t count = 0;

    std::string_view operator[](std::size_t i) const { return i < count ? values[i] : std::string_view(); }
};

Fields splitFields(std::string_view body) {
    Fields fields;
    while (fields.count < kMaxFields) {
        const std::size_t comma = body.find(',');
        fields.values[fields.count++] = body.substr(0, comma);
        if (comma == std::string_view::npos) break;
        body.remove_prefix(comma + 1);
    }
    return fields;
}

// hhmmss or hhmmss.sss, as seconds into the day.
std::optional<double> parseTimeOfDay(std::string_view text) {
    if (text.size() < 6 || (text.size() > 6 && text[6] != '.')) return std::nullopt;
    const auto hour = parseDigits(text.substr(0, 2), 2);
    const auto minute = parseDigits(text.substr(2, 2), 2);
    const auto wholeSecond = parseDigits(text.substr(4, 2), 2);
    const auto second = parseDecimal(text.substr(4), DecimalSign::Unsigned);
    if (!hour || !minute || !wholeSecond || !second) return std::nullopt;
    if (*hour > 23 || *minute > 59 || *second >= 61) return std::nullopt;
    return *hour * 3600.0 + *minute * 60.0 + *second;
}

struct Date {
    int year;
    unsigned month;
    unsigned day;
};

// ddmmyy; two-digit years from 80 are 19xx, as GPS time starts in 1980.
std::optional<Date> parseDate(std::string_view text) {
    const auto day = parseDigits(text.substr(0, 2), 2);
    const auto month = parseDigits(text.size() >= 4 ? text.substr(2, 2) : std::string_view(), 2);
    const auto year = parseDigits(text.size() == 6 ? text.substr(4, 2) : std::string_view(), 2);
    if (!day || !month || !year) return std::nullopt;
    return Date{*year >= 80 ? 1900 + *year : 2000 + *year, unsigned(*month), unsigned(*day)};
}

// (d)ddmm.mmmm with its hemisphere letter, as signed degrees.
std::optional<double> parseAngle(std::string_view text, std::string_view hemisphere, char positive, char negative,
                                 double limit) {
    const auto value = parseDecimal(text, DecimalSign::Unsigned);
    if (!value || hemisphere.size() != 1) return std::nullopt;
    if (hemisphere[0] != positive && hemisphere[0] != negative) return std::nullopt;
    const double degrees = std::floor(*value / 100.0);
    const double minutes = *value - degrees * 100.0;
    if (minutes >= 60.0) return std::nullopt;
    const double angle = degrees + minutes / 60.0;
    if (angle > limit) return std::nullopt;
    return hemisphere[0] == negative ? -angle : angle;
}

// An empty field is absent; a field that is there must be a number in [low, high].
bool readOptional(std::string_view text, DecimalSign sign, double low, double high, std::optional<double>& out) {
    if (text.empty()) return true;
    const auto value = parseDecimal(text, sign);
    if (!value || *value < low || *value > high) return false;
    out = value;
    return true;
}

struct RmcFix {
    GPSFix fix;
    double timeOfDay;
};

std::optional<RmcFix> parseRmc(const Fields& f) {
    // time, status, lat, N/S, lon, E/W, speed, course, date[, variation, E/W[, mode]]
    const auto timeOfDay = parseTimeOfDay(f[1]);
    if (!timeOfDay) return std::nullopt;
    const std::string_view status = f[2];
    if (status != "A" && status != "V") return std::nullopt;
    RmcFix out{GPSFix{}, *timeOfDay};
    GPSFix& fix = out.fix;
    fix.quality = status == "A" && f[12] != "N" ? GPSFix::Quality::Fix2D : GPSFix::Quality::NoFix;

    // A receiver without a fix leaves the position empty; a fix needs one.
    const bool noPosition = f[3].empty() && f[4].empty() && f[5].empty() && f[6].empty();
    if (!noPosition) {
        const auto latitude = parseAngle(f[3], f[4], 'N', 'S', 90.0);
        const auto longitude = parseAngle(f[5], f[6], 'E', 'W', 180.0);
        if (!latitude || !longitude) return std::nullopt;
        fix.latitude = *latitude;
        fix.longitude = *longitude;
    } else if (fix.quality != GPSFix::Quality::NoFix) {
        return std::nullopt;
    }

    std::optional<double> knots;
    if (!readOptional(f[7], DecimalSign::Unsigned, 0.0, kMaxSpeedKnots, knots)) return std::nullopt;
    if (knots) fix.speedMetresPerSecond = *knots * kMetresPerSecondPerKnot;
    std::optional<double> course;
    if (!readOptional(f[8], DecimalSign::Unsigned, 0.0, 360.0, course)) return std::nullopt;
    if (course) fix.headingDegrees = *course == 360.0 ? 0.0 : *course;

    if (!f[9].empty()) {
        const auto date = parseDate(f[9]);
        if (!date) return std::nullopt;
        fix.clockSeconds = utcSeconds(date->year, date->month, date->day, 0, 0, 0.0);
        if (!fix.clockSeconds) return std::nullopt;
        *fix.clockSeconds += *timeOfDay;
    }
    return out;
}

struct GgaPart {
    double timeOfDay;
    int quality;  // 0: no fix
    std::optional<double> altitudeMetres;
};

std::optional<GgaPart> parseGga(const Fields& f) {
    // time, lat, N/S, lon, E/W, quality, satellites, HDOP, altitude, M, geoid separation, M, ...
    const auto timeOfDay = parseTimeOfDay(f[1]);
    const auto quality = parseDigits(f[6], 1);
    if (!timeOfDay || !quality) return std::nullopt;
    GgaPart part{*timeOfDay, *quality, std::nullopt};
    if (!readOptional(f[9], DecimalSign::Signed, kMinAltitudeMetres, kMaxAltitudeMetres, part.altitudeMetres))
        return std::nullopt;
    if (part.altitudeMetres && !f[10].empty() && f[10] != "M") return std::nullopt;
    return part;
}

void mergeGga(GPSFix& fix, const GgaPart& gga) {
    if (gga.quality == 0) {
        fix.quality = GPSFix::Quality::NoFix;
        return;
    }
    if (!gga.altitudeMetres) return;
    fix.altitudeMetres = gga.altitudeMetres;
    if (fix.quality == GPSFix::Quality::Fix2D) fix.quality = GPSFix::Quality::Fix3D;
}

bool sameTime(double a, double b) { return std::fabs(a - b) < kSameTimeSeconds; }

class NmeaCollector {
public:
    explicit NmeaCollector(NmeaReadOptions options) : options_(options) {}

    bool full() const { return fixes_.size() >= kMaxNmeaFixes; }

    void take(std::string_view piece) {
        piece = trimmed(piece);
        if (piece.empty() || piece.size() > kMaxNmeaSentenceChars) return;
        std::string_view body = piece;
        if (const std::size_t star = piece.find('*'); star != std::string_view::npos) {
            body = piece.substr(0, star);
            if (options_.requireValidChecksum && !checksumMatches(body, trimmed(piece.substr(star + 1)))) return;
        }
        const Fields fields = splitFields(body);
        const std::string_view address = fields[0];
        if (address.size() != 5 || (address.substr(0, 2) != "GP" && address.substr(0, 2) != "GN")) return;
        const std::string_view type = address.substr(2);
        if (type == "RMC") {
            if (auto rmc = parseRmc(fields)) takeRmc(std::move(*rmc));
        } else if (type == "GGA") {
            if (const auto gga = parseGga(fields)) takeGga(*gga);
        }
    }

    std::vector<GPSFix> finish() { return std::move(fixes_); }

private:
    void takeRmc(RmcFix rmc) {
        if (pendingGga_ && sameTime(pendingGga_->timeOfDay, rmc.timeOfDay)) {
            mergeGga(rmc.fix, *pendingGga_);
            lastRmc_.reset();
        } else {
            lastRmc_ = LastRmc{fixes_.size(), rmc.timeOfDay};
        }
        pendingGga_.reset();
        fixes_.push_back(std::move(rmc.fix));
    }

    void takeGga(const GgaPart& gga) {
        if (lastRmc_ && sameTime(lastRmc_->timeOfDay, gga.timeOfDay)) {
            mergeGga(fixes_[lastRmc_->index], gga);
            lastRmc_.reset();
            return;
        }
        pendingGga_ = gga;
    }

    struct LastRmc {
        std::size_t index;
        double timeOfDay;
    };

    NmeaReadOptions options_;
    std::vector<GPSFix> fixes_;
    std::optional<GgaPart> pendingGga_;  // a GGA waiting for the RMC of its time
    std::optional<LastRmc> lastRmc_;     // the latest RMC that no GGA has joined yet
};

}  // namespace

std::vector<GPSFix> readNmeaFixes(std::string_view text, NmeaReadOptions options) {
    NmeaCollector collector(options);
    std::size_t start = 0;
    for (std::size_t i = 0; i <= text.size() && !collector.full(); ++i) {
        if (i < text.size() && !endsPiece(text[i])) continue;
        if (i > start) collector.take(text.substr(start, i - start));
        start = i + 1;
    }
    return collector.finish();
}
