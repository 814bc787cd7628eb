// The views that pass keys on to the key-handling view: the playlist table after its own handling,
// and the movie view, which also owns full screen (double click, Escape) and swallows the wheel.

#include "ControlTestSupport.h"
#include "GPSControlView.h"
#include "GPSPlayControl.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "QtUpdateTimer.h"

#include <QApplication>
#include <QMouseEvent>
#include <QStandardItemModel>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <memory>
#include <tuple>
#include <vector>

namespace {

void sendKey(QWidget* to, QEvent::Type type, int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QKeyEvent event = keyEvent(type, key, modifiers);
    QCoreApplication::sendEvent(to, &event);
    EXPECT_TRUE(event.isAccepted());
}

class GPSTableViewTest : public ControlViewTest {
protected:
    GPSTableViewTest() {
        for (int row = 0; row < 3; ++row) model_.appendRow(new QStandardItem(QStringLiteral("clip %1").arg(row)));
        table_->setModel(&model_);
        table_->setSelectionMode(QAbstractItemView::SingleSelection);
        table_->setSelectionBehavior(QAbstractItemView::SelectRows);
        table_->setCurrentIndex(model_.index(1, 0));
        table_->setControlView(view_.get());
        layout_->addWidget(table_);
    }

    int selectedRow() const {
        const auto rows = table_->selectionModel()->selectedRows();
        return rows.size() == 1 ? rows.front().row() : -1;
    }

    QStandardItemModel model_;
    // The key-handling view holds the table, as the window's central container does.
    QVBoxLayout* layout_ = new QVBoxLayout(view_.get());
    GPSTableView* table_ = new GPSTableView(view_.get());
};

TEST_F(GPSTableViewTest, MovesTheSelectionAndPassesEachKeyOnOnce) {
    ASSERT_EQ(selectedRow(), 1);
    sendKey(table_, QEvent::KeyPress, Qt::Key_Up);
    EXPECT_EQ(selectedRow(), 0);
    sendKey(table_, QEvent::KeyPress, Qt::Key_Control);
    EXPECT_EQ(view_->keyStatus(), ModifierState::kCommandBit);
    sendKey(table_, QEvent::KeyPress, Qt::Key_Right, Qt::ControlModifier);
    sendKey(table_, QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(view_->keyStatus(), 0u);
    // A key the table ignores would otherwise also climb to its parent, the key-handling view.
    sendKey(table_, QEvent::KeyPress, Qt::Key_F1);
    EXPECT_EQ(delegate_.codes, (std::vector<uint64_t>{GPSPlayControlVolumeUp, GPSPlayControlNext, GPSPlayControlNone}));
    EXPECT_EQ(delegate_.senders.front(), view_.get());
}

TEST_F(GPSTableViewTest, TakesTheKeysOfTheControlViewFromMenuShortcutsWhereverItSits) {
    // Out of the key-handling view's children, the override cannot climb to it.
    GPSTableView table;
    table.setControlView(view_.get());
    for (const auto& [key, modifiers, taken] :
         {std::tuple{Qt::Key_Space, Qt::NoModifier, true}, std::tuple{Qt::Key_Left, Qt::ControlModifier, true},
          std::tuple{Qt::Key_O, Qt::ControlModifier, false}}) {
        QKeyEvent shortcut = keyEvent(QEvent::ShortcutOverride, key, modifiers);
        shortcut.ignore();
        QCoreApplication::sendEvent(&table, &shortcut);
        EXPECT_EQ(shortcut.isAccepted(), taken) << std::hex << key;
    }
    EXPECT_TRUE(delegate_.codes.empty());
}

// Counts the wheel events that reach it, so a test sees whether one climbed from a child.
class WheelCounter final : public QWidget {
public:
    int wheels = 0;

protected:
    void wheelEvent(QWheelEvent* event) override {
        ++wheels;
        event->accept();
    }
};

class GPSPlayerViewKeysTest : public ControlViewTest {
protected:
    GPSPlayerViewKeysTest() {
        player_ = new GPSPlayerView(nullptr, {}, std::make_unique<QtUpdateTimer>(), settings_.utils(), &window_);
        layout_->addWidget(player_);
        player_->setControlView(view_.get());
        window_.resize(320, 240);
    }
    ~GPSPlayerViewKeysTest() override {
        if (player_->isInFullScreenMode()) player_->toggleFullscreen();
    }

    void click(QEvent::Type type, Qt::MouseButton button) {
        QMouseEvent event(type, QPointF(10, 10), player_->mapToGlobal(QPointF(10, 10)), button, button, Qt::NoModifier);
        QCoreApplication::sendEvent(player_, &event);
    }

    WheelCounter window_;
    QVBoxLayout* layout_ = new QVBoxLayout(&window_);
    GPSPlayerView* player_ = nullptr;
};

TEST_F(GPSPlayerViewKeysTest, PassesKeysAndModifiersOnButNotTheWheel) {
    sendKey(player_, QEvent::KeyPress, Qt::Key_Control);
    EXPECT_EQ(view_->keyStatus(), ModifierState::kCommandBit);
    sendKey(player_, QEvent::KeyPress, Qt::Key_Left, Qt::ControlModifier);
    sendKey(player_, QEvent::KeyRelease, Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(view_->keyStatus(), 0u);
    // Not in full screen, Escape is a key like any other: code 0.
    sendKey(player_, QEvent::KeyPress, Qt::Key_Escape);
    EXPECT_EQ(delegate_.codes, (std::vector<uint64_t>{GPSPlayControlPrev, GPSPlayControlNone}));
    EXPECT_EQ(delegate_.senders.front(), view_.get());
    QWheelEvent wheel(QPointF(10, 10), player_->mapToGlobal(QPointF(10, 10)), QPoint(), QPoint(0, 120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(player_, &wheel);
    EXPECT_TRUE(wheel.isAccepted());
    EXPECT_EQ(window_.wheels, 0) << "not passed on to the window";
    EXPECT_EQ(delegate_.codes.size(), 2u);
}

TEST_F(GPSPlayerViewKeysTest, OnlyALeftDoubleClickEntersFullScreenAndEscapeAloneLeavesIt) {
    window_.show();
    click(QEvent::MouseButtonPress, Qt::RightButton);
    click(QEvent::MouseButtonDblClick, Qt::RightButton);
    EXPECT_FALSE(player_->isInFullScreenMode());
    // A triple click is a double click and one more press: one toggle.
    click(QEvent::MouseButtonPress, Qt::LeftButton);
    click(QEvent::MouseButtonRelease, Qt::LeftButton);
    click(QEvent::MouseButtonDblClick, Qt::LeftButton);
    click(QEvent::MouseButtonRelease, Qt::LeftButton);
    click(QEvent::MouseButtonPress, Qt::LeftButton);
    click(QEvent::MouseButtonRelease, Qt::LeftButton);
    EXPECT_TRUE(player_->isInFullScreenMode());
    sendKey(player_, QEvent::KeyPress, Qt::Key_Space);
    sendKey(player_, QEvent::KeyPress, Qt::Key_Escape);
    EXPECT_FALSE(player_->isInFullScreenMode());
    EXPECT_EQ(player_->parentWidget(), &window_);
    EXPECT_EQ(delegate_.codes, (std::vector<uint64_t>{GPSPlayControlPlayPause}));
    click(QEvent::MouseButtonDblClick, Qt::LeftButton);
    EXPECT_TRUE(player_->isInFullScreenMode());
}

}  // namespace
