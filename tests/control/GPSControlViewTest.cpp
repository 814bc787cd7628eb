// The key-handling view with synthesized key events: the code of each key with the modifiers held
// before it, auto-repeat, modifiers that never stick, and the keys it takes from menu shortcuts.

#include "ControlTestSupport.h"
#include "GPSControlView.h"
#include "GPSPlayControl.h"

#include <QApplication>
#include <QFocusEvent>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace {

class GPSControlViewTest : public ::testing::Test {
protected:
    GPSControlViewTest() { view_->setDelegate(&delegate_); }

    void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, bool repeat = false) {
        QKeyEvent event = keyEvent(type, key, modifiers, repeat);
        QCoreApplication::sendEvent(view_.get(), &event);
        EXPECT_TRUE(event.isAccepted()) << "swallowed";
    }

    ProbedSettings settings_;
    RecordingDelegate delegate_;
    std::unique_ptr<GPSControlView> view_ = std::make_unique<GPSControlView>(settings_.utils());
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
