// The read-outs: which label takes which text of a sample, the idle texts, the unit's refresh,
// and the LED face of set-up, drawn.

#include "GPSData.h"
#include "GPSInfoPanel.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"

#include <QFontInfo>
#include <QImage>
#include <QLabel>
#include <QPixmap>
#include <QWidget>

#include <gtest/gtest.h>

#include <bit>
#include <map>
#include <set>
#include <string>

namespace {

// 22.5 N, 114.25 W (the minus sign shows), 62.14 MPH on 12/31/16 at 20:05:09, in the cameras'
// fixed-point form, which keeps the time as recorded.
GPSData readOutSample() {
    GPSDATA raw;
    raw.rmcinfo.Year = 2016, raw.rmcinfo.Month = 12, raw.rmcinfo.Day = 31;
    raw.rmcinfo.Hour = 20, raw.rmcinfo.Minute = 5, raw.rmcinfo.Second = 9;
    raw.rmcinfo.Latitude = std::bit_cast<float>(int32_t{225000000});  // 1e-7 degree
    raw.rmcinfo.Longitude = std::bit_cast<float>(int32_t{-1142500000});
    raw.rmcinfo.Speed = std::bit_cast<float>(uint32_t{2778});  // cm/s
    GPSData data;
    data.SetData(raw, false);
    return data;
}

class GPSInfoPanelTest : public ::testing::Test {
protected:
    GPSInfoPanelTest() {
#define LABEL(name) \
    { #name, &GPSInfoPanelLabels::name }
        const std::pair<const char*, QLabel * GPSInfoPanelLabels::*> members[] = {
            LABEL(txtSpeed),     LABEL(txtSpeedUnit), LABEL(lblLatitude), LABEL(txtLatitude),
            LABEL(lblLongitude), LABEL(txtLongitude), LABEL(lblDate),     LABEL(txtDate),
            LABEL(lblTime),      LABEL(txtTime),      LABEL(txtMapView)};
#undef LABEL
        for (const auto& [name, member] : members)
            outlets_.*member = labels_[name] =
                new QLabel(QStringLiteral("layout %1").arg(QLatin1String(name)), &window_);
        settings().setUnitType(0);
    }

    static GPSUtils& settings() { return GPSUtils::sharedUtils(); }
    std::string text(const std::string& name) { return labels_.at(name)->text().toStdString(); }

    // The labels in `texts` show those texts; every other one still shows what the layout gave it.
    void expectTexts(const std::map<std::string, std::string>& texts) {
        for (const auto& [name, label] : labels_) {
            const auto written = texts.find(name);
            EXPECT_EQ(text(name), written != texts.end() ? written->second : "layout " + name);
        }
    }

    QWidget window_;
    std::map<std::string, QLabel*> labels_;
    GPSInfoPanelLabels outlets_;
};

TEST_F(GPSInfoPanelTest, ASampleFillsTheFiveReadOutsAndResetWritesTheIdleTexts) {
    const GPSInfoPanel panel(outlets_, settings());
    panel.show(readOutSample());
    expectTexts({{"txtSpeed", "62.14"},
                 {"txtLatitude", "22.50000"},
                 {"txtLongitude", "-114.25000"},
                 {"txtDate", "12/31/16"},
                 {"txtTime", "20:05:09"}});
    panel.reset();
    expectTexts({{"txtSpeed", "00.00"},
                 {"txtLatitude", "00.00000"},
                 {"txtLongitude", "00.00000"},
                 {"txtDate", "00/00/00"},
                 {"txtTime", "00:00:00"},
                 {"txtMapView", ""}});
}

TEST_F(GPSInfoPanelTest, RefreshingUnitsWritesTheUnitAndTheGivenSpeedOnly) {
    const GPSInfoPanel panel(outlets_, settings());
    for (const auto& [unitType, unitName] : {std::pair<uint64_t, const char*>{1, "KM/H"}, {2, "KM/H"}, {0, "MPH"}}) {
        SCOPED_TRACE(unitType);
        settings().setUnitType(unitType);
        panel.refreshUnits("042.00");
        expectTexts({{"txtSpeedUnit", unitName}, {"txtSpeed", "042.00"}});
    }
}

TEST_F(GPSInfoPanelTest, MissingAndVanishedLabelsAreSkipped) {
    const GPSInfoPanel unconnected(GPSInfoPanelLabels{}, settings());
    unconnected.setupFonts();
    unconnected.show(readOutSample());
    unconnected.reset();
    unconnected.refreshUnits("00.00");

    const GPSInfoPanel panel(outlets_, settings());
    delete labels_["txtSpeed"];
    labels_.erase("txtSpeed");
    panel.setupFonts();
    panel.show(readOutSample());
    panel.reset();
    panel.refreshUnits("00.00");
    EXPECT_EQ(text("txtTime"), "00:00:00");
}

TEST_F(GPSInfoPanelTest, AWordTheLEDFaceCannotSpellWholeIsInThePlainFace) {
    LEDFontManager::Register();
    labels_["lblLatitude"]->setText(QStringLiteral("VĨ ĐỘ"));
    labels_["lblLongitude"]->setText(QStringLiteral("LON"));
    labels_["lblDate"]->setText(QStringLiteral("日付"));
    GPSInfoPanel(outlets_, settings()).setupFonts();
    EXPECT_NE(QFontInfo(labels_["lblLatitude"]->font()).family(), QStringLiteral("DigifaceWide"));
    EXPECT_EQ(labels_["lblLatitude"]->font().pointSizeF(), 22);
    EXPECT_NE(QFontInfo(labels_["lblDate"]->font()).family(), QStringLiteral("DigifaceWide"));
    EXPECT_EQ(QFontInfo(labels_["lblLongitude"]->font()).family(), QStringLiteral("DigifaceWide"));
}

// Pixels that differ from the top-left corner's colour, the background.
int inkedPixels(const QImage& image) {
    const QRgb background = image.pixel(0, 0);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) count += image.pixel(x, y) != background;
    return count;
}

TEST_F(GPSInfoPanelTest, SetUpGivesTheReadOutsTheLEDFaceAtTheirSizes) {
    LEDFontManager::Register();
    const QFont unitFont = labels_["txtSpeedUnit"]->font();
    const GPSInfoPanel panel(outlets_, settings());
    panel.setupFonts();
    const std::map<std::string, qreal> sizes = {
        {"txtSpeed", 50}, {"lblLatitude", 22}, {"txtLatitude", 22}, {"lblLongitude", 22}, {"txtLongitude", 22},
        {"lblDate", 20},  {"txtDate", 20},     {"lblTime", 20},     {"txtTime", 20},
    };
    for (const auto& [name, size] : sizes) {
        SCOPED_TRACE(name);
        EXPECT_EQ(labels_[name]->font().pointSizeF(), size);
        EXPECT_EQ(QFontInfo(labels_[name]->font()).family(), QStringLiteral("DigifaceWide"));
    }
    EXPECT_EQ(labels_["txtSpeedUnit"]->font(), unitFont) << "the unit keeps the layout's font";
    EXPECT_EQ(labels_["txtMapView"]->font(), unitFont);

    // The digits are drawn, not boxes of a missing face: "88.88" lights more segments than "11.11"
    // in a seven-segment face.
    auto inkOf = [&](const char* digits) {
        labels_["txtSpeed"]->setText(QString::fromLatin1(digits));
        labels_["txtSpeed"]->adjustSize();
        return inkedPixels(labels_["txtSpeed"]->grab().toImage());
    };
    EXPECT_GT(inkOf("88.88"), 2 * inkOf("11.11"));
}

}  // namespace
