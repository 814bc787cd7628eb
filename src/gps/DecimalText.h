#pragma once
// Numbers as text formats write them: an optional sign, digits and a decimal point. Exponents,
// "inf", "nan", hex and blanks are refused, so a hostile field can never parse as a huge or
// non-finite value, and a field longer than any real number is refused before it is read.

#include <charconv>
#include <cstddef>
#include <optional>
#include <string_view>

enum class DecimalSign { Unsigned, Signed };

inline constexpr std::size_t kMaxDecimalChars = 32;

// The value of the whole of text, or absent when any of it is not part of a plain decimal number.
inline std::optional<double> parseDecimal(std::string_view text, DecimalSign sign) {
    if (text.empty() || text.size() > kMaxDecimalChars) return std::nullopt;
    std::size_t at = 0;
    if (text[0] == '-' || text[0] == '+') {
        if (sign == DecimalSign::Unsigned) return std::nullopt;
        at = 1;
    }
    std::size_t digits = 0;
    bool point = false;
    for (std::size_t i = at; i < text.size(); ++i) {
        const char c = text[i];
        if (c >= '0' && c <= '9') {
            ++digits;
        } else if (c == '.' && !point) {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (digits == 0) return std::nullopt;
    // from_chars takes no '+'; it reads the rest exactly as checked above.
    const char* first = text.data() + (text[0] == '+' ? 1 : 0);
    double value = 0;
    const auto [end, error] = std::from_chars(first, text.data() + text.size(), value, std::chars_format::fixed);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return value;
}

// Only the digits 0-9, exactly width of them: the fixed-width parts of a date or time.
inline std::optional<int> parseDigits(std::string_view text, std::size_t width) {
    if (text.size() != width) return std::nullopt;
    int value = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}
