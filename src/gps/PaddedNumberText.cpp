#include "PaddedNumberText.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace {

// Zeros go between the sign and the digits, as printf's 0 flag puts them.
std::size_t padWithZeros(std::span<char, kPaddedNumberTextMax> out, std::size_t length, int width) {
    const std::size_t wanted = std::size_t(std::max(width, 0));
    if (length >= wanted || wanted > out.size()) return length;
    const std::size_t signs = out[0] == '-' ? 1 : 0;
    const std::size_t zeros = wanted - length;
    std::copy_backward(out.begin() + signs, out.begin() + length, out.begin() + wanted);
    std::fill_n(out.begin() + signs, zeros, '0');
    return wanted;
}

}  // namespace

std::size_t writeZeroPaddedFixed(std::span<char, kPaddedNumberTextMax> out, double value, int width, int precision) {
    // Not-a-number and infinity are padded with spaces and spelt by the C library: rare enough
    // to leave to printf itself.
    if (!std::isfinite(value)) {
        const int n = std::snprintf(out.data(), out.size(), "%0*.*f", width, precision, value);
        return std::size_t(std::clamp(n, 0, int(out.size()) - 1));
    }
    const auto result = std::to_chars(out.data(), out.data() + out.size(), value, std::chars_format::fixed, precision);
    if (result.ec != std::errc()) return 0;
    return padWithZeros(out, std::size_t(result.ptr - out.data()), width);
}

std::size_t writeZeroPaddedInt(std::span<char, kPaddedNumberTextMax> out, int value, int width) {
    const auto result = std::to_chars(out.data(), out.data() + out.size(), value);
    return padWithZeros(out, std::size_t(result.ptr - out.data()), width);
}
