#pragma once
// The texts of printf's "%0W.Pf" and "%0Wd" without printf: the read-outs are written thousands of
// times per export, and printf's exact decimal arithmetic costs more than all the reading.

#include <cstddef>
#include <span>

// Room for any of them: a float's 39 integer digits, a sign, a point and the decimals.
inline constexpr std::size_t kPaddedNumberTextMax = 64;

// Writes what snprintf("%0<width>.<precision>f", value) writes, byte for byte (std::to_chars rounds
// exactly as glibc does); returns the length. width and precision up to 16.
std::size_t writeZeroPaddedFixed(std::span<char, kPaddedNumberTextMax> out, double value, int width, int precision);
// Writes what snprintf("%0<width>d", value) writes; returns the length. width up to 16.
std::size_t writeZeroPaddedInt(std::span<char, kPaddedNumberTextMax> out, int value, int width);
