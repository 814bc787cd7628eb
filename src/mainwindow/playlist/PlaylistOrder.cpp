#include "PlaylistOrder.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <utility>

namespace {

// A field of exactly `width` digits at `offset`, within [low, high].
std::optional<int> field(std::string_view text, std::size_t offset, std::size_t width, int low, int high) {
    int value = 0;
    for (std::size_t i = offset; i < offset + width; ++i) {
        if (text[i] < '0' || text[i] > '9') return std::nullopt;
        value = value * 10 + (text[i] - '0');
    }
    if (value < low || value > high) return std::nullopt;
    return value;
}

}  // namespace

std::optional<PlaylistOrder::Key> PlaylistOrder::sortKey(std::string_view text) {
    static constexpr std::string_view shape = "yyyy-MM-dd hh:mm:ss";
    if (text.size() != shape.size()) return std::nullopt;
    for (std::size_t i = 0; i < shape.size(); ++i) {
        const bool separator = shape[i] == '-' || shape[i] == ' ' || shape[i] == ':';
        if (separator && text[i] != shape[i]) return std::nullopt;
    }
    const auto year = field(text, 0, 4, 0, 9999);
    const auto month = field(text, 5, 2, 1, 12);
    const auto day = field(text, 8, 2, 1, 31);
    const auto hour = field(text, 11, 2, 1, 12);
    const auto minute = field(text, 14, 2, 0, 59);
    // 60 for a leap second.
    const auto second = field(text, 17, 2, 0, 60);
    if (!year || !month || !day || !hour || !minute || !second) return std::nullopt;
    return Key{*year, *month, *day, *hour % 12, *minute, *second};
}

void PlaylistOrder::sortByCreationTime(std::vector<PlaylistItem>& items) {
    // Each text is parsed once, not once per comparison.
    struct Ranked {
        std::optional<Key> key;
        std::size_t position;
    };
    std::vector<Ranked> ranked;
    ranked.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        const auto& text = items[i].CreationTime();
        ranked.push_back({text ? sortKey(*text) : std::nullopt, i});
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked& a, const Ranked& b) {
        if (!a.key || !b.key) return a.key.has_value() && !b.key.has_value();
        return *a.key < *b.key;
    });
    std::vector<PlaylistItem> sorted;
    sorted.reserve(items.size());
    for (const auto& entry : ranked) sorted.push_back(std::move(items[entry.position]));
    items = std::move(sorted);
}
