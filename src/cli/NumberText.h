#pragma once
// Locale-free float texts that read back as the same single-precision value.

#include <string>

// The shortest round-tripping text, in plain or exponent notation (std::to_chars).
std::string shortestNumber(float value);
// The shortest round-tripping text without an exponent, for XML decimals that cannot carry one.
std::string shortestDecimal(float value);
