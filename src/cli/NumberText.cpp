#include "NumberText.h"

#include <charconv>

namespace {

// Fixed notation of the largest float needs 39 digits before the point; 64 leaves room.
constexpr std::size_t kMaxFloatText = 64;

}  // namespace

std::string shortestNumber(float value) {
    char text[kMaxFloatText];
    const auto result = std::to_chars(text, text + sizeof text, value);
    return std::string(text, result.ptr);
}

std::string shortestDecimal(float value) {
    char text[kMaxFloatText];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed);
    return std::string(text, result.ptr);
}
