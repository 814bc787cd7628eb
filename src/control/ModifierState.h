#pragma once
// Which of the four modifier keys are held, as the key map reads them: a flag each and one bit
// each in keyStatus. Command is Ctrl, Shift is Shift, Control is Meta (the Super key on X11),
// Option is Alt.

#include <QtCore/qnamespace.h>

#include <cstdint>

class QKeyEvent;

class ModifierState {
public:
    static constexpr uint64_t kCommandBit = 0x1;
    static constexpr uint64_t kShiftBit = 0x100;
    static constexpr uint64_t kControlBit = 0x10000;
    static constexpr uint64_t kOptionBit = 0x1000000;

    bool cmdKeyDown() const { return cmdKeyDown_; }
    bool shiftKeyDown() const { return shiftKeyDown_; }
    bool ctrlKeyDown() const { return ctrlKeyDown_; }
    bool optionKeyDown() const { return optionKeyDown_; }
    // 0 with no modifier held, exactly kCommandBit with Command alone.
    uint64_t keyStatus() const { return keyStatus_; }

    // Takes the modifiers held now. Others than the four (keypad, AltGr) do not count.
    void setModifiers(Qt::KeyboardModifiers held);

    // True for the keys that only change the modifiers.
    static bool isModifierKey(int qtKey);
    // The modifiers held once the event has happened. X11 reports the state from before the event,
    // so the press or release of a modifier key is applied here on top of it.
    static Qt::KeyboardModifiers heldAfter(const QKeyEvent& event);

private:
    bool cmdKeyDown_ = false;
    bool shiftKeyDown_ = false;
    bool ctrlKeyDown_ = false;
    bool optionKeyDown_ = false;
    uint64_t keyStatus_ = 0;
};
