// The controller's read-outs: each new GPS sample, the idle state after a stop, and the speed unit.

#include "MainWindowDelegate.h"

#include "GPSInfoPanel.h"
#include "GPSPlayerView.h"
#include "GPSUtils.h"
#include "Geodesy.h"
#include "SliderFraction.h"

#include <QAbstractButton>
#include <QLabel>
#include <QSlider>

GPSInfoPanel MainWindowDelegate::infoPanel() const {
    const MainWindowOutlets& o = outlets_;
    return GPSInfoPanel({.txtSpeed = o.txtSpeed,
                         .txtSpeedUnit = o.txtSpeedUnit,
                         .lblLatitude = o.lblLatitude,
                         .txtLatitude = o.txtLatitude,
                         .lblLongitude = o.lblLongitude,
                         .txtLongitude = o.txtLongitude,
                         .lblDate = o.lblDate,
                         .txtDate = o.txtDate,
                         .lblTime = o.lblTime,
                         .txtTime = o.txtTime,
                         .txtMapView = o.txtMapView},
                        settings_);
}

void MainWindowDelegate::UpdatedGPSInfo(GPSPlayerEngine& /*engine*/, const GPSData& data, uint64_t index) {
    // Going on through a trip, the next clip's empty lead-in would flash idle read-outs between
    // two samples a second apart: the last clip's sample stays until this clip has its own.
    if (holdingReadOuts_ && index == 0) {
        showCarLocation(data, 0);
        return;
    }
    holdingReadOuts_ = false;
    infoPanel().show(data);
    showPlace(samplePlace(data));
    showCarLocation(data, static_cast<int64_t>(index));
}

void MainWindowDelegate::ResetControls() {
    const MainWindowOutlets& o = outlets_;
    curIndex = -1;
    const bool muted = o.player != nullptr && o.player->engine().muted();
    if (o.btMute != nullptr) o.btMute->setHidden(!muted);
    if (o.btSound != nullptr) o.btSound->setHidden(muted);
    if (o.btPlay != nullptr) o.btPlay->setHidden(false);
    if (o.btPause != nullptr) o.btPause->setHidden(true);
    if (o.txtTitle != nullptr) o.txtTitle->clear();
    infoPanel().reset();
    showPlace(std::nullopt);
    if (o.durationSlider != nullptr) setSliderFraction(*o.durationSlider, 0.0);
}

void MainWindowDelegate::RefreshUnits() {
    const std::string speed = outlets_.player != nullptr ? outlets_.player->engine().currentSpeedText()
                                                         : GPSInfoPanel::idleSpeedText;
    infoPanel().refreshUnits(speed);
}
