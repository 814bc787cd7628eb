// The main window as built: its items, menus, connections to the controller, first activation and
// unit menu, under the offscreen platform.

#include "AboutView.h"
#include "GPSControlView.h"
#include "GPSPlayControl.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "MainWindow.h"
#include "MapView.h"

#include <QAbstractButton>
#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace {

class PlayControlSpy : public GPSControlViewDelegate {
public:
    void didPerformPlayControl(QObject* sender, uint64_t playControl) override {
        codes.push_back(playControl), senders.push_back(sender);
    }
    std::vector<uint64_t> codes;
    std::vector<QObject*> senders;
};

class MainWindowTest : public ::testing::Test {
protected:
    MainWindowTest() : settings_(settingsIn(dir_)), window_(settings_) {}

    // A settings file to change: without one the store keeps its defaults.
    static SettingsLocation settingsIn(const QTemporaryDir& dir) {
        const std::filesystem::path file = std::filesystem::path(dir.path().toStdString()) / "Env.plist";
        std::ofstream(file) << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<plist version=\"1.0\"><dict><key>UnitType</key><integer>0</integer>"
                               "<key>Volume</key><real>0.5</real><key>MapSource</key><string>offline</string>"
                               "</dict></plist>\n";
        return {.userFile = file, .shippedFile = std::nullopt};
    }

    QAction* action(const char* name) { return window_.findChild<QAction*>(QString::fromLatin1(name)); }
    void activate() {
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(&window_, &activation);
    }

    QTemporaryDir dir_;
    GPSUtils settings_;
    MainWindow window_;
};

