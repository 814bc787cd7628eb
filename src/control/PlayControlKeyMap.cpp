#include "PlayControlKeyMap.h"

#include "GPSPlayControl.h"
#include "ModifierState.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace {

// The evdev code of F (KEY_F, 33) plus the 8 that XKB adds to every evdev code.
constexpr uint32_t kXkbKeycodeF = 41;

struct KeyBinding {
    ControlKey key;
    uint64_t keyStatus;
    GPSPlayControl code;
};

constexpr uint64_t kNone = 0;
constexpr uint64_t kCommand = ModifierState::kCommandBit;

constexpr std::array kBindings{
    KeyBinding{ControlKey::Left, kNone, GPSPlayControlBackward},
    KeyBinding{ControlKey::Left, kCommand, GPSPlayControlPrev},
    KeyBinding{ControlKey::Right, kNone, GPSPlayControlForward},
    KeyBinding{ControlKey::Right, kCommand, GPSPlayControlNext},
    KeyBinding{ControlKey::Down, kNone, GPSPlayControlVolumeDown},
    KeyBinding{ControlKey::Down, kCommand, GPSPlayControlSpeedDown},
    KeyBinding{ControlKey::Up, kNone, GPSPlayControlVolumeUp},
    KeyBinding{ControlKey::Up, kCommand, GPSPlayControlSpeedUp},
    KeyBinding{ControlKey::Space, kNone, GPSPlayControlPlayPause},
    KeyBinding{ControlKey::Backspace, kCommand, GPSPlayControlStop},
    KeyBinding{ControlKey::F, kCommand, GPSPlayControlToggleFullscreen},
    KeyBinding{ControlKey::Comma, kNone, GPSPlayControlStepFrameBackward},
    KeyBinding{ControlKey::Period, kNone, GPSPlayControlStepFrameForward},
    KeyBinding{ControlKey::I, kNone, GPSPlayControlMarkStart},
    KeyBinding{ControlKey::O, kNone, GPSPlayControlMarkEnd},
};

bool platformScanCodesAreXkb() {
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1String("xcb") || platform.startsWith(QLatin1String("wayland"));
}

}  // namespace

uint64_t PlayControlKeyMap::codeFor(ControlKey key, uint64_t keyStatus) {
    const auto* found = std::find_if(kBindings.begin(), kBindings.end(), [&](const KeyBinding& binding) {
        return binding.key == key && binding.keyStatus == keyStatus;
    });
    return found == kBindings.end() ? GPSPlayControlNone : found->code;
}

uint64_t PlayControlKeyMap::codeFor(const QKeyEvent& event) {
    ModifierState held;
    held.setModifiers(ModifierState::heldAfter(event));
    return codeFor(keyOf(event), held.keyStatus());
}

ControlKey PlayControlKeyMap::keyOf(const QKeyEvent& event) {
    return keyOf(event.key(), event.nativeScanCode(), platformScanCodesAreXkb());
}

ControlKey PlayControlKeyMap::keyOf(int qtKey, uint32_t nativeScanCode, bool scanCodesAreXkb) {
    switch (qtKey) {
        case Qt::Key_Left:
            return ControlKey::Left;
        case Qt::Key_Right:
            return ControlKey::Right;
        case Qt::Key_Down:
            return ControlKey::Down;
        case Qt::Key_Up:
            return ControlKey::Up;
        case Qt::Key_Space:
            return ControlKey::Space;
        case Qt::Key_Backspace:
            return ControlKey::Backspace;
        case Qt::Key_Comma:
            return ControlKey::Comma;
        case Qt::Key_Period:
            return ControlKey::Period;
        // The letters of "in" and "out", wherever the layout puts them.
        case Qt::Key_I:
            return ControlKey::I;
        case Qt::Key_O:
            return ControlKey::O;
        default:
            break;
    }
    if (scanCodesAreXkb && nativeScanCode != 0) {
        return nativeScanCode == kXkbKeycodeF ? ControlKey::F : ControlKey::Other;
    }
    return qtKey == Qt::Key_F ? ControlKey::F : ControlKey::Other;
}
