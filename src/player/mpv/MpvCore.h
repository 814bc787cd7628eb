#pragma once
// One libmpv core, shared by the players that drive it and the surface that renders its frames, so
// that a render context can never outlive its core: whichever lets go last destroys it.

#include <memory>
#include <string>
#include <utility>
#include <vector>

struct mpv_handle;

using MpvCore = std::shared_ptr<mpv_handle>;

// mpv options by name, set after the player's own.
using MpvOptions = std::vector<std::pair<std::string, std::string>>;

// A core set up for embedding: no window, key bindings, on-screen controller, scripts or user
// configuration of its own; paused; resting on the last frame at the end. Video goes nowhere
// (vo=null) until a surface attaches a render context. Null when libmpv cannot start.
//
// DASHTRACK_AUDIO_OUTPUT, read here, overrides mpv's audio output (tests and benchmarks use "null").
// `extra` comes last and wins (tests write the sound to a file this way).
MpvCore createMpvCore(const MpvOptions& extra = {});
