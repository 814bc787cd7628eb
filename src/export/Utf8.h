#pragma once
// Walking UTF-8 text that may not be valid: file names on Linux are bytes, not text.

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

struct Utf8Char {
    char32_t codePoint = 0;  // U+FFFD when the bytes are not a valid sequence
    std::size_t length = 1;  // bytes consumed, at least one
    bool valid = false;
};

// The character at text[at]. An invalid sequence yields U+FFFD for its longest ill-formed prefix
// (never swallowing the start of the next character), as Unicode recommends for replacement.
Utf8Char nextUtf8Char(std::string_view text, std::size_t at);

void appendUtf8(std::string& out, char32_t codePoint);

inline constexpr char32_t kReplacementCharacter = 0xFFFD;

// True when every byte of text belongs to a well-formed UTF-8 sequence.
bool isValidUtf8(std::string_view text);

// Copies text to out for a format that escapes some characters: a run of bytes for which
// plain(byte) holds goes in one append, as most texts are nothing else; every other character is
// decoded (U+FFFD for bytes that are not UTF-8) and handed to escape(out, codePoint).
template <typename Plain, typename Escape>
void appendEscapedUtf8(std::string& out, std::string_view text, Plain plain, Escape escape) {
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t plainEnd =
            std::size_t(std::find_if_not(text.begin() + std::ptrdiff_t(at), text.end(), plain) - text.begin());
        out.append(text.substr(at, plainEnd - at));
        at = plainEnd;
        if (at == text.size()) break;

        const Utf8Char c = nextUtf8Char(text, at);
        at += c.length;
        escape(out, c.codePoint);
    }
}
