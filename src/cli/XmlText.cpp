#include "XmlText.h"

#include "Utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<char32_t, std::string_view>, 7> kEscapes{{
    {U'&', "&amp;"},
    {U'<', "&lt;"},
    {U'>', "&gt;"},
    {U'"', "&quot;"},
    {U'\t', "&#9;"},
    {U'\n', "&#10;"},
    {U'\r', "&#13;"},
}};

bool allowedInXml(char32_t c) { return c >= 0x20 && c != 0xFFFE && c != 0xFFFF; }

}  // namespace

std::string xmlEscaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Char c = nextUtf8Char(text, at);
        at += c.length;
        const auto escape = std::find_if(kEscapes.begin(), kEscapes.end(),
                                         [&](const auto& entry) { return entry.first == c.codePoint; });
        if (escape != kEscapes.end())
            out += escape->second;
        else
            appendUtf8(out, allowedInXml(c.codePoint) ? c.codePoint : kReplacementCharacter);
    }
    return out;
}
