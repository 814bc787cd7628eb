#include "GPSButton.h"
#include "GPSUtils.h"
#include "SkinTestSupport.h"

#include <QApplication>
#include <QEnterEvent>
#include <QFile>
#include <QMouseEvent>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <tuple>
#include <vector>

namespace {

const QColor kNormal(255, 0, 0);
const QColor kOver(0, 255, 0);
const QColor kDown(255, 255, 0);

// A 32 by 32 picture of the given rectangles, each "x width colour" over the full height.
QString svgOf(std::initializer_list<std::tuple<int, int, QColor>> rects) {
    QString svg = QStringLiteral("<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 32 32\">");
    for (const auto& [x, width, colour] : rects)
        svg += QStringLiteral("<rect x=\"%1\" width=\"%2\" height=\"32\" fill=\"%3\"/>")
                   .arg(x)
                   .arg(width)
                   .arg(colour.name());
    return svg + QStringLiteral("</svg>");
}

QString flatSvg(const QColor& colour) { return svgOf({{0, 32, colour}}); }

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

// One thing the user or the window does to the button.
using Step = void (*)(Fixture&);
const Step Enter = [](Fixture& f) { f.send(QEvent::Enter); };
const Step Leave = [](Fixture& f) { f.send(QEvent::Leave); };
const Step Press = [](Fixture& f) { f.send(QEvent::MouseButtonPress); };
const Step Release = [](Fixture& f) { f.send(QEvent::MouseButtonRelease); };
const Step Modal = [](Fixture& f) { f.utils.setStatusIsModal(true); };
const Step NotModal = [](Fixture& f) { f.utils.setStatusIsModal(false); };
const Step Disable = [](Fixture& f) { f.button.setEnabled(false); };
const Step Enable = [](Fixture& f) { f.button.setEnabled(true); };

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

class ButtonSkinPicture : public ::testing::TestWithParam<PictureCase> {};

TEST_P(ButtonSkinPicture, FollowsPointerPressAndEnabledState) {
    const PictureCase& c = GetParam();
    Fixture f;
    f.button.setDefaultImage(f.write("normal.svg", flatSvg(kNormal)));
    if (c.overImage) f.button.setOverImage(f.write("over.svg", flatSvg(kOver)));
    if (c.downImage) f.button.setDownImage(f.write("down.svg", flatSvg(kDown)));
    for (Step step : c.steps) step(f);
    const QColor expected = blend(c.picture, kWindowBlue, c.opacity);
    const QColor drawn = f.centre();
    EXPECT_TRUE(sameColour(drawn, expected))
        << drawn.name().toStdString() << " instead of " << expected.name().toStdString();
    EXPECT_EQ(f.clicks, c.clicks);
}

INSTANTIATE_TEST_SUITE_P(
    Steps, ButtonSkinPicture,
    ::testing::Values(PictureCase{"Untouched", true, true, {}, kNormal, 1.0, 0},
                      PictureCase{"Hovered", true, true, {Enter}, kOver, 1.0, 0},
                      PictureCase{"HoveredThenLeft", true, true, {Enter, Leave}, kNormal, 1.0, 0},
                      PictureCase{"HoverWithoutOverImage", false, true, {Enter}, kNormal, 1.0, 0},
                      PictureCase{"EnteredWhileModal", true, true, {Modal, Enter}, kNormal, 1.0, 0},
                      PictureCase{"ModalEnded", true, true, {Modal, Enter, NotModal}, kNormal, 1.0, 0},
                      PictureCase{"HoveredBeforeModal", true, true, {Enter, Modal}, kOver, 1.0, 0},
                      PictureCase{"HoveredBeforeModalThenLeft", true, true, {Enter, Modal, Leave}, kNormal, 1.0, 0},
                      PictureCase{"Pressed", true, true, {Enter, Press}, kDown, 1.0, 0},
                      PictureCase{"PressWithoutDownImage", true, false, {Enter, Press}, kNormal, 1.0, 0},
                      PictureCase{"Clicked", true, true, {Enter, Press, Release}, kOver, 1.0, 1},
                      PictureCase{"LeftWhilePressed", true, true, {Enter, Press, Leave}, kNormal, 1.0, 0},
                      PictureCase{
                          "LeftWhilePressedThenReleased", true, true, {Enter, Press, Leave, Release}, kNormal, 1.0, 0},
                      PictureCase{"Disabled", true, true, {Disable}, kNormal, 0.5, 0},
                      PictureCase{"DisabledWhileHovered", true, true, {Enter, Disable}, kOver, 0.5, 0},
                      PictureCase{"Reenabled", true, true, {Disable, Enable}, kNormal, 1.0, 0}),
    [](const auto& info) { return info.param.name; });

TEST(ButtonSkin, DrawsSharplyAtTwiceTheResolutionEnabledOrNot) {
    // Left half red, right half green: drawn as vectors, the edge falls between two device pixels.
    Fixture f;
    f.button.setDefaultImage(f.write("split.svg", svgOf({{0, 16, kNormal}, {16, 16, kOver}})));
    for (bool enabled : {true, false}) {
        f.button.setEnabled(enabled);
        const double opacity = enabled ? 1.0 : 0.5;
        const QImage image = renderOn(f.button, kWindowBlue, 2.0);
        ASSERT_EQ(image.width(), 64);
        EXPECT_TRUE(sameColour(image.pixelColor(31, 20), blend(kNormal, kWindowBlue, opacity)))
            << "enabled " << enabled;
        EXPECT_TRUE(sameColour(image.pixelColor(32, 20), blend(kOver, kWindowBlue, opacity))) << "enabled " << enabled;
    }
}

TEST(ButtonSkin, DisabledPictureFadesAsAWholeNotLayerByLayer) {
    // Red entirely covered by green: faded as one picture, no red may show through.
    Fixture f;
    f.button.setDefaultImage(f.write("layers.svg", svgOf({{0, 32, kNormal}, {0, 32, kOver}})));
    f.button.setEnabled(false);
    EXPECT_TRUE(sameColour(f.centre(), blend(kOver, kWindowBlue, 0.5))) << f.centre().name().toStdString();
}

TEST(ButtonSkin, MissingOrBrokenPictureLeavesItAbsentAndShowsTheText) {
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
