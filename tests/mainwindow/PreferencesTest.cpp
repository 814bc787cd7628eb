// File, Preferences… over the controller and the scripted player: one dialog, each change stored
// and the menus kept in step both ways, values out of range refused beside their field, the clock
// correction reaching the read-outs and the trips, and Clear Cache.

#include "ControllerHarness.h"

#include "ClipCatalog.h"
#include "GPSUtils.h"
#include "PreferencesDialog.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <tuple>

namespace {

class PreferencesTest : public ControllerHarness, public ::testing::Test {
protected:
    PreferencesTest() {
        // The menu items the dialog keeps in step with, as the window's connections set them up.
        MainWindowOutlets o = controller.outlets();
        o.unitKMH = menuItem(1);
        o.unitMPH = menuItem(0);
        o.actionContinuousPlay = menuItem(0);
        o.mapOpenStreetMap = menuItem(0);
        o.mapMBTiles = menuItem(0);
        o.mapTileFolder = menuItem(0);
        o.mapWorkOffline = menuItem(0);
        controller.setOutlets(o);
        controller.RefreshMenu();
        controller.OnPreference(nullptr);
        dialog = controller.preferencesDialog();
    }

    template <typename T>
    T* control(const char* name) const {
        T* found = dialog->findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    // Types into a line edit and leaves it, as Tab would.
    void typeInto(const char* name, const QString& text) {
        auto* field = control<QLineEdit>(name);
        field->setText(text);
        emit field->editingFinished();
    }
    void chooseMapRow(int row) {
        auto* combo = control<QComboBox>("mapSource");
        combo->setCurrentIndex(row);
        emit combo->activated(row);
    }
    bool messageShown(const char* name) const { return !control<QLabel>(name)->isHidden(); }
    GPSUtils& stored() { return settings.utils(); }

    PreferencesDialog* dialog = nullptr;

private:
    QAction* menuItem(qulonglong data) {
        auto* action = new QAction(&window);
        action->setCheckable(true);
        action->setData(data);
        return action;
    }
};

TEST_F(PreferencesTest, OneDialogIsRaisedAgain) {
    ASSERT_NE(dialog, nullptr);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(dialog->isModal());
    controller.OnPreference(nullptr);
    EXPECT_EQ(controller.preferencesDialog(), dialog);
    EXPECT_EQ(window.findChildren<PreferencesDialog*>().size(), 1);
}

TEST_F(PreferencesTest, UnitsAndContinuousPlayStayInStepWithTheMenus) {
    control<QRadioButton>("unitMPH")->setChecked(true);
    EXPECT_EQ(stored().unitType(), 0u);
    EXPECT_TRUE(controller.outlets().unitMPH->isChecked());
    EXPECT_FALSE(controller.outlets().unitKMH->isChecked());

    controller.OnUnitChanged(controller.outlets().unitKMH);
    EXPECT_TRUE(control<QRadioButton>("unitKMH")->isChecked());

    control<QCheckBox>("continuousPlay")->setChecked(true);
    EXPECT_TRUE(stored().continuousPlay());
    EXPECT_TRUE(controller.outlets().actionContinuousPlay->isChecked());
    controller.OnContinuousPlayChanged(false);
    EXPECT_FALSE(control<QCheckBox>("continuousPlay")->isChecked());
}

TEST_F(PreferencesTest, TheTileSourceStaysInStepWithTheMapMenu) {
    chooseMapRow(0);
    EXPECT_EQ(stored().mapSource(), "osm");
    EXPECT_TRUE(controller.outlets().mapOpenStreetMap->isChecked());

    controller.OnMapSourceChanged("offline");
    EXPECT_EQ(control<QComboBox>("mapSource")->currentIndex(), 4);

    const QString server = QStringLiteral("http://127.0.0.1:9/{z}/{x}/{y}.png");
    chooseMapRow(3);
    typeInto("customUrl", server);
    EXPECT_EQ(stored().mapSource(), "url:" + server.toStdString());
    EXPECT_FALSE(messageShown("customUrlError"));
    for (QAction* item : {controller.outlets().mapOpenStreetMap, controller.outlets().mapWorkOffline})
        EXPECT_FALSE(item->isChecked());
}

TEST_F(PreferencesTest, ValuesOutOfRangeAreRefusedBesideTheirField) {
    stored().setMapSource("offline");
    const struct {
        const char* name;
        std::function<void()> enter;
        const char* message;
    } cases[] = {
        {"cache below 10 MB", [this] { control<QSpinBox>("cacheSize")->setValue(5); }, "cacheError"},
        {"cache above 2000 MB", [this] { control<QSpinBox>("cacheSize")->setValue(2500); }, "cacheError"},
        {"a day or more", [this] { typeInto("clockCorrection", "+24:00"); }, "clockCorrectionError"},
        {"not a time", [this] { typeInto("clockCorrection", "soon"); }, "clockCorrectionError"},
        {"not http", [this] { chooseMapRow(3); typeInto("customUrl", "ftp://a.org/{z}/{x}/{y}"); },
         "customUrlError"},
        {"no {y}", [this] { chooseMapRow(3); typeInto("customUrl", "https://a.org/{z}/{x}"); },
         "customUrlError"},
    };
    for (const auto& c : cases) {
        c.enter();
        EXPECT_TRUE(messageShown(c.message)) << c.name;
        EXPECT_EQ(std::tuple(stored().tileCacheMegabytes(), stored().clockCorrectionMinutes(), stored().mapSource()),
                  std::tuple(300, 0, std::optional<std::string>("offline")))
            << c.name;
    }
    // A good value takes the message away and is stored.
    control<QSpinBox>("cacheSize")->setValue(500);
    typeInto("clockCorrection", "-0:30");
    EXPECT_FALSE(messageShown("cacheError"));
    EXPECT_FALSE(messageShown("clockCorrectionError"));
    EXPECT_EQ(std::tuple(stored().tileCacheMegabytes(), stored().clockCorrectionMinutes()), std::tuple(500, -30));
    EXPECT_EQ(control<QLineEdit>("clockCorrection")->text(), "-00:30");
}

TEST_F(PreferencesTest, TheRendererIsStoredForTheNextStart) {
    auto* renderer = control<QComboBox>("renderer");
    renderer->setCurrentIndex(2);
    emit renderer->activated(2);
    EXPECT_EQ(stored().videoRenderer(), RendererPreference::Software);
}

TEST_F(PreferencesTest, TheClockCorrectionMovesTheReadOutsAndTheTrips) {
    const std::filesystem::path clip = std::filesystem::path(TRIP_CLIP_DIR) / "a0.mov";
    controller.AddedMovies(nullptr, {clip});
    ASSERT_TRUE(waitForClipsRead());
    const std::optional<int64_t> start = controller.clipCatalog()->find(clip)->facts.summary.firstSampleSeconds;
    ASSERT_TRUE(start.has_value());
    player->at(1.0);
    tick();
    GPSData sample = view->engine().gpsDataList()->at(1);
    ASSERT_EQ(controller.outlets().txtTime->text().toStdString(), sample.TimeText());

    typeInto("clockCorrection", "+01:30");
    sample.shiftClockByMinutes(90);
    EXPECT_EQ(view->engine().gpsDataList()->at(1).TimeText(), sample.TimeText());
    EXPECT_EQ(controller.outlets().txtTime->text().toStdString(), sample.TimeText());
    EXPECT_EQ(controller.outlets().txtDate->text().toStdString(), sample.DateText());
    // The catalog reads the clip again with the correction; the trips are built from that.
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return controller.clipCatalog()->find(clip)->facts.summary.firstSampleSeconds == *start + 90 * 60; },
        20000));
}

TEST_F(PreferencesTest, ClearCacheEmptiesTheCacheFolderOffTheWindow) {
    QTemporaryDir cache;
    ASSERT_TRUE(QDir(cache.path()).mkpath(QStringLiteral("data8")));
    QFile tile(QDir(cache.path()).filePath(QStringLiteral("data8/tile.d")));
    ASSERT_TRUE(tile.open(QIODevice::WriteOnly));
    tile.close();
    dialog->setTileCacheDirectory(cache.path());

    control<QPushButton>("clearCache")->click();
    EXPECT_TRUE(dialog->isClearingCache());
    EXPECT_FALSE(control<QPushButton>("clearCache")->isEnabled());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !dialog->isClearingCache(); }, 20000));
    EXPECT_FALSE(tile.exists());
    EXPECT_TRUE(QDir(cache.path()).exists(QStringLiteral("data8")));
    EXPECT_TRUE(messageShown("cacheStatus"));
    EXPECT_TRUE(control<QPushButton>("clearCache")->isEnabled());
}

}  // namespace
