#include "Phrase.h"

std::string fillPhrase(std::string_view pattern, std::initializer_list<std::string_view> values) {
    std::string text;
    text.reserve(pattern.size());
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        if (c == '%' && i + 1 < pattern.size() && pattern[i + 1] >= '1' && pattern[i + 1] <= '9') {
            const auto place = static_cast<std::size_t>(pattern[i + 1] - '1');
            if (place < values.size()) {
                text += values.begin()[place];
                ++i;
                continue;
            }
        }
        text += c;
    }
    return text;
}
