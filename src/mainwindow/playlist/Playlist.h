#pragma once
// The opened movies in the order the table shows them, oldest first.

#include "PlaylistItem.h"

#include <cstddef>
#include <filesystem>
#include <vector>

class Playlist {
public:
    // Appends an entry per url, in order and duplicates included, and re-sorts the whole list.
    // True exactly when the list was empty and urls is not: the caller then plays entry 0. An
    // empty urls changes nothing.
    bool add(const std::vector<std::filesystem::path>& urls);
    // The same with entries made elsewhere (say, off the UI thread, where reading the files'
    // attributes cannot stall the window).
    bool add(std::vector<PlaylistItem> entries);
    // row < size().
    void removeAt(std::size_t row);

    std::size_t size() const { return items_.size(); }
    bool empty() const { return items_.empty(); }
    const PlaylistItem& at(std::size_t row) const { return items_.at(row); }
    const std::vector<PlaylistItem>& items() const { return items_; }

private:
    std::vector<PlaylistItem> items_;
};
