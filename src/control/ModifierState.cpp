#include "ModifierState.h"

#include <QKeyEvent>

#include <array>

namespace {

struct ModifierField {
    Qt::KeyboardModifier qtModifier;
    bool ModifierState::*flag;
    uint64_t bit;
};

Qt::KeyboardModifier modifierOfKey(int qtKey) {
    switch (qtKey) {
        case Qt::Key_Control:
            return Qt::ControlModifier;
        case Qt::Key_Shift:
            return Qt::ShiftModifier;
        case Qt::Key_Meta:
        case Qt::Key_Super_L:
        case Qt::Key_Super_R:
            return Qt::MetaModifier;
        case Qt::Key_Alt:
            return Qt::AltModifier;
        default:
            return Qt::NoModifier;
    }
}

}  // namespace

void ModifierState::setModifiers(Qt::KeyboardModifiers held) {
    // In the order Command, Shift, Control, Option; a modifier that did not change keeps its bit.
    const std::array<ModifierField, 4> fields{{
        {Qt::ControlModifier, &ModifierState::cmdKeyDown_, kCommandBit},
        {Qt::ShiftModifier, &ModifierState::shiftKeyDown_, kShiftBit},
        {Qt::MetaModifier, &ModifierState::ctrlKeyDown_, kControlBit},
        {Qt::AltModifier, &ModifierState::optionKeyDown_, kOptionBit},
    }};
    for (const auto& field : fields) {
        const bool down = held.testFlag(field.qtModifier);
        if (this->*field.flag == down) continue;
        this->*field.flag = down;
        if (down) {
            keyStatus_ |= field.bit;
        } else {
            keyStatus_ &= ~field.bit;
        }
    }
}

bool ModifierState::isModifierKey(int qtKey) { return modifierOfKey(qtKey) != Qt::NoModifier; }

Qt::KeyboardModifiers ModifierState::heldAfter(const QKeyEvent& event) {
    Qt::KeyboardModifiers held = event.modifiers();
    const Qt::KeyboardModifier own = modifierOfKey(event.key());
    if (own == Qt::NoModifier) return held;
    held.setFlag(own, event.type() == QEvent::KeyPress);
    return held;
}
