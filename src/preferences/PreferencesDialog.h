#pragma once
// File, Preferences…: the unit, the map's tiles and their cache, continuous play, the video
// renderer and the clock correction, each applied the moment it changes. The dialog refuses a
// value out of range with a red message beside its field and leaves the setting as it was.
//
// It stores only what no one else acts on (the renderer); everything else it asks for through its
// signals, and the controller stores it, acts on it and calls showSettings() so that the dialog
// and the menus agree whichever of them made the change.

#include <QDialog>
#include <QString>

#include <cstdint>
#include <memory>
#include <string>

class GPSUtils;
class QLabel;
class QPushButton;
namespace Ui {
class PreferencesDialog;
}

class PreferencesDialog final : public QDialog {
    Q_OBJECT

public:
    // settings must outlive the dialog.
    explicit PreferencesDialog(GPSUtils& settings, QWidget* parent = nullptr);
    ~PreferencesDialog() override;

    // Shows the stored values; emits nothing.
    void showSettings();
    // Where Clear Cache removes files; the network provider's own folder unless a test says.
    void setTileCacheDirectory(QString directory) { cacheDirectory_ = std::move(directory); }
    // From Clear Cache until its worker has reported back.
    bool isClearingCache() const { return clearing_; }

signals:
    void unitChosen(uint64_t unitType);
    // "osm", "offline" or "url:TEMPLATE" (checked).
    void mapSourceChosen(const std::string& source);
    // The file or folder must be asked for first.
    void mapFileRequested(bool folder);
    void tileCacheChosen(int64_t megabytes);
    void continuousPlayChosen(bool on);
    void clockCorrectionChosen(int minutes);
    // The cache's files are gone (emitted on the dialog's thread).
    void tileCacheCleared();

protected:
    void changeEvent(QEvent* event) override;

private:
    // The texts the interface description cannot hold, again after a change of language.
    void sayTextsMadeInCode();
    void sayMessagesAgain();
    void connectControls();
    void chooseMapSource(int row);
    void useCustomUrl();
    void chooseCacheSize(int megabytes);
    void chooseClockCorrection();
    void clearTileCache();
    void showMessage(QLabel* label, const QString& text);

    std::unique_ptr<Ui::PreferencesDialog> ui_;
    GPSUtils& settings_;
    QPushButton* closeButton_ = nullptr;  // the button box's child
    QString cacheDirectory_;
    bool clearing_ = false;
};
