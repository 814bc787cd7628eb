#include "GPSButton.h"
#include "SkinTestSupport.h"

#include <QDir>
#include <QSvgRenderer>

#include <gtest/gtest.h>

namespace {

const QStringList kNames = {"prev", "backward", "play",       "pause", "forward", "next",
                            "stop", "snapshot", "fullscreen", "mute",  "sound"};
const QStringList kVariants = {"", "-hover", "-pressed"};

TEST(ButtonImagesSkin, EveryShippedPictureIsAValid32By32Svg) {
    QStringList expected;
    for (const QString& name : kNames)
        for (const QString& variant : kVariants) expected << name + variant + ".svg";
    expected.sort();
    EXPECT_EQ(QDir(QStringLiteral(":/buttons")).entryList(QDir::Files, QDir::Name), expected);
    for (const QString& file : expected) {
        QSvgRenderer renderer(QStringLiteral(":/buttons/") + file);
        EXPECT_TRUE(renderer.isValid()) << file.toStdString();
        EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 32, 32)) << file.toStdString();
    }
}

// Through the button, as the window loads them: the white glyph keeps a dark edge that sets it
// off the inactive window's light grey.
TEST(ButtonImagesSkin, GlyphReadsOnTheInactiveGrey) {
    for (const QString& name : kNames) {
        GPSButton button;
        button.resize(32, 32);
        button.setImages(name);
        ASSERT_EQ(button.downImage(), ":/buttons/" + name + "-pressed.svg");
        const QImage onGrey = renderOn(button, kInactiveGrey);
        int white = 0, dark = 0;
        for (int y = 0; y < onGrey.height(); ++y)
            for (int x = 0; x < onGrey.width(); ++x) {
                const int grey = qGray(onGrey.pixel(x, y));
                white += grey > 250;
                dark += grey < 200;
            }
        EXPECT_GT(white, 20) << name.toStdString();
        EXPECT_GT(dark, 20) << name.toStdString();
    }
}

}  // namespace
