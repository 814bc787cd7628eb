// Draws a read-out panel offscreen in the LED font and keeps the picture as test output
// (readouts.png in the test's build folder), so that a person can look at the face.

#include "GPSData.h"
#include "GPSInfoPanel.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"
#include "ReadOutSample.h"

#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <gtest/gtest.h>


namespace {

// Pixels that differ from the top-left corner's colour, the background.
int inkedPixels(const QImage& image) {
    const QRgb background = image.pixel(0, 0);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) != background;
    return count;
}

TEST(ReadOutRenderTest, DrawsTheReadOutsInTheLEDFont) {
    LEDFontManager::Register();
    ASSERT_EQ(LEDFontName(), QStringLiteral("DigifaceWide Regular"));

    QWidget panelWidget;
    panelWidget.setStyleSheet(QStringLiteral("background: #1a1a1a; color: #ff3b2f;"));
    auto* grid = new QGridLayout(&panelWidget);
    auto label = [&](const QString& text, int row, int column, int span = 1) {
        auto* l = new QLabel(text, &panelWidget);
        grid->addWidget(l, row, column, 1, span);
        return l;
    };
    GPSInfoPanelLabels labels;
    labels.txtSpeed = label({}, 0, 0, 1);
    labels.txtSpeedUnit = label({}, 0, 1);
    labels.lblLatitude = label(QStringLiteral("LAT"), 1, 0);
    labels.txtLatitude = label({}, 1, 1);
    labels.lblLongitude = label(QStringLiteral("LON"), 2, 0);
    labels.txtLongitude = label({}, 2, 1);
    labels.lblDate = label(QStringLiteral("DATE"), 3, 0);
    labels.txtDate = label({}, 3, 1);
    labels.lblTime = label(QStringLiteral("TIME"), 4, 0);
    labels.txtTime = label({}, 4, 1);

    GPSUtils::sharedUtils().setUnitType(1);
    const GPSInfoPanel panel(labels, GPSUtils::sharedUtils());
    panel.setupFonts();
    panel.refreshUnits("00.00");
    panel.show(readOutSample());
    panelWidget.adjustSize();

    const QImage image = panelWidget.grab().toImage();
    ASSERT_FALSE(image.isNull());
    EXPECT_TRUE(image.save(QStringLiteral(DISPLAY_TEST_OUTPUT_DIR "/readouts.png")));

    // The speed's digits are drawn, not boxes of a missing face: "88.88" lights more segments
    // than "11.11" in a seven-segment face.
    auto inkOf = [&](const char* text) {
        labels.txtSpeed->setText(QString::fromLatin1(text));
        return inkedPixels(labels.txtSpeed->grab().toImage());
    };
    EXPECT_GT(inkOf("88.88"), 2 * inkOf("11.11"));
}

}  // namespace