TEST_F(MainWindowTest, EveryOutletIsTheItemOfItsName) {
    const MainWindowOutlets& o = window_.controller().outlets();
    // Member and object name are the same word for every outlet.
#define OUTLET(name) \
    { #name, o.name }
    const std::pair<const char*, QObject*> outlets[] = {OUTLET(player),
                                                        OUTLET(playListView),
                                                        OUTLET(mapView),
                                                        OUTLET(txtTitle),
                                                        OUTLET(durationSlider),
                                                        OUTLET(volumeSlider),
                                                        OUTLET(btMute),
                                                        OUTLET(btSound),
                                                        OUTLET(btPrev),
                                                        OUTLET(btBackward),
                                                        OUTLET(btPlay),
                                                        OUTLET(btPause),
                                                        OUTLET(btForward),
                                                        OUTLET(btNext),
                                                        OUTLET(btStop),
                                                        OUTLET(btSnapshot),
                                                        OUTLET(btToggleFullscreen),
                                                        OUTLET(txtSpeed),
                                                        OUTLET(txtSpeedUnit),
                                                        OUTLET(lblLatitude),
                                                        OUTLET(txtLatitude),
                                                        OUTLET(lblLongitude),
                                                        OUTLET(txtLongitude),
                                                        OUTLET(lblDate),
                                                        OUTLET(txtDate),
                                                        OUTLET(lblTime),
                                                        OUTLET(txtTime),
                                                        OUTLET(txtMapView),
                                                        OUTLET(unitKMH),
                                                        OUTLET(unitMPH),
                                                        OUTLET(languageChinese),
                                                        OUTLET(languageEnglish),
                                                        OUTLET(languageJananese),
                                                        OUTLET(languageVietnamese),
                                                        OUTLET(mapBaidu),
                                                        OUTLET(mapGoogle)};
#undef OUTLET
    for (const auto& [name, item] : outlets) {
        ASSERT_NE(item, nullptr) << name;
        EXPECT_EQ(item->objectName(), QString::fromLatin1(name));
    }
    EXPECT_EQ(o.window, &window_);
    // The map's text field lies beside the map, not over it where it would take the map's clicks.
    EXPECT_NE(o.txtMapView->parentWidget(), o.mapView);
    EXPECT_TRUE(o.txtMapView->isHidden());
}

TEST_F(MainWindowTest, KeysAndDropsOfTheWholeWindowReachTheKeyHandlingView) {
    auto* controlView = qobject_cast<GPSControlView*>(window_.centralWidget());
    ASSERT_NE(controlView, nullptr);
    EXPECT_TRUE(controlView->acceptDrops());
    EXPECT_EQ(controlView->delegate(), &window_.controller());
    const MainWindowOutlets& o = window_.controller().outlets();
    EXPECT_EQ(o.player->controlView(), controlView);
    EXPECT_EQ(o.playListView->controlView(), controlView);
    EXPECT_TRUE(controlView->isAncestorOf(o.player));
    EXPECT_TRUE(controlView->isAncestorOf(o.playListView));
    // A focused button or slider would keep Space and the arrows from the key-handling view. The
    // About view's Close is the exception: while it is shown, the keys are its own.
    const auto* about = window_.findChild<AboutView*>();
    for (QWidget* widget : controlView->findChildren<QWidget*>()) {
        if (about->isAncestorOf(widget)) continue;
        if (qobject_cast<QAbstractButton*>(widget) || qobject_cast<QSlider*>(widget)) {
            EXPECT_EQ(widget->focusPolicy(), Qt::NoFocus) << widget->objectName().toStdString();
        }
    }
}

TEST_F(MainWindowTest, ControlsSayTheirCommandAndReadOutsWhatTheyShow) {
    EXPECT_EQ(window_.findChild<QWidget*>(QStringLiteral("btBackward"))->accessibleName(), "Back 10 seconds");
    auto* speed = window_.findChild<QLabel*>(QStringLiteral("txtSpeed"));
    EXPECT_EQ(speed->accessibleDescription(), "Speed");
    // No name of its own: a screen reader reads the value it shows.
    EXPECT_TRUE(speed->accessibleName().isEmpty());
}

TEST_F(MainWindowTest, PlaybackItemsShowTheirKeysButSendTheCodeOnceThroughTheKeyHandlingView) {
    auto* controlView = qobject_cast<GPSControlView*>(window_.centralWidget());
    PlayControlSpy spy;
    controlView->setDelegate(&spy);
    const std::tuple<const char*, const char*, uint64_t> items[] = {
        {"actionPlayPause", "Space", GPSPlayControlPlayPause},
        {"actionStop", "Ctrl+Backspace", GPSPlayControlStop},
        {"actionPrev", "Ctrl+Left", GPSPlayControlPrev},
        {"actionVolumeDown", "Down", GPSPlayControlVolumeDown},
        {"actionToggleFullscreen", "Ctrl+F", GPSPlayControlToggleFullscreen},
    };
    for (const auto& [name, key, code] : items) {
        QAction* item = action(name);
        ASSERT_NE(item, nullptr) << name;
        // A real shortcut would run the command a second time beside the key-handling view.
        EXPECT_TRUE(item->shortcut().isEmpty()) << name;
        EXPECT_TRUE(item->text().endsWith(QLatin1Char('\t') + QString::fromLatin1(key))) << name;
        spy.codes.clear();
        item->trigger();
        EXPECT_EQ(spy.codes, std::vector<uint64_t>{code}) << name;
        EXPECT_EQ(spy.senders.back(), controlView) << name;
    }
    controlView->setDelegate(&window_.controller());
}

TEST_F(MainWindowTest, MenusOfferOpenAndQuitByKeyAndShowTheItemsWithoutBehaviourDisabled) {
    EXPECT_EQ(action("actionOpen")->shortcut(), QKeySequence(QStringLiteral("Ctrl+O")));
    EXPECT_EQ(action("actionQuit")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Q")));
    for (const char* name : {"mapBaidu", "mapGoogle"})
        EXPECT_FALSE(action(name)->isEnabled()) << name;
    for (const char* name : {"actionOpen", "actionRemove", "actionSnapshot", "actionPreferences", "actionQuit", "actionAbout",
                             "languageChinese", "languageEnglish", "languageJananese", "languageVietnamese"})
        EXPECT_TRUE(action(name)->isEnabled()) << name;
}

// Choosing an item and seeing the unit change is the end-to-end test's; here, the stored values.
TEST_F(MainWindowTest, UnitItemsFollowTheStoredUnitAndStoreTheirTag) {
    const MainWindowOutlets& o = window_.controller().outlets();
    settings_.setUnitType(2);  // only 1 is KM/H on the menu; any other stored value checks MPH
    window_.controller().RefreshMenu();
    EXPECT_TRUE(o.unitMPH->isChecked());
    o.unitKMH->trigger();
    EXPECT_EQ(settings_.unitType(), 1u);
    EXPECT_FALSE(o.unitMPH->isChecked());
    o.unitMPH->trigger();
    EXPECT_EQ(settings_.unitType(), 0u);
}

TEST_F(MainWindowTest, OnlyTheFirstActivationSetsTheControlsUp) {
    MainWindowDelegate& controller = window_.controller();
    const MainWindowOutlets& o = controller.outlets();
    EXPECT_FALSE(controller.isInited);
    activate();
    EXPECT_TRUE(controller.isInited);
    // The read-outs got their LED fonts; which size each gets is the panel's own test.
    EXPECT_EQ(o.txtSpeed->font().pointSize(), 50);

    // A second activation must not undo what happened since: the check mark and the slider stay.
    settings_.setUnitType(1);
    o.volumeSlider->setValue(37);
    activate();
    EXPECT_EQ(o.volumeSlider->value(), 37);
    EXPECT_FALSE(o.unitKMH->isChecked());
}

TEST_F(MainWindowTest, AboutFadesInOverTheContentAndAwayAgain) {
    window_.show();
    action("actionAbout")->trigger();
    auto* about = window_.findChild<AboutView*>();
    ASSERT_NE(about, nullptr);
    EXPECT_TRUE(settings_.statusIsModal());
    EXPECT_TRUE(about->isVisible());
    EXPECT_EQ(about->geometry(), window_.centralWidget()->rect());

    // Its Close button goes through the controller, which starts the fade out.
    about->closeButton().click();
    EXPECT_FALSE(settings_.statusIsModal());
    for (int step = 0; step < 1000 && about->isFading(); ++step) QTest::qWait(5);
    EXPECT_FALSE(about->isVisible());
}

TEST_F(MainWindowTest, EveryControlStaysOnScreenAtTheSmallestSize) {
    EXPECT_EQ(window_.minimumSize(), QSize(1024, 640));
    window_.show();
    window_.resize(1024, 640);
    QApplication::processEvents();
    for (QWidget* widget : window_.centralWidget()->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(&window_) || widget->objectName().isEmpty()) continue;
        const QRect placed(widget->mapTo(&window_, QPoint(0, 0)), widget->size());
        EXPECT_TRUE(window_.rect().contains(placed)) << widget->objectName().toStdString();
        EXPECT_GT(placed.width(), 0) << widget->objectName().toStdString();
    }
    EXPECT_GE(window_.controller().outlets().player->width(), 480);
}

}  // namespace
