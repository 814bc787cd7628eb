#include "ClockCorrection.h"

#include "SettingRange.h"

#include <cstdlib>

namespace {

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    const auto last = text.find_last_not_of(" \t");
    return text.substr(first, last - first + 1);
}

// One or two decimal digits, nothing else.
std::optional<int> smallNumber(std::string_view digits) {
    if (digits.empty() || digits.size() > 2) return std::nullopt;
    int value = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') return std::nullopt;
        value = value * 10 + (c - '0');
    }
    return value;
}

}  // namespace

std::optional<int> parseClockCorrection(std::string_view text) {
    text = trimmed(text);
    int sign = 1;
    if (!text.empty() && (text.front() == '+' || text.front() == '-')) {
        sign = text.front() == '-' ? -1 : 1;
        text.remove_prefix(1);
    }
    const auto colon = text.find(':');
    if (colon == std::string_view::npos) return std::nullopt;
    const std::optional<int> hours = smallNumber(text.substr(0, colon));
    const std::optional<int> minutes = smallNumber(text.substr(colon + 1));
    if (!hours || !minutes || *minutes > 59 || text.substr(colon + 1).size() != 2) return std::nullopt;
    const int total = sign * (*hours * 60 + *minutes);
    if (!kClockCorrectionMinutes.contains(total)) return std::nullopt;
    return total;
}

std::string clockCorrectionText(int minutes) {
    const int magnitude = std::abs(minutes);
    const int hours = magnitude / 60;
    const int rest = magnitude % 60;
    std::string text(1, minutes < 0 ? '-' : '+');
    text += char('0' + hours / 10 % 10);
    text += char('0' + hours % 10);
    text += ':';
    text += char('0' + rest / 10);
    text += char('0' + rest % 10);
    return text;
}
