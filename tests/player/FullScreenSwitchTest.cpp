// Full screen of one widget: it leaves its window alone and comes back to the same place.

#include "FullScreenSwitch.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace {

TEST(FullScreenSwitch, MovieLeavesItsWindowAndComesBackToTheSamePlace) {
    // The movie sits in the middle row beside a label, nested one layout deep.
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* row = new QHBoxLayout;
    auto* side = new QLabel("side", &window);
    auto* movie = new QWidget(&window);
    column->addWidget(new QLabel("top", &window));
    row->addWidget(side);
    row->addWidget(movie, 3);
    column->addLayout(row, 1);
    window.resize(640, 480);
    window.show();
    const auto settle = [&] {
        window.layout()->activate();
        QCoreApplication::processEvents();
    };
    settle();
    const QRect before = movie->geometry(), sideBefore = side->geometry();

    FullScreenSwitch fullScreen(*movie);
    fullScreen.toggle();
    settle();
    EXPECT_TRUE(fullScreen.isFullScreen());
    EXPECT_TRUE(movie->windowState() & Qt::WindowFullScreen);
    EXPECT_EQ(side->geometry(), sideBefore) << "a placeholder holds the place";
    EXPECT_EQ(movie->parentWidget(), &window) << "the window still owns it";

    fullScreen.toggle();
    settle();
    EXPECT_FALSE(fullScreen.isFullScreen());
    EXPECT_FALSE(movie->isWindow());
    EXPECT_EQ(row->indexOf(movie), 1);
    EXPECT_EQ(row->stretch(1), 3);
    EXPECT_EQ(movie->geometry(), before);
    EXPECT_TRUE(movie->isVisible());
    EXPECT_EQ(window.findChildren<QWidget*>().size(), 3) << "the placeholder is gone";
}

}  // namespace
