// The controller's set-up and window events: the first activation, the unit menu, closing, About.

#include "MainWindowDelegate.h"

#include "GPSInfoPanel.h"
#include "GPSPlayerView.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "LEDFontManager.h"
#include "SliderFraction.h"

#include <QAction>
#include <QCoreApplication>
#include <QFont>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>
#include <QSlider>

#include <utility>


MainWindowDelegate::MainWindowDelegate(GPSUtils& settings, QObject* parent) : QObject(parent), settings_(settings) {}

void MainWindowDelegate::windowDidBecomeMain() {
    if (isInited) return;
    isInited = true;
    // Before the controls: the font they ask for depends on whether registration worked.
    LEDFontManager::Register();
    setupControls();
    setupMap();
    if (!pendingMovies_.empty()) {
        addToPlaylist(std::exchange(pendingMovies_, {}));
        UpdateControls();
    }
}

void MainWindowDelegate::setupControls() {
    const MainWindowOutlets& o = outlets_;
    infoPanel().setupFonts();

    if (o.volumeSlider != nullptr && o.player != nullptr)
        setSliderFraction(*o.volumeSlider, o.player->engine().volume());

    setupPlaylistTable();
    RefreshMenu();
    RefreshUnits();
    ResetControls();
    UpdateControls();
    UpdatePlayingStatus();
}

void MainWindowDelegate::windowWillClose() { LEDFontManager::Unregister(); }

void MainWindowDelegate::RefreshMenu() {
    const bool kmh = settings_.unitType() == 1;
    if (outlets_.unitKMH != nullptr) outlets_.unitKMH->setChecked(kmh);
    if (outlets_.unitMPH != nullptr) outlets_.unitMPH->setChecked(!kmh);
}

void MainWindowDelegate::OnUnitChanged(QAction* sender) {
    if (sender == nullptr) return;
    // An item without a tag counts as tag 0, as a menu item's default tag would.
    settings_.setUnitType(sender->data().toULongLong());
    setupPlaylistTable();
    RefreshMenu();
    RefreshUnits();
}

void MainWindowDelegate::OnShowAbout() {
    QWidget* parent = outlets_.window;
    auto* about = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("About Dashtrack"),
                                  QStringLiteral("<h3>Dashtrack %1</h3>"
                                                 "<p>Plays dash camera movies with the speed, position, date "
                                                 "and time they recorded.</p>"
                                                 "<p>Built with Qt (LGPL 3), libmpv (LGPL 2.1 or later), FFmpeg "
                                                 "(LGPL 2.1 or later) and libplist (LGPL 2.1 or later). The LED "
                                                 "font is made from DSEG (SIL Open Font License 1.1).</p>")
                                      .arg(QStringLiteral(DASHTRACK_VERSION)),
                                  QMessageBox::Close, parent);
    about->setObjectName(QStringLiteral("aboutView"));
    about->setAttribute(Qt::WA_DeleteOnClose);
    // Window-modal but not blocking: the movie goes on playing behind it.
    about->open();
}

void MainWindowDelegate::OnHideAbout() {
    if (outlets_.window == nullptr) return;
    if (auto* about = outlets_.window->findChild<QMessageBox*>(QStringLiteral("aboutView"))) about->close();
}

void MainWindowDelegate::OnPreference(QObject* /*sender*/) {}
