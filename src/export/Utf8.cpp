#include "Utf8.h"

namespace {

bool isContinuation(unsigned char byte) { return (byte & 0xC0) == 0x80; }

}  // namespace

Utf8Char nextUtf8Char(std::string_view text, std::size_t at) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return {lead, 1, true};

    std::size_t length = 0;
    char32_t codePoint = 0;
    // The bounds of the second byte exclude overlong forms, surrogates and values past U+10FFFF.
    unsigned char secondMin = 0x80, secondMax = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
        codePoint = lead & 0x1F;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        codePoint = lead & 0x0F;
        if (lead == 0xE0) secondMin = 0xA0;
        if (lead == 0xED) secondMax = 0x9F;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        codePoint = lead & 0x07;
        if (lead == 0xF0) secondMin = 0x90;
        if (lead == 0xF4) secondMax = 0x8F;
    } else {
        return {kReplacementCharacter, 1, false};
    }

    for (std::size_t i = 1; i < length; ++i) {
        if (at + i >= text.size()) return {kReplacementCharacter, i, false};
        const unsigned char next = byte(i);
        const bool inRange = i == 1 ? (next >= secondMin && next <= secondMax) : isContinuation(next);
        if (!inRange) return {kReplacementCharacter, i, false};
        codePoint = (codePoint << 6) | (next & 0x3F);
    }
    return {codePoint, length, true};
}

bool isValidUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();) {
        const Utf8Char c = nextUtf8Char(text, at);
        if (!c.valid) return false;
        at += c.length;
    }
    return true;
}

void appendUtf8(std::string& out, char32_t codePoint) {
    const auto put = [&](unsigned value) { out.push_back(static_cast<char>(value)); };
    if (codePoint < 0x80) {
        put(codePoint);
    } else if (codePoint < 0x800) {
        put(0xC0 | (codePoint >> 6));
        put(0x80 | (codePoint & 0x3F));
    } else if (codePoint < 0x10000) {
        put(0xE0 | (codePoint >> 12));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    } else {
        put(0xF0 | (codePoint >> 18));
        put(0x80 | ((codePoint >> 12) & 0x3F));
        put(0x80 | ((codePoint >> 6) & 0x3F));
        put(0x80 | (codePoint & 0x3F));
    }
}
