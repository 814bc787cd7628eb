#pragma once
// The one table from a key and the held modifiers to a play control code. Only no modifier and
// Command alone give commands.

#include <cstdint>

class QKeyEvent;

// The keys that can carry a command. Arrows, Space, Backspace, comma, full stop, I and O by what
// they mean; F by where it sits on the keyboard, so that Ctrl+F works whatever letter the layout
// puts there.
enum class ControlKey { Other, Left, Right, Down, Up, Space, Backspace, F, Comma, Period, I, O };

class PlayControlKeyMap {
public:
    // The code of a key pressed while keyStatus (ModifierState's bits) is held; 0 when none.
    static uint64_t codeFor(ControlKey key, uint64_t keyStatus);
    // The code of an event taken with its own modifiers, as a shortcut override must be judged
    // before any key press is seen.
    static uint64_t codeFor(const QKeyEvent& event);

    // The key of an event, read on this platform.
    static ControlKey keyOf(const QKeyEvent& event);
    // scanCodesAreXkb: the native scan code is an XKB keycode (X11 and Wayland), where F is 41;
    // elsewhere, or without a scan code, F is known by its Qt key.
    static ControlKey keyOf(int qtKey, uint32_t nativeScanCode, bool scanCodesAreXkb);
};
