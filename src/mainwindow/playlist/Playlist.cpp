#include "Playlist.h"

#include "PlaylistOrder.h"

#include <iterator>
#include <utility>

bool Playlist::add(const std::vector<std::filesystem::path>& urls) {
    std::vector<PlaylistItem> entries;
    entries.reserve(urls.size());
    for (const auto& url : urls) entries.emplace_back(url);
    return add(std::move(entries));
}

bool Playlist::add(std::vector<PlaylistItem> entries) {
    const bool startPlaying = items_.empty() && !entries.empty();
    if (entries.empty()) return false;
    items_.insert(items_.end(), std::make_move_iterator(entries.begin()), std::make_move_iterator(entries.end()));
    PlaylistOrder::sortByCreationTime(items_);
    return startPlaying;
}

void Playlist::removeAt(std::size_t row) {
    if (row < items_.size()) items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(row));
}
