#pragma once
// What the key-handling view tells the window's controller: a play control code for every key
// press, and the movies dropped on the window. Both do nothing unless overridden.

#include <cstdint>
#include <filesystem>
#include <vector>

class QObject;

class GPSControlViewDelegate {
public:
    virtual ~GPSControlViewDelegate() = default;
    // Sent for every key press, also when the key names no command (code 0).
    virtual void didPerformPlayControl(QObject* /*sender*/, uint64_t /*playControl*/) {}
    // The playable movies of a drop, in their order; possibly none.
    virtual void AddedMovies(QObject* /*sender*/, const std::vector<std::filesystem::path>& /*movies*/) {}
};
