#include "PlaylistItem.h"

#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>
#include <utility>

PlaylistItem::PlaylistItem(std::filesystem::path url) : PlaylistItem(url, readFileAttributes(url)) {}

PlaylistItem::PlaylistItem(std::filesystem::path url, const std::optional<FileAttributes>& attributes)
    : url_(std::move(url)), filePath_(url_.native()) {
    if (!attributes) return;
    fileSize_ = FileSizeStringWithNumber(attributes->size);
    creationTime_ = CreationTimetringWithDate(attributes->creationTime);
}

std::string PlaylistItem::FileSizeStringWithNumber(std::optional<uint64_t> bytes) {
    if (!bytes) return {};
    const uint64_t n = *bytes;
    if (n < 1024) return std::to_string(n) + " B";
    struct Unit {
        uint64_t divisor;
        const char* word;
    };
    static constexpr std::array<Unit, 3> units{{{1ULL << 10, " KB"}, {1ULL << 20, " M"}, {1ULL << 30, " G"}}};
    for (const auto& unit : units) {
        if (n / unit.divisor >= 1024) continue;
        // Below 2^40 the quotient by a power of two is exact in a double; to_chars then rounds the
        // exact value half-to-even, and, unlike printf, never writes a locale's decimal comma.
        const double value = static_cast<double>(n) / static_cast<double>(unit.divisor);
        std::array<char, 32> text{};
        const auto written = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, 1);
        return std::string(text.data(), written.ptr) + unit.word;
    }
    return {};
}

std::string PlaylistItem::CreationTimetringWithDate(std::optional<std::chrono::system_clock::time_point> date) {
    if (!date) return {};
    const auto seconds = std::chrono::floor<std::chrono::seconds>(*date).time_since_epoch().count();
    const auto time = static_cast<std::time_t>(seconds);
    std::tm local{};
    if (!::localtime_r(&time, &local)) return {};
    const int hour12 = local.tm_hour % 12 == 0 ? 12 : local.tm_hour % 12;
    std::array<char, 64> text{};
    const int length = std::snprintf(text.data(), text.size(), "%04lld-%02d-%02d %02d:%02d:%02d",
                                     static_cast<long long>(local.tm_year) + 1900, local.tm_mon + 1, local.tm_mday,
                                     hour12, local.tm_min, local.tm_sec);
    if (length < 0) return {};
    return std::string(text.data(), static_cast<std::size_t>(length));
}
