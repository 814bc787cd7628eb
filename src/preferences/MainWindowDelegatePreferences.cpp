// The controller's preferences: the one dialog, and the settings only it changes.

#include "MainWindowDelegate.h"

#include "ClipCatalog.h"
#include "GPSInfoPanel.h"
#include "GPSPlayerEngine.h"
#include "GPSUtils.h"
#include "NetworkTileProvider.h"
#include "PreferencesDialog.h"

#include <QMainWindow>

void MainWindowDelegate::OnPreference(QObject* /*sender*/) {
    if (preferencesDialog_ != nullptr) {
        preferencesDialog_->show();
        preferencesDialog_->raise();
        preferencesDialog_->activateWindow();
        return;
    }
    auto* dialog = new PreferencesDialog(settings_, outlets_.window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    preferencesDialog_ = dialog;
    connect(dialog, &PreferencesDialog::unitChosen, this, [this](uint64_t unit) { useUnit(unit); });
    connect(dialog, &PreferencesDialog::mapSourceChosen, this, [this](const std::string& source) { OnMapSourceChanged(source); });
    connect(dialog, &PreferencesDialog::mapFileRequested, this, [this](bool folder) { OnOpenMapFile(folder); });
    connect(dialog, &PreferencesDialog::tileCacheChosen, this, [this](int64_t megabytes) { OnTileCacheSizeChanged(megabytes); });
    connect(dialog, &PreferencesDialog::continuousPlayChosen, this, [this](bool on) { OnContinuousPlayChanged(on); });
    connect(dialog, &PreferencesDialog::clockCorrectionChosen, this, [this](int minutes) { OnClockCorrectionChanged(minutes); });
    dialog->show();
}

void MainWindowDelegate::OnTileCacheSizeChanged(int64_t megabytes) {
    if (!settings_.setTileCacheMegabytes(megabytes)) return;
    if (auto* network = dynamic_cast<NetworkTileProvider*>(tileProvider_.get()))
        network->setDiskCacheBytes(megabytes * 1024 * 1024);
}

void MainWindowDelegate::OnClockCorrectionChanged(int minutes) {
    if (!settings_.setClockCorrectionMinutes(minutes)) return;
    if (GPSPlayerEngine* player = engine()) {
        player->applyClockCorrection();
        // The read-outs show the sample on screen with its new time; the lead-in has none.
        const auto& track = player->gpsDataList();
        const int64_t index = player->curIndex();
        if (track && index >= 1 && uint64_t(index) < track->size() && !holdingReadOuts_)
            infoPanel().show((*track)[std::size_t(index)]);
    }
    // The trips follow as the catalog delivers the clips read again.
    if (clipCatalog_ != nullptr) clipCatalog_->setClockCorrectionMinutes(minutes);
    refreshPreferences();
}

PreferencesDialog* MainWindowDelegate::preferencesDialog() const { return preferencesDialog_; }

void MainWindowDelegate::refreshPreferences() {
    if (preferencesDialog_ != nullptr) preferencesDialog_->showSettings();
}
