#pragma once
// One libmpv core, shared by the player that drives it and the surface that renders its frames, so
// that a render context can never outlive its core: whichever lets go last destroys it.

#include <memory>

struct mpv_handle;

using MpvCore = std::shared_ptr<mpv_handle>;

// A core set up for embedding: no window, key bindings, on-screen controller, scripts or user
// configuration of its own; paused; resting on the last frame at the end. Video goes nowhere
// (vo=null) until a surface attaches a render context. Null when libmpv cannot start.
//
// DASHTRACK_AUDIO_OUTPUT, read here, overrides mpv's audio output (tests and benchmarks use "null").
MpvCore createMpvCore();
