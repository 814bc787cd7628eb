#include "GPSButton.h"
#include "GPSUtils.h"
#include "SkinTestSupport.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

const QColor kNormal(255, 0, 0);
const QColor kOver(0, 255, 0);
const QColor kDown(255, 255, 0);

QString flatSvg(const QColor& colour, int width = 32, int height = 32) {
    return QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%1\" height=\"%2\" viewBox=\"0 0 %1 %2\">"
                          "<rect width=\"%1\" height=\"%2\" fill=\"%3\"/></svg>")
        .arg(width)
        .arg(height)
        .arg(colour.name());
}

// A button with flat pictures of distinct colours, so a pixel tells which one was drawn, and
// settings of its own whose modal flag the test flips.
struct Fixture {
    QTemporaryDir dir;
    GPSUtils utils{SettingsLocation{.userFile = (dir.path() + "/Env.plist").toStdString(), .shippedFile = {}}};
    GPSButton button;
    int clicks = 0;

    Fixture() {
        button.setUtils(&utils);
        button.resize(32, 32);
        QObject::connect(&button, &QAbstractButton::clicked, [this] { ++clicks; });
    }

    QString write(const QString& name, const QString& svg) {
        const QString path = dir.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(svg.toUtf8());
        return path;
    }

    QColor centre() { return renderOn(button, kWindowBlue).pixelColor(16, 16); }

    void send(QEvent::Type type) {
        const QPointF inside(16, 16);
        if (type == QEvent::Enter) {
            QEnterEvent event(inside, inside, button.mapToGlobal(inside));
            QApplication::sendEvent(&button, &event);
        } else if (type == QEvent::Leave) {
            QEvent event(QEvent::Leave);
            QApplication::sendEvent(&button, &event);
        } else {
            const Qt::MouseButtons held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, inside, button.mapToGlobal(inside), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(&button, &event);
        }
    }
};

enum class Step { Enter, Leave, Press, Release, Modal, NotModal, Disable, Enable };

struct PictureCase {
    std::string name;
    bool overImage;
    bool downImage;
    std::vector<Step> steps;
    QColor picture;
    double opacity;
    int clicks;
};

void PrintTo(const PictureCase& c, std::ostream* out) { *out << c.name; }

class ButtonPicture : public ::testing::TestWithParam<PictureCase> {};

TEST_P(ButtonPicture, FollowsPointerPressAndEnabledState) {
    const PictureCase& c = GetParam();
    Fixture f;
    f.button.setDefaultImage(f.write("normal.svg", flatSvg(kNormal)));
    if (c.overImage) f.button.setOverImage(f.write("over.svg", flatSvg(kOver)));
    if (c.downImage) f.button.setDownImage(f.write("down.svg", flatSvg(kDown)));
    for (Step step : c.steps) {
        switch (step) {
            case Step::Enter: f.send(QEvent::Enter); break;
            case Step::Leave: f.send(QEvent::Leave); break;
            case Step::Press: f.send(QEvent::MouseButtonPress); break;
            case Step::Release: f.send(QEvent::MouseButtonRelease); break;
            case Step::Modal: f.utils.setStatusIsModal(true); break;
            case Step::NotModal: f.utils.setStatusIsModal(false); break;
            case Step::Disable: f.button.setEnabled(false); break;
            case Step::Enable: f.button.setEnabled(true); break;
        }
    }
    const QColor expected = blend(c.picture, kWindowBlue, c.opacity);
    const QColor drawn = f.centre();
    EXPECT_TRUE(near(drawn, expected)) << drawn.name().toStdString() << " instead of " << expected.name().toStdString();
    EXPECT_EQ(f.clicks, c.clicks);
}

