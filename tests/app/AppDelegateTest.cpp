// The application delegate follows the application's activity with the window's background.

#include "AppDelegate.h"

#include <QApplication>
#include <QPalette>

#include <gtest/gtest.h>

#include <memory>

namespace {

void changeState(Qt::ApplicationState state) { emit qApp->applicationStateChanged(state); }

QColor background(const QWidget& window) { return window.palette().color(QPalette::Window); }

TEST(AppDelegateTest, BlueWhileActiveGreyOtherwise) {
    QWidget window;
    AppDelegate delegate(&window);
    const QColor blue = QColor::fromRgbF(0.09f, 0.63f, 1.0f);
    const QColor grey = QColor::fromRgbF(0.9f, 0.9f, 0.9f);
    const struct {
        Qt::ApplicationState state;
        QColor expected;
    } steps[] = {
        {Qt::ApplicationActive, blue},   {Qt::ApplicationInactive, grey}, {Qt::ApplicationActive, blue},
        {Qt::ApplicationHidden, grey},   {Qt::ApplicationActive, blue},   {Qt::ApplicationSuspended, grey},
    };
    for (const auto& step : steps) {
        SCOPED_TRACE(step.state);
        changeState(step.state);
        EXPECT_EQ(background(window), step.expected);
        EXPECT_EQ(background(window).alphaF(), 1.0f);
        EXPECT_TRUE(window.autoFillBackground());
    }
}

TEST(AppDelegateTest, TheLayoutsBackgroundStaysUntilTheFirstChange) {
    QWidget window;
    const QColor before = background(window);
    AppDelegate delegate(&window);
    EXPECT_EQ(background(window), before);
    EXPECT_FALSE(window.autoFillBackground());
}

TEST(AppDelegateTest, GoesWithItsWindow) {
    auto window = std::make_unique<QWidget>();
    QPointer<AppDelegate> delegate = new AppDelegate(window.get());  // owned by the window
    window.reset();
    EXPECT_TRUE(delegate.isNull());
    changeState(Qt::ApplicationActive);  // reaches no delegate, touches no window
}

TEST(AppDelegateTest, TheApplicationEndsWithItsLastWindow) {
    QApplication::setQuitOnLastWindowClosed(false);
    QWidget window;
    AppDelegate delegate(&window);
    EXPECT_TRUE(QApplication::quitOnLastWindowClosed());
}

}  // namespace
