// Keys without a window and with the key-handling view: every key with every modifier set, the
// physical F, the modifier bits in both platform styles, auto-repeat, modifiers that never stick,
// and the keys the view takes from menu shortcuts.

#include "ControlTestSupport.h"
#include "GPSControlView.h"
#include "GPSPlayControl.h"
#include "ModifierState.h"
#include "PlayControlKeyMap.h"

#include <QApplication>
#include <QFocusEvent>

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <vector>

namespace {

constexpr uint64_t kCmd = ModifierState::kCommandBit;
constexpr uint64_t kShift = ModifierState::kShiftBit;
constexpr uint64_t kCtrl = ModifierState::kControlBit;
constexpr uint64_t kOption = ModifierState::kOptionBit;

struct KeyRow {
    ControlKey key;
    uint64_t alone;
    uint64_t withCommand;
};

TEST(PlayControlKeyMap, OnlyNoModifierAndCommandAloneGiveCommands) {
    const std::array<KeyRow, 12> rows{{
        {ControlKey::Left, GPSPlayControlBackward, GPSPlayControlPrev},
        {ControlKey::Right, GPSPlayControlForward, GPSPlayControlNext},
        {ControlKey::Down, GPSPlayControlVolumeDown, GPSPlayControlSpeedDown},
        {ControlKey::Up, GPSPlayControlVolumeUp, GPSPlayControlSpeedUp},
        {ControlKey::Space, GPSPlayControlPlayPause, GPSPlayControlNone},
        {ControlKey::Backspace, GPSPlayControlNone, GPSPlayControlStop},
        {ControlKey::F, GPSPlayControlNone, GPSPlayControlToggleFullscreen},
        {ControlKey::Comma, GPSPlayControlStepFrameBackward, GPSPlayControlNone},
        {ControlKey::Period, GPSPlayControlStepFrameForward, GPSPlayControlNone},
        {ControlKey::I, GPSPlayControlMarkStart, GPSPlayControlNone},
        {ControlKey::O, GPSPlayControlMarkEnd, GPSPlayControlNone},
        {ControlKey::Other, GPSPlayControlNone, GPSPlayControlNone},
    }};
    const std::array<uint64_t, 4> otherStatuses{kShift, kCtrl, kOption, kCmd | kShift};
    for (const auto& row : rows) {
        SCOPED_TRACE(static_cast<int>(row.key));
        EXPECT_EQ(PlayControlKeyMap::codeFor(row.key, 0), row.alone);
        EXPECT_EQ(PlayControlKeyMap::codeFor(row.key, kCmd), row.withCommand);
        for (const uint64_t status : otherStatuses)
            EXPECT_EQ(PlayControlKeyMap::codeFor(row.key, status), 0u) << status;
    }
}

TEST(PlayControlKeyMap, KnowsFByItsPlaceWhereTheScanCodeTellsIt) {
    struct Row {
        int qtKey;
        uint32_t scanCode;
        bool xkb;
        ControlKey expected;
    };
    const std::array<Row, 7> rows{{
        {0x0410, 41, true, ControlKey::F},      // Cyrillic А on the F key
        {Qt::Key_F, 0, true, ControlKey::F},    // no scan code: by its meaning
        {Qt::Key_F, 33, false, ControlKey::F},  // another platform's codes: by its meaning
        {Qt::Key_G, 42, true, ControlKey::Other},
        {0x0410, 0, false, ControlKey::Other},
        {Qt::Key_Delete, 119, true, ControlKey::Other},
        {Qt::Key_I, 31, true, ControlKey::I},  // I and O by their meaning, even with a scan code
    }};
    for (const auto& row : rows) {
        EXPECT_EQ(PlayControlKeyMap::keyOf(row.qtKey, row.scanCode, row.xkb), row.expected)
            << std::hex << row.qtKey << " scan " << std::dec << row.scanCode;
    }
}

struct ModifierStep {
    QEvent::Type type;
    int key;
    Qt::KeyboardModifiers carried;  // what the event's modifiers() says
    uint64_t keyStatus;             // after the step
};

struct ModifierCase {
    const char* name;
    std::vector<ModifierStep> steps;
};

TEST(ModifierState, FollowsModifierKeysWhateverStateTheirEventsCarry) {
    const auto press = QEvent::KeyPress;
    const auto release = QEvent::KeyRelease;
    const std::vector<ModifierCase> cases{
        // X11: a modifier's own event carries the state from before it.
        {"shift, state before",
         {{press, Qt::Key_Shift, Qt::NoModifier, kShift}, {release, Qt::Key_Shift, Qt::ShiftModifier, 0}}},
        // Other platforms: the state after it.
        {"shift, state after",
         {{press, Qt::Key_Shift, Qt::ShiftModifier, kShift}, {release, Qt::Key_Shift, Qt::NoModifier, 0}}},
        {"command and control",
         {{press, Qt::Key_Control, Qt::NoModifier, kCmd},
          {press, Qt::Key_Meta, Qt::ControlModifier, kCmd | kCtrl},
          {release, Qt::Key_Control, Qt::ControlModifier | Qt::MetaModifier, kCtrl},
          {release, Qt::Key_Meta, Qt::MetaModifier, 0}}},
        {"super is control", {{press, Qt::Key_Super_L, Qt::NoModifier, kCtrl}}},
        {"option", {{press, Qt::Key_Alt, Qt::NoModifier, kOption}}},
        {"AltGr and the keypad are no modifiers",
         {{press, Qt::Key_AltGr, Qt::GroupSwitchModifier, 0}, {press, Qt::Key_4, Qt::KeypadModifier, 0}}},
        {"an ordinary key carries the true state",
         {{press, Qt::Key_Control, Qt::NoModifier, kCmd}, {press, Qt::Key_A, Qt::ShiftModifier, kShift}}},
    };
    for (const auto& testCase : cases) {
        SCOPED_TRACE(testCase.name);
        ModifierState state;
        for (const auto& step : testCase.steps) {
            QKeyEvent event = keyEvent(step.type, step.key, step.carried);
            state.setModifiers(ModifierState::heldAfter(event));
            EXPECT_EQ(state.keyStatus(), step.keyStatus) << std::hex << step.key;
        }
    }
}

class GPSControlViewTest : public ControlViewTest {
protected:
    void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
        QKeyEvent event = keyEvent(type, key, modifiers, repeat);
        QCoreApplication::sendEvent(view_.get(), &event);
        EXPECT_TRUE(event.isAccepted()) << "swallowed";
    }
};

