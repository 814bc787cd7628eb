// Full screen of one widget: it leaves its window alone and comes back to the same place.

#include "FullScreenSwitch.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

// A window whose middle row holds the widget beside a label, nested one layout deep.
struct Window {
    QWidget window;
    QLabel* top = new QLabel("top", &window);
    QWidget* movie = new QWidget(&window);
    QLabel* side = new QLabel("side", &window);
    QHBoxLayout* row = new QHBoxLayout;

    Window() {
        auto* column = new QVBoxLayout(&window);
        column->addWidget(top);
        row->addWidget(side);
        row->addWidget(movie, 3);
        column->addLayout(row, 1);
        window.resize(640, 480);
        window.show();
        settle();
    }
    void settle() {
        window.layout()->activate();
        QCoreApplication::processEvents();
    }
};

TEST(FullScreenSwitch, MovieLeavesItsWindowAndComesBackToTheSamePlace) {
    Window w;
    const QRect before = w.movie->geometry();
    const QRect sideBefore = w.side->geometry();
    ASSERT_EQ(w.row->indexOf(w.movie), 1);

    FullScreenSwitch fullScreen(*w.movie);
    fullScreen.toggle();
    w.settle();
    EXPECT_TRUE(fullScreen.isFullScreen());
    EXPECT_TRUE(w.movie->isWindow());
    EXPECT_TRUE(w.movie->windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(w.row->indexOf(w.movie), -1);
    EXPECT_EQ(w.side->geometry(), sideBefore) << "a placeholder holds the place";
    EXPECT_EQ(w.movie->parentWidget(), &w.window) << "the window still owns it";

    fullScreen.toggle();
    w.settle();
    EXPECT_FALSE(fullScreen.isFullScreen());
    EXPECT_FALSE(w.movie->isWindow());
    EXPECT_EQ(w.movie->parentWidget(), &w.window);
    EXPECT_EQ(w.row->indexOf(w.movie), 1);
    EXPECT_EQ(w.row->stretch(1), 3);
    EXPECT_EQ(w.movie->geometry(), before);
    EXPECT_TRUE(w.movie->isVisible());
    EXPECT_EQ(w.window.findChildren<QWidget*>().size(), 3) << "the placeholder is gone";
}

}  // namespace
