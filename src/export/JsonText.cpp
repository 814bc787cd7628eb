#include "JsonText.h"

#include "NumberText.h"
#include "Utf8.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace {

// Characters with a short escape; the other control characters use \u00XX.
constexpr std::array<std::pair<char32_t, std::string_view>, 7> kShortEscapes{{
    {U'"', "\\\""},
    {U'\\', "\\\\"},
    {U'\b', "\\b"},
    {U'\f', "\\f"},
    {U'\n', "\\n"},
    {U'\r', "\\r"},
    {U'\t', "\\t"},
}};

// ASCII that stands in a JSON string as it is: most texts are nothing else.
bool standsAsIs(char byte) {
    const auto c = static_cast<unsigned char>(byte);
    return c >= 0x20 && c < 0x80 && c != '"' && c != '\\';
}

}  // namespace

void appendJsonString(std::string& out, std::string_view text) {
    out += '"';
    appendEscapedUtf8(out, text, standsAsIs, [](std::string& to, char32_t c) {
        const auto escape = std::find_if(kShortEscapes.begin(), kShortEscapes.end(),
                                         [&](const auto& entry) { return entry.first == c; });
        if (escape != kShortEscapes.end()) {
            to += escape->second;
        } else if (c < 0x20) {
            char hex[8];
            std::snprintf(hex, sizeof hex, "\\u%04x", unsigned(c));
            to += hex;
        } else {
            appendUtf8(to, c);
        }
    });
    out += '"';
}

void appendJsonNumber(std::string& out, float value) {
    if (std::isfinite(value))
        appendShortestNumber(out, value);
    else
        out += "null";
}

std::string jsonString(std::string_view text) {
    std::string out;
    appendJsonString(out, text);
    return out;
}

std::string jsonNumber(float value) {
    std::string out;
    appendJsonNumber(out, value);
    return out;
}
