#pragma once
// Walking UTF-8 text that may not be valid: file names on Linux are bytes, not text.

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
