#pragma once
// Locale-free float texts that read back as the same single-precision value.

#include <cstdint>
#include <string>

// The shortest round-tripping text, in plain or exponent notation (std::to_chars).
void appendShortestNumber(std::string& out, float value);
// The shortest round-tripping text without an exponent, for XML decimals that cannot carry one.
void appendShortestDecimal(std::string& out, float value);
// An unsigned count as decimal digits.
void appendUnsigned(std::string& out, uint64_t value);

std::string shortestNumber(float value);
std::string shortestDecimal(float value);
