#include "AboutView.h"
#include "GPSUtils.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <functional>
#include <vector>

namespace {

const QColor kBlue = QColor::fromRgbF(0.09f, 0.63f, 1.0f);

struct Alphas {
    double background, foreground;
};

// A blue window with a button at its top left, where only the About backdrop covers it.
struct Overlay {
    GPSUtils utils{{.userFile = {}, .shippedFile = {}}};
    QWidget window;
    QPushButton* below = new QPushButton(QStringLiteral("Below"), &window);
    AboutView* about = new AboutView(utils, &window);
    std::vector<Alphas> samples;

    Overlay() {
        QPalette palette = window.palette();
        palette.setColor(QPalette::Window, kBlue);
        window.setPalette(palette);
        window.setAutoFillBackground(true);
        window.resize(800, 500);
        below->setGeometry(10, 10, 100, 30);
        below->setFocus();
        QObject::connect(about, &AboutView::alphasChanged, [this] { samples.push_back(alphas()); });
        window.show();
    }

    Alphas alphas() const { return {about->backgroundAlpha(), about->foregroundAlpha()}; }
    bool covers() const { return about->isVisible() && window.childAt(below->geometry().center()) != below; }

    // Runs the fade's timers until `done`; false when the fade stops short or runs on far past
    // its hundred-odd steps.
    [[nodiscard]] bool runUntil(const std::function<bool()>& done) {
        while (!done()) {
            if (!about->isFading() || samples.size() > 1000) return false;
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        return true;
    }
    [[nodiscard]] bool settle() {
        return runUntil([this] { return !about->isFading(); });
    }
};

// In: both alphas only rise, the content only once the backdrop is at 1; out, the mirror image.
// Either way each alpha ends one step past its end value.
void expectFaded(bool in, const std::vector<Alphas>& s) {
    const auto ahead = [in](double a, double b) { return in ? a > b : a < b; };
    for (size_t i = 1; i < s.size(); ++i) {
        EXPECT_FALSE(ahead(s[i - 1].background, s[i].background) || ahead(s[i - 1].foreground, s[i].foreground)) << i;
        const bool second = in ? s[i].foreground != s[i - 1].foreground : s[i].background != s[i - 1].background;
        const double firstDone = in ? s[i - 1].background - 1.0 : -s[i - 1].foreground;
        EXPECT_TRUE(!second || firstDone >= 0) << "second stage moved early at " << i;
    }
    ASSERT_FALSE(s.empty());
    EXPECT_DOUBLE_EQ(s.back().background, in ? 1.02 : -0.02);
    EXPECT_DOUBLE_EQ(s.back().foreground, in ? 1.02 : -0.02);
}

TEST(AboutView, FadesInOverTheWholeWindowThenOutAndLeaves) {
    Overlay o;
    EXPECT_FALSE(o.about->isVisible()) << "shown with the window before any request";

    o.about->ShowAbout(true, &o.window);
    EXPECT_TRUE(o.utils.statusIsModal());
    EXPECT_TRUE(o.covers());
    ASSERT_TRUE(o.settle());
    expectFaded(true, o.samples);
    EXPECT_EQ(o.window.focusWidget(), &o.about->closeButton());
    QTest::keyClick(&o.about->closeButton(), Qt::Key_Tab);
    EXPECT_EQ(o.window.focusWidget(), &o.about->closeButton()) << "Tab left the card";
    o.window.resize(1000, 700);
    EXPECT_EQ(o.about->geometry(), o.window.rect());

    o.samples.clear();
    o.about->ShowAbout(false, &o.window);
    EXPECT_FALSE(o.utils.statusIsModal());
    EXPECT_TRUE(o.covers()) << "left before the fade";
    ASSERT_TRUE(o.settle());
    expectFaded(false, o.samples);
    EXPECT_FALSE(o.covers());
    EXPECT_EQ(o.window.grab().toImage().pixelColor(500, 650).rgb(), kBlue.rgb()) << "the tint remains";
    EXPECT_EQ(o.window.focusWidget(), o.below) << "the keyboard stayed on the hidden card";
}

TEST(AboutView, ARequestDuringAFadeReversesItFromWhereItStands) {
    const struct {
        bool show;
        std::function<bool(const Alphas&)> when;
    } cases[] = {
        {false, [](const Alphas& a) { return a.background >= 0.3; }},  // hide while the backdrop rises
        {true, [](const Alphas& a) { return a.background <= 0.5; }},   // show while the backdrop falls
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.show);
        Overlay o;
        o.about->ShowAbout(true, &o.window);
        if (c.show) {
            ASSERT_TRUE(o.settle());
            o.about->ShowAbout(false, &o.window);
        }
        ASSERT_TRUE(o.runUntil([&] { return c.when(o.alphas()); }));

        const Alphas before = o.alphas();
        o.about->ShowAbout(c.show, &o.window);
        EXPECT_EQ(o.utils.statusIsModal(), c.show);
        // No jump: only the step past its end that a finished stage leaves is taken back.
        o.samples = {o.alphas()};
        EXPECT_NEAR(o.samples[0].background, before.background, 0.021);
        EXPECT_NEAR(o.samples[0].foreground, before.foreground, 0.021);
        ASSERT_TRUE(o.settle());
        expectFaded(c.show, o.samples);
        EXPECT_EQ(o.covers(), c.show);
    }
}

TEST(AboutView, PointerEventsOnTheViewReachNothingBelowIt) {
    Overlay o;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&o.window));
    int clicks = 0;
    QObject::connect(o.below, &QPushButton::clicked, [&] { ++clicks; });
    const QPoint spot = o.below->geometry().center();
    QTest::mouseClick(o.window.windowHandle(), Qt::LeftButton, {}, spot);
    ASSERT_EQ(clicks, 1) << "the click does not reach the button even without the view";

    o.about->ShowAbout(true, &o.window);
    ASSERT_TRUE(o.settle());
    QTest::mouseClick(o.window.windowHandle(), Qt::LeftButton, {}, spot);
    EXPECT_EQ(clicks, 1);

    // Ignored events would go on to the parent: none may.
    struct ParentSpy : QObject {
        int seen = 0;
        bool eventFilter(QObject*, QEvent* e) override {
            seen += e->isPointerEvent();
            return false;
        }
    } spy;
    o.window.installEventFilter(&spy);
    const QPointF at(400, 250), global = o.about->mapToGlobal(at);
    QMouseEvent press(QEvent::MouseButtonPress, at, global, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, at, global, Qt::LeftButton, {}, {});
    QMouseEvent twice(QEvent::MouseButtonDblClick, at, global, Qt::LeftButton, Qt::LeftButton, {});
    QWheelEvent wheel(at, global, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    for (QEvent* e : std::initializer_list<QEvent*>{&press, &release, &twice, &wheel}) {
        QApplication::sendEvent(o.about, e);
        EXPECT_EQ(spy.seen, 0) << e->type();
    }
}

TEST(AboutView, EscapeAndCloseAskTheControllerToHide) {
    for (const bool escape : {true, false}) {
        SCOPED_TRACE(escape);
        Overlay o;
        o.about->ShowAbout(true, &o.window);
        ASSERT_TRUE(o.settle());
        int requests = 0;
        QObject::connect(o.about, &AboutView::hideRequested, [&] { ++requests; });
        if (escape)
            QTest::keyClick(&o.about->closeButton(), Qt::Key_Escape);
        else
            QTest::mouseClick(&o.about->closeButton(), Qt::LeftButton);
        EXPECT_EQ(requests, 1);
        // Hiding is the controller's call.
        EXPECT_TRUE(o.utils.statusIsModal());
        EXPECT_TRUE(o.covers());
    }
}

}  // namespace
