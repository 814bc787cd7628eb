#include "GpmfPayload.h"

#include "BigEndian.h"
#include "UtcSeconds.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

namespace {

constexpr std::size_t kItemHeaderBytes = 8;
// Cameras nest two deep (DEVC, then STRM). Room for devices that nest further, and a bound that
// keeps a payload of nothing but nest headers from recursing without end.
constexpr int kMaxNesting = 8;
constexpr double kSecondsPerDay = 86400.0;
// GPS9 counts days from 2000-01-01.
constexpr double kEpoch2000 = 946684800.0;

// Fields a GPS struct must have, and divisors its SCAL must give.
constexpr std::size_t kGps5Fields = 5;
constexpr std::size_t kGps9Fields = 9;

struct Item {
    std::string_view key;
    char type = 0;
    std::size_t structBytes = 0;
    std::size_t repeat = 0;
    std::span<const uint8_t> data;  // the claimed data, as far as the payload holds it

    bool is(std::string_view k) const { return key == k; }
    // Structs the payload holds in full: a cut-off item still gives its first samples.
    std::size_t wholeStructs() const { return structBytes == 0 ? 0 : std::min(repeat, data.size() / structBytes); }
};

std::size_t elementBytes(char type) {
    switch (type) {
        case 'b':
        case 'B':
        case 'c':
            return 1;
        case 's':
        case 'S':
            return 2;
        case 'l':
        case 'L':
        case 'f':
        case 'q':
        case 'F':
            return 4;
        case 'd':
        case 'j':
        case 'J':
        case 'Q':
            return 8;
        default:
            return 0;  // a date, a GUID, a struct or a type nobody defined: no single number
    }
}

double elementValue(char type, const uint8_t* p) {
    switch (type) {
        case 'b':
            return int8_t(p[0]);
        case 'B':
        case 'c':
            return p[0];
        case 's':
            return int16_t(readU16BE(p));
        case 'S':
            return readU16BE(p);
        case 'l':
            return int32_t(readU32BE(p));
        case 'L':
        case 'F':
            return readU32BE(p);
        case 'f':
            return std::bit_cast<float>(readU32BE(p));
        case 'q':
            return int32_t(readU32BE(p)) / 65536.0;
        case 'd':
            return std::bit_cast<double>(readU64BE(p));
        case 'j':
            return double(int64_t(readU64BE(p)));
        case 'J':
            return double(readU64BE(p));
        case 'Q':
            return double(int64_t(readU64BE(p))) / 4294967296.0;
        default:
            return 0;
    }
}

// Every number of a plain item (SCAL, GPSF), as far as the payload holds them.
std::vector<double> numbers(const Item& item) {
    const std::size_t bytes = elementBytes(item.type);
    std::vector<double> out;
    if (bytes == 0) return out;
    for (std::size_t at = 0; at + bytes <= item.data.size(); at += bytes)
        out.push_back(elementValue(item.type, &item.data[at]));
    return out;
}

// The types of one struct's fields: from TYPE for a '?' struct ("f[8]L" is eight floats and a
// long), else the item's own type as often as it fits. Empty unless they fill the struct exactly.
std::string fieldTypes(const Item& item, std::string_view typeText) {
    std::string fields;
    if (item.type == '?') {
        for (std::size_t i = 0; i < typeText.size() && typeText[i] != '\0'; ++i) {
            if (typeText[i] != '[') {
                fields.push_back(typeText[i]);
            } else {
                std::size_t count = 0;
                for (++i; i < typeText.size() && typeText[i] >= '0' && typeText[i] <= '9'; ++i)
                    count = std::min<std::size_t>(count * 10 + std::size_t(typeText[i] - '0'), item.structBytes + 1);
                if (fields.empty() || count == 0 || i >= typeText.size() || typeText[i] != ']') return {};
                fields.append(std::min(count - 1, item.structBytes), fields.back());
            }
            // Every field takes a byte at least: more fields than bytes cannot fit.
            if (fields.size() > item.structBytes) return {};
        }
    } else if (const std::size_t bytes = elementBytes(item.type); bytes != 0) {
        fields.assign(item.structBytes / bytes, item.type);
    }
    std::size_t bytes = 0;
    for (char field : fields) {
        if (elementBytes(field) == 0) return {};
        bytes += elementBytes(field);
    }
    return bytes == item.structBytes ? fields : std::string{};
}

// The divisor of each of the first `needed` fields: SCAL gives one for all fields or one each.
// Without a usable SCAL a stream gives no fixes: its integers have no unit, and guessing the
// customary 1e7 would invent positions.
std::optional<std::vector<double>> divisors(const std::vector<double>& scale, std::size_t needed) {
    if (scale.size() != 1 && scale.size() < needed) return std::nullopt;
    std::vector<double> out(needed);
    for (std::size_t i = 0; i < needed; ++i) {
        out[i] = scale.size() == 1 ? scale[0] : scale[i];
        if (out[i] == 0 || !std::isfinite(out[i])) return std::nullopt;
    }
    return out;
}

// "yymmddhhmmss.sss" as seconds since 1970 (years 2000–2099); absent for anything else, which
// some cameras write before their first lock.
std::optional<double> gpsuSeconds(std::span<const uint8_t> text) {
    constexpr std::size_t kDigits = 12;
    if (text.size() < kDigits) return std::nullopt;
    int pairs[kDigits / 2] = {};
    for (std::size_t i = 0; i < kDigits; ++i) {
        if (text[i] < '0' || text[i] > '9') return std::nullopt;
        pairs[i / 2] = pairs[i / 2] * 10 + (text[i] - '0');
    }
    const auto [yy, mm, dd, hour, minute, second] = pairs;
    double fraction = 0, unit = 0.1;
    if (text.size() > kDigits && text[kDigits] == '.')
        for (std::size_t i = kDigits + 1; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i, unit /= 10)
            fraction += (text[i] - '0') * unit;
    return utcSeconds(2000 + yy, unsigned(mm), unsigned(dd), hour, minute, second + fraction);
}

GPSFix::Quality qualityOf(double fix) {
    if (fix == 0) return GPSFix::Quality::NoFix;
    if (fix == 2) return GPSFix::Quality::Fix2D;
    if (fix == 3) return GPSFix::Quality::Fix3D;
    return GPSFix::Quality::Unknown;
}

std::optional<double> finiteOrNone(double v) { return std::isfinite(v) ? std::optional(v) : std::nullopt; }

// A fix a map can place; others (a hostile SCAL, or a divisor of 1 on raw integers) are dropped.
bool placeable(const GPSFix& fix) {
    return std::isfinite(fix.latitude) && std::isfinite(fix.longitude) && std::fabs(fix.latitude) <= 90 &&
           std::fabs(fix.longitude) <= 180;
}

// Walks the items, gathering GPS samples per stream, and times them once the whole payload is
// known (spreading needs the count of every sample).
class PayloadWalker {
public:
    void walk(std::span<const uint8_t> bytes, int depth);
    GpmfFixes finish(double start, double duration);

private:
    // Properties of one nest, each applying to the items after it.
    struct NestState {
        std::vector<double> scale;
        std::string typeText;
        std::optional<double> utc;
        std::optional<GPSFix::Quality> quality;
    };
    // The GPS5 samples of one item, with the time and fix its stream states.
    struct Gps5Run {
        std::vector<GPSFix> fixes;
        std::optional<double> utc;
        std::optional<GPSFix::Quality> quality;
    };

