// The read-outs: which label takes which text of a sample, the idle texts, the unit's refresh,
// and the LED fonts of set-up.

#include "GPSData.h"
#include "GPSInfoPanel.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"
#include "ReadOutSample.h"

#include <QFontInfo>
#include <QLabel>
#include <QWidget>

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <map>
#include <string>

namespace {

class GPSInfoPanelTest : public ::testing::Test {
protected:
    GPSInfoPanelTest() {
        const char* names[] = {"txtSpeed", "txtSpeedUnit", "lblLatitude", "txtLatitude", "lblLongitude", "txtLongitude",
                               "lblDate",  "txtDate",      "lblTime",     "txtTime",     "txtMapView"};
        for (const char* name : names) {
            auto* label = new QLabel(QStringLiteral("layout %1").arg(QLatin1String(name)), &window_);
            label->setObjectName(QLatin1String(name));
            labels_[name] = label;
        }
        settings().setUnitType(0);
    }

    static GPSUtils& settings() { return GPSUtils::sharedUtils(); }

    GPSInfoPanelLabels outlets() {
        return {.txtSpeed = labels_["txtSpeed"],
                .txtSpeedUnit = labels_["txtSpeedUnit"],
                .lblLatitude = labels_["lblLatitude"],
                .txtLatitude = labels_["txtLatitude"],
                .lblLongitude = labels_["lblLongitude"],
                .txtLongitude = labels_["txtLongitude"],
                .lblDate = labels_["lblDate"],
                .txtDate = labels_["txtDate"],
                .lblTime = labels_["lblTime"],
                .txtTime = labels_["txtTime"],
                .txtMapView = labels_["txtMapView"]};
    }

    std::string text(const std::string& name) { return labels_.at(name)->text().toStdString(); }

    // Every label not in `written` still shows what the layout gave it.
    void expectUntouchedExcept(std::initializer_list<std::string> written) {
        for (const auto& [name, label] : labels_) {
            if (std::find(written.begin(), written.end(), name) != written.end()) continue;
            EXPECT_EQ(label->text().toStdString(), "layout " + name);
        }
    }

    QWidget window_;
    std::map<std::string, QLabel*> labels_;
};

TEST_F(GPSInfoPanelTest, ASampleFillsTheFiveReadOutsWithItsOwnTexts) {
    const GPSInfoPanel panel(outlets(), settings());
    const GPSData data = readOutSample();
    panel.show(data);
    EXPECT_EQ(text("txtSpeed"), "62.14");
    EXPECT_EQ(text("txtLatitude"), "22.50000");
    EXPECT_EQ(text("txtLongitude"), "-114.25000");
    EXPECT_EQ(text("txtDate"), "12/31/16");
    EXPECT_EQ(text("txtTime"), "20:05:09");
    expectUntouchedExcept({"txtSpeed", "txtLatitude", "txtLongitude", "txtDate", "txtTime"});
}

TEST_F(GPSInfoPanelTest, ResetWritesTheIdleTextsAndEmptiesTheMapText) {
    const GPSInfoPanel panel(outlets(), settings());
    panel.show(readOutSample());
    panel.reset();
    EXPECT_EQ(text("txtSpeed"), "00.00");
    EXPECT_EQ(text("txtLatitude"), "00.00000");
    EXPECT_EQ(text("txtLongitude"), "00.00000");
    EXPECT_EQ(text("txtDate"), "00/00/00");
    EXPECT_EQ(text("txtTime"), "00:00:00");
    EXPECT_EQ(text("txtMapView"), "");
    expectUntouchedExcept({"txtSpeed", "txtLatitude", "txtLongitude", "txtDate", "txtTime", "txtMapView"});
}

TEST_F(GPSInfoPanelTest, RefreshingUnitsWritesTheUnitAndTheGivenSpeedOnly) {
    const GPSInfoPanel panel(outlets(), settings());
    const struct {
        uint64_t unitType;
        const char* unitName;
    } cases[] = {{0, "MPH"}, {1, "KM/H"}, {2, "KM/H"}, {0, "MPH"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.unitType);
        settings().setUnitType(c.unitType);
        panel.refreshUnits("042.00");
        EXPECT_EQ(text("txtSpeedUnit"), c.unitName);
        EXPECT_EQ(text("txtSpeed"), "042.00");
        expectUntouchedExcept({"txtSpeedUnit", "txtSpeed"});
    }
}

TEST_F(GPSInfoPanelTest, MissingAndVanishedLabelsAreSkipped) {
    const GPSInfoPanel unconnected(GPSInfoPanelLabels{}, settings());
    unconnected.setupFonts();
    unconnected.show(readOutSample());
    unconnected.reset();
    unconnected.refreshUnits("00.00");

    const GPSInfoPanel panel(outlets(), settings());
    delete labels_["txtSpeed"];
    labels_.erase("txtSpeed");
    panel.setupFonts();
    panel.show(readOutSample());
    panel.reset();
    panel.refreshUnits("00.00");
    EXPECT_EQ(text("txtTime"), "00:00:00");
}

TEST_F(GPSInfoPanelTest, SetUpGivesTheReadOutsTheLEDFontAtTheirSizes) {
    LEDFontManager::Register();
    const QFont unitFont = labels_["txtSpeedUnit"]->font();
    const GPSInfoPanel panel(outlets(), settings());
    panel.setupFonts();
    const std::map<std::string, qreal> sizes = {
        {"txtSpeed", 50},    {"lblLatitude", 22}, {"txtLatitude", 22}, {"lblLongitude", 22}, {"txtLongitude", 22},
        {"lblDate", 20},     {"txtDate", 20},     {"lblTime", 20},     {"txtTime", 20},
    };
    for (const auto& [name, size] : sizes) {
        SCOPED_TRACE(name);
        EXPECT_EQ(labels_[name]->font().pointSizeF(), size);
        EXPECT_EQ(QFontInfo(labels_[name]->font()).family(), QStringLiteral("DigifaceWide"));
    }
    EXPECT_EQ(labels_["txtSpeedUnit"]->font(), unitFont) << "the unit keeps the layout's font";
    EXPECT_EQ(labels_["txtMapView"]->font(), unitFont);
}

}  // namespace
