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

// ASCII that stands in XML as it is: most texts are nothing else.
bool standsAsIs(char byte) {
    const auto c = static_cast<unsigned char>(byte);
    return c >= 0x20 && c < 0x80 && c != '&' && c != '<' && c != '>' && c != '"';
}

}  // namespace

void appendXmlEscaped(std::string& out, std::string_view text) {
    appendEscapedUtf8(out, text, standsAsIs, [](std::string& to, char32_t c) {
        const auto escape =
            std::find_if(kEscapes.begin(), kEscapes.end(), [&](const auto& entry) { return entry.first == c; });
        if (escape != kEscapes.end())
            to += escape->second;
        else
            appendUtf8(to, allowedInXml(c) ? c : kReplacementCharacter);
    });
}

std::string xmlEscaped(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    appendXmlEscaped(out, text);
    return out;
}