// Which code each key makes with which modifiers is the key map's table; the views that pass keys
// on show that modifiers are held.
TEST_F(GPSControlViewTest, HoldingAKeyRepeatsItsCommand) {
    send(QEvent::KeyPress, Qt::Key_Up);
    send(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier, true);
    send(QEvent::KeyRelease, Qt::Key_Up);
    EXPECT_EQ(delegate_.codes, (std::vector<uint64_t>(2, GPSPlayControlVolumeUp)));
    EXPECT_EQ(delegate_.senders.front(), view_.get());
}

TEST_F(GPSControlViewTest, AModifierReleasedElsewhereDoesNotStick) {
    // Ctrl went down here, and came up while another window had the keys.
    send(QEvent::KeyPress, Qt::Key_Control);
    ASSERT_EQ(view_->keyStatus(), ModifierState::kCommandBit);
    // Another widget had the keys last, with nothing held; Qt's idea of the keyboard follows it.
    QWidget elsewhere;
    QKeyEvent key = keyEvent(QEvent::KeyPress, Qt::Key_A);
    QCoreApplication::sendEvent(&elsewhere, &key);
    EXPECT_EQ(view_->keyStatus(), ModifierState::kCommandBit) << "the release went elsewhere";
    ASSERT_EQ(QGuiApplication::queryKeyboardModifiers(), Qt::NoModifier);
    QFocusEvent focusIn(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QCoreApplication::sendEvent(view_.get(), &focusIn);
    EXPECT_EQ(view_->keyStatus(), 0u) << "taken from the keyboard when the focus comes back";

    // The same, and the next key comes before any focus change: it carries the true state.
    send(QEvent::KeyPress, Qt::Key_Control);
    send(QEvent::KeyPress, Qt::Key_Right);
    EXPECT_EQ(delegate_.codes.back(), GPSPlayControlForward);
    EXPECT_EQ(view_->keyStatus(), 0u);
}

TEST_F(GPSControlViewTest, TakesTheKeysWithACommandFromMenuShortcuts) {
    struct Row {
        int key;
        Qt::KeyboardModifiers modifiers;
        bool taken;
    };
    for (const Row& row : {Row{Qt::Key_Space, Qt::NoModifier, true}, Row{Qt::Key_Right, Qt::ControlModifier, true},
                           Row{Qt::Key_O, Qt::ControlModifier, false}, Row{Qt::Key_Space, Qt::ControlModifier, false},
                           Row{Qt::Key_Right, Qt::ShiftModifier, false}}) {
        QKeyEvent shortcut = keyEvent(QEvent::ShortcutOverride, row.key, row.modifiers);
        shortcut.ignore();
        QCoreApplication::sendEvent(view_.get(), &shortcut);
        EXPECT_EQ(shortcut.isAccepted(), row.taken) << std::hex << row.key;
    }
    EXPECT_TRUE(delegate_.codes.empty()) << "judging an override runs nothing";
}

}  // namespace
