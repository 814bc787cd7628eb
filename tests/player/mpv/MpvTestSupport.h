#pragma once
// Helpers of the mpv tests: the clips made for them at build time, and running the event loop until
// something has happened.

#include "MediaPlayer.h"
#include "MpvCore.h"

#include <filesystem>
#include <functional>

inline std::filesystem::path testClip(const char* name) { return std::filesystem::path(MPV_TEST_CLIP_DIR) / name; }

// Runs the event loop in short slices until done() holds; false if it never did within the bound.
// The bound is generous and only keeps a broken player from hanging the run.
bool runUntil(const std::function<bool()>& done, int maxSlices = 3000);

// Runs the event loop for this many short slices.
void runFor(int slices);

bool isAtRest(const MediaPlayer& player);
inline double seconds(const MediaPlayer& player) { return player.currentTime().seconds(); }
MediaTime at(double seconds);
// The core has no movie loaded.
bool coreIsIdle(const MpvCore& core);
