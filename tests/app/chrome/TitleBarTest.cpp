#include "SetupTitleBar.h"
#include "TitleBarButton.h"
#include "WindowChromeMode.h"
#include "WindowEdgeResizer.h"
#include "WindowTitleBar.h"

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>

#include <gtest/gtest.h>

namespace {

const QColor kBlue = QColor::fromRgbF(0.09f, 0.63f, 1.0f);

struct Window {
    QMainWindow window;
    QWidget* content = new QWidget;

    Window() {
        window.setWindowTitle(QStringLiteral("Dashtrack"));
        window.menuBar()->addMenu(QStringLiteral("File"));
        window.setCentralWidget(content);
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, kBlue);
        window.setPalette(palette);
        window.setAutoFillBackground(true);
        window.resize(800, 500);
    }

    QImage strip() const {
        QImage image(window.width(), WindowTitleBar::kHeight, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::black);
        QPainter painter(&image);
        const_cast<QMainWindow&>(window).render(&painter, {}, QRegion(0, 0, window.width(), WindowTitleBar::kHeight));
        return image;
    }

    // Where the layout put things, relative to the window.
    QRect contentRect() const { return QRect(content->mapTo(&window, QPoint()), content->size()); }
    QRect menuRect() const { return window.menuBar()->geometry(); }
};

// The bounding box of the white title text: the rows where the strip has white pixels left of the
// buttons.
QRect whiteTextBox(const QImage& strip, int right) {
    QRect box;
    for (int y = 0; y < strip.height(); ++y)
        for (int x = 0; x < right; ++x)
            if (qGray(strip.pixel(x, y)) > 200) box |= QRect(x, y, 1, 1);
    return box;
}

TEST(TitleBar, ShowsTheTitleWhiteInTheSystemFontAt12PointsBelowTheCentre) {
    Window w;
    WindowTitleBar* bar = SetupTitleBarForMainWindow(w.window, WindowChromeMode::OwnTitleBar);
    ASSERT_NE(bar, nullptr);
    w.window.show();
    EXPECT_TRUE(w.window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(bar->titleLabel().text(), "Dashtrack");
    EXPECT_EQ(bar->titleLabel().font().pointSizeF(), 12.0);
    EXPECT_EQ(bar->titleLabel().font().family(), QApplication::font().family());

    const QImage strip = w.strip();
    // On the window's background, with nothing painted over it at the left.
    EXPECT_EQ(strip.pixel(2, 2), kBlue.rgb());
    const QRect text = whiteTextBox(strip, strip.width() - 3 * 40);
    ASSERT_FALSE(text.isEmpty());
    // Centred across the whole strip, and dropped by 3 from the strip's centre.
    EXPECT_NEAR(text.center().x(), strip.width() / 2.0, 3);
    EXPECT_NEAR(text.center().y(), WindowTitleBar::kHeight / 2.0 + WindowTitleBar::kTitleDrop, 2);

    w.window.setWindowTitle(QStringLiteral("clip.mp4"));
    EXPECT_EQ(bar->titleLabel().text(), "clip.mp4");
}

TEST(TitleBar, StaysTheSameThroughResizesAndRepeatedSetUp) {
    Window w;
    SetupTitleBarForMainWindow(w.window, WindowChromeMode::OwnTitleBar);
    w.window.show();
    const QImage atLaunch = w.strip();
    const QRect menuAtLaunch = w.menuRect();
    const int contentTopAtLaunch = w.contentRect().top();

    // A second set-up changes nothing; sizes up and back do not add up.
    EXPECT_EQ(SetupTitleBarForMainWindow(w.window, WindowChromeMode::OwnTitleBar),
              w.window.findChild<WindowTitleBar*>());
    for (const QSize size : {QSize(1000, 700), QSize(640, 400), QSize(800, 500)}) {
        w.window.resize(size);
        QApplication::processEvents();
        EXPECT_EQ(w.window.findChild<WindowTitleBar*>()->geometry(), QRect(0, 0, size.width(), WindowTitleBar::kHeight));
        EXPECT_EQ(w.menuRect().top(), WindowTitleBar::kHeight);
    }
    EXPECT_EQ(w.strip(), atLaunch);
    EXPECT_EQ(w.menuRect(), menuAtLaunch);
    EXPECT_EQ(w.contentRect().top(), contentTopAtLaunch);
    EXPECT_EQ(w.window.findChildren<WindowTitleBar*>().size(), 1);
}

TEST(TitleBar, MaximisingDropsTheBorderAndSwapsTheButton) {
    Window w;
    SetupTitleBarForMainWindow(w.window, WindowChromeMode::OwnTitleBar);
    w.window.show();
    const auto maximiseButton = [&w] {
        for (auto* button : w.window.findChildren<TitleBarButton*>())
            if (button->glyph() == TitleBarButton::Glyph::Maximise || button->glyph() == TitleBarButton::Glyph::Restore)
                return button;
        return static_cast<TitleBarButton*>(nullptr);
    };
    ASSERT_NE(maximiseButton(), nullptr);
    EXPECT_EQ(w.window.contentsMargins().left(), WindowEdgeResizer::kBorder);

    maximiseButton()->click();
    QApplication::processEvents();
    EXPECT_TRUE(w.window.isMaximized());
    EXPECT_EQ(maximiseButton()->glyph(), TitleBarButton::Glyph::Restore);
    EXPECT_EQ(w.window.contentsMargins(), QMargins(0, WindowTitleBar::kHeight, 0, 0));

    maximiseButton()->click();
    QApplication::processEvents();
    EXPECT_FALSE(w.window.isMaximized());
    EXPECT_EQ(w.window.contentsMargins().left(), WindowEdgeResizer::kBorder);
}

TEST(TitleBar, SystemDecorationsLeaveTheWindowAlone) {
    Window w;
    EXPECT_EQ(SetupTitleBarForMainWindow(w.window, WindowChromeMode::SystemDecorations), nullptr);
    EXPECT_FALSE(w.window.windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(w.window.contentsMargins(), QMargins());
}

}  // namespace
