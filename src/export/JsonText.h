#pragma once
// JSON spellings of strings and numbers.

#include <string>
#include <string_view>

// A quoted JSON string. Bytes that are not valid UTF-8 become U+FFFD, so the output is always
// valid JSON whatever a file name holds.
void appendJsonString(std::string& out, std::string_view text);

// The shortest text that reads back as the same float; null for NaN and infinities, which JSON
// cannot spell.
void appendJsonNumber(std::string& out, float value);

std::string jsonString(std::string_view text);
std::string jsonNumber(float value);
