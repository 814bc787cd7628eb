#pragma once
// The media files made at build time (tests/settings/CMakeLists.txt) and whether each is a movie.
// Validation, the player and the snapshot must all give the same answer for every one.

#include <array>

struct MediaFixture {
    const char* name;
    bool movie;
};

inline constexpr std::array<MediaFixture, 24> kMediaFixtures{{
    {"video.mp4", true},      {"video.mov", true},  {"video.avi", true},      {"video.mkv", true},
    {"video.ts", true},       {"video.flv", true},  {"video.mpg", true},      {"movie.txt", true},
    {"audio.mp4", false},     {"audio.m4a", false}, {"audio.ts", false},      {"cover.m4a", false},
    {"picture.mp4", false},   {"photo.mp4", false}, {"animation.mov", false}, {"animation.mp4", false},
    {"animation.mkv", false}, {"text.mp4", false},  {"notes.txt", false},     {"list.mp4", false},
    {"playlist.mp4", false},  {"empty.mp4", false}, {"folder.mp4", false},    {"missing.mp4", false},
}};
