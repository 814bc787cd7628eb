#include "NumberText.h"

#include <charconv>

namespace {

// Fixed notation of the largest float needs 39 digits before the point; 64 leaves room.
constexpr std::size_t kMaxFloatText = 64;

}  // namespace

void appendShortestNumber(std::string& out, float value) {
    char text[kMaxFloatText];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

void appendShortestDecimal(std::string& out, float value) {
    char text[kMaxFloatText];
    const auto result = std::to_chars(text, text + sizeof text, value, std::chars_format::fixed);
    out.append(text, result.ptr);
}

void appendUnsigned(std::string& out, uint64_t value) {
    char text[24];
    const auto result = std::to_chars(text, text + sizeof text, value);
    out.append(text, result.ptr);
}

std::string shortestNumber(float value) {
    std::string text;
    appendShortestNumber(text, value);
    return text;
}

std::string shortestDecimal(float value) {
    std::string text;
    appendShortestDecimal(text, value);
    return text;
}