using S = Step;
INSTANTIATE_TEST_SUITE_P(
    Steps, ButtonPicture,
    ::testing::Values(
        PictureCase{"Untouched", true, true, {}, kNormal, 1.0, 0},
        PictureCase{"Hovered", true, true, {S::Enter}, kOver, 1.0, 0},
        PictureCase{"HoveredThenLeft", true, true, {S::Enter, S::Leave}, kNormal, 1.0, 0},
        PictureCase{"HoverWithoutOverImage", false, true, {S::Enter}, kNormal, 1.0, 0},
        PictureCase{"EnteredWhileModal", true, true, {S::Modal, S::Enter}, kNormal, 1.0, 0},
        PictureCase{"ModalEnded", true, true, {S::Modal, S::Enter, S::NotModal}, kNormal, 1.0, 0},
        PictureCase{"HoveredBeforeModal", true, true, {S::Enter, S::Modal}, kOver, 1.0, 0},
        PictureCase{"HoveredBeforeModalThenLeft", true, true, {S::Enter, S::Modal, S::Leave}, kNormal, 1.0, 0},
        PictureCase{"Pressed", true, true, {S::Enter, S::Press}, kDown, 1.0, 0},
        PictureCase{"PressWithoutDownImage", true, false, {S::Enter, S::Press}, kNormal, 1.0, 0},
        PictureCase{"Clicked", true, true, {S::Enter, S::Press, S::Release}, kOver, 1.0, 1},
        PictureCase{"LeftWhilePressed", true, true, {S::Enter, S::Press, S::Leave}, kNormal, 1.0, 0},
        PictureCase{"LeftWhilePressedThenReleased", true, true, {S::Enter, S::Press, S::Leave, S::Release},
                    kNormal, 1.0, 0},
        PictureCase{"Disabled", true, true, {S::Disable}, kNormal, 0.5, 0},
        PictureCase{"DisabledWhileHovered", true, true, {S::Enter, S::Disable}, kOver, 0.5, 0},
        PictureCase{"Reenabled", true, true, {S::Disable, S::Enable}, kNormal, 1.0, 0}),
    [](const auto& info) { return info.param.name; });

TEST(GPSButton, RedrawsAtOnceWhenEnabledOrDisabled) {
    Fixture f;
    f.button.setDefaultImage(f.write("normal.svg", flatSvg(kNormal)));
    int paints = 0;
    struct PaintCounter : QObject {
        int& count;
        explicit PaintCounter(int& c) : count(c) {}
        bool eventFilter(QObject*, QEvent* event) override {
            if (event->type() == QEvent::Paint) ++count;
            return false;
        }
    } counter(paints);
    f.button.installEventFilter(&counter);
    f.button.show();
    QApplication::processEvents();
    for (bool enabled : {false, true}) {
        const int before = paints;
        f.button.setEnabled(enabled);
        QApplication::processEvents();
        EXPECT_GT(paints, before) << "enabled " << enabled;
        EXPECT_TRUE(near(f.centre(), blend(kNormal, kWindowBlue, enabled ? 1.0 : 0.5)));
    }
}

TEST(GPSButton, DrawsSharplyAtTwiceTheResolutionEnabledOrNot) {
    // Left half red, right half green: drawn as vectors, the edge falls between two device pixels.
    Fixture f;
    f.button.setDefaultImage(f.write("split.svg", QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" "
                                                                 "viewBox=\"0 0 32 32\"><rect width=\"16\" height=\"32\" "
                                                                 "fill=\"#ff0000\"/><rect x=\"16\" width=\"16\" "
                                                                 "height=\"32\" fill=\"#00ff00\"/></svg>")));
    for (bool enabled : {true, false}) {
        f.button.setEnabled(enabled);
        const double opacity = enabled ? 1.0 : 0.5;
        const QImage image = renderOn(f.button, kWindowBlue, 2.0);
        ASSERT_EQ(image.width(), 64);
        EXPECT_TRUE(near(image.pixelColor(31, 20), blend(kNormal, kWindowBlue, opacity))) << "enabled " << enabled;
        EXPECT_TRUE(near(image.pixelColor(32, 20), blend(kOver, kWindowBlue, opacity))) << "enabled " << enabled;
    }
}

TEST(GPSButton, SizeHintIs32HighInThePicturesAspect) {
    struct Case {
        QString svg;
        QSize hint;
    };
    for (const Case& c : {Case{QString(), {32, 32}}, Case{flatSvg(kNormal, 10, 10), {32, 32}},
                          Case{flatSvg(kNormal, 60, 30), {64, 32}}}) {
        Fixture f;
        if (!c.svg.isEmpty()) f.button.setDefaultImage(f.write("picture.svg", c.svg));
        EXPECT_EQ(f.button.sizeHint(), c.hint);
    }
}

TEST(GPSButton, MissingOrBrokenPictureLeavesItAbsentAndShowsTheText) {
    for (const char* contents : {static_cast<const char*>(nullptr), "<svg this is not"}) {
        Fixture f;
        const QString path = contents ? f.write("broken.svg", QString::fromUtf8(contents)) : f.dir.filePath("none.svg");
        f.button.setDefaultImage(path);
        f.button.setText(QStringLiteral("WWW"));
        EXPECT_TRUE(f.button.defaultImage().isEmpty());
        const QImage image = renderOn(f.button, kWindowBlue);
        int white = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) white += image.pixelColor(x, y) == QColor(Qt::white);
        EXPECT_GT(white, 0) << "the text stands in for the picture";
    }
}

}  // namespace