    void take(const Item& item, NestState& state, int depth, std::vector<std::size_t>& runsHere);
    // Each struct's fields divided by SCAL; empty when the item cannot be read as `needed` fields.
    std::vector<std::vector<double>> scaledStructs(const Item& item, const NestState& state, std::size_t needed) const;
    void addGps5(const Item& item, const NestState& state, std::vector<std::size_t>& runsHere);
    void addGps9(const Item& item, const NestState& state);

    std::vector<Gps5Run> gps5_;
    std::vector<GPSFix> gps9_;
    bool intact_ = true;
};

void PayloadWalker::walk(std::span<const uint8_t> bytes, int depth) {
    NestState state;
    std::vector<std::size_t> runsHere;
    std::size_t at = 0;
    while (bytes.size() - at >= kItemHeaderBytes) {
        const uint8_t* header = &bytes[at];
        Item item;
        item.key = std::string_view(reinterpret_cast<const char*>(header), 4);
        item.type = char(header[4]);
        item.structBytes = header[5];
        item.repeat = readU16BE(header + 6);
        const std::size_t claimed = item.structBytes * item.repeat;
        const std::size_t available = bytes.size() - at - kItemHeaderBytes;
        item.data = bytes.subspan(at + kItemHeaderBytes, std::min(claimed, available));
        if (claimed > available) intact_ = false;
        take(item, state, depth, runsHere);
        const std::size_t padded = (claimed + 3) & ~std::size_t(3);
        if (padded > available) {
            at = bytes.size();
            break;
        }
        at += kItemHeaderBytes + padded;
    }
    if (at != bytes.size()) intact_ = false;  // a few bytes too short for an item header

    // GPSU and GPSF may follow the samples they describe: the nest's last word stands for those
    // that came before any.
    for (std::size_t run : runsHere) {
        if (!gps5_[run].utc) gps5_[run].utc = state.utc;
        if (!gps5_[run].quality) gps5_[run].quality = state.quality;
    }
}

void PayloadWalker::take(const Item& item, NestState& state, int depth, std::vector<std::size_t>& runsHere) {
    if (item.type == 0) {
        if (depth + 1 < kMaxNesting)
            walk(item.data, depth + 1);
        else
            intact_ = false;
    } else if (item.is("SCAL")) {
        state.scale = numbers(item);
    } else if (item.is("TYPE")) {
        state.typeText.assign(item.data.begin(), item.data.end());
    } else if (item.is("GPSU")) {
        state.utc = gpsuSeconds(item.data);
    } else if (item.is("GPSF")) {
        const std::vector<double> fix = numbers(item);
        state.quality = fix.empty() ? GPSFix::Quality::Unknown : qualityOf(fix.front());
    } else if (item.is("GPS5")) {
        addGps5(item, state, runsHere);
    } else if (item.is("GPS9")) {
        addGps9(item, state);
    }
}

std::vector<std::vector<double>> PayloadWalker::scaledStructs(const Item& item, const NestState& state,
                                                              std::size_t needed) const {
    const std::string fields = fieldTypes(item, state.typeText);
    const std::optional<std::vector<double>> divide = divisors(state.scale, needed);
    if (fields.size() < needed || !divide) return {};
    std::vector<std::vector<double>> out(item.wholeStructs(), std::vector<double>(needed));
    for (std::size_t s = 0; s < out.size(); ++s) {
        const uint8_t* p = &item.data[s * item.structBytes];
        for (std::size_t f = 0; f < needed; p += elementBytes(fields[f]), ++f)
            out[s][f] = elementValue(fields[f], p) / (*divide)[f];
    }
    return out;
}

void PayloadWalker::addGps5(const Item& item, const NestState& state, std::vector<std::size_t>& runsHere) {
    Gps5Run run{{}, state.utc, state.quality};
    for (const std::vector<double>& v : scaledStructs(item, state, kGps5Fields)) {
        GPSFix fix;
        fix.latitude = v[0];
        fix.longitude = v[1];
        fix.altitudeMetres = finiteOrNone(v[2]);
        fix.speedMetresPerSecond = finiteOrNone(v[3]);
        run.fixes.push_back(fix);
    }
    if (run.fixes.empty()) return;
    runsHere.push_back(gps5_.size());
    gps5_.push_back(std::move(run));
}

void PayloadWalker::addGps9(const Item& item, const NestState& state) {
    for (const std::vector<double>& v : scaledStructs(item, state, kGps9Fields)) {
        GPSFix fix;
        fix.latitude = v[0];
        fix.longitude = v[1];
        fix.altitudeMetres = finiteOrNone(v[2]);
        fix.speedMetresPerSecond = finiteOrNone(v[3]);
        // Day 0 is what a receiver without a time writes.
        const double days = v[5], seconds = v[6];
        if (days >= 1 && days < 36525 && seconds >= 0 && seconds <= kSecondsPerDay)
            fix.clockSeconds = kEpoch2000 + std::floor(days) * kSecondsPerDay + seconds;
        fix.quality = qualityOf(v[8]);
        gps9_.push_back(fix);
    }
}

GpmfFixes PayloadWalker::finish(double start, double duration) {
    if (!std::isfinite(duration) || duration < 0) duration = 0;
    GpmfFixes out;
    out.intact = intact_;
    if (!gps9_.empty()) {
        const double step = duration / double(gps9_.size());
        for (std::size_t i = 0; i < gps9_.size(); ++i) gps9_[i].movieSeconds = start + double(i) * step;
        out.fixes = std::move(gps9_);
    } else {
        std::size_t total = 0;
        for (const Gps5Run& run : gps5_) total += run.fixes.size();
        const double step = total == 0 ? 0 : duration / double(total);
        std::size_t slot = 0;
        for (Gps5Run& run : gps5_) {
            const double first = start + double(slot) * step;
            for (GPSFix& fix : run.fixes) {
                fix.movieSeconds = start + double(slot++) * step;
                if (run.utc) fix.clockSeconds = *run.utc + (*fix.movieSeconds - first);
                fix.quality = run.quality.value_or(GPSFix::Quality::Unknown);
                out.fixes.push_back(fix);
            }
        }
    }
    // Dropped only now, so that a dropped sample still holds its place in the spread.
    std::erase_if(out.fixes, [](const GPSFix& fix) { return !placeable(fix); });
    return out;
}

}  // namespace

GpmfFixes GpmfPayload::read(std::span<const uint8_t> payload, double startSeconds, double durationSeconds) {
    PayloadWalker walker;
    walker.walk(payload, 0);
    return walker.finish(startSeconds, durationSeconds);
}
