// The controller's position commands: the place of the sample on screen, copied as text or shown
// in the user's browser on OpenStreetMap.

#include "MainWindowDelegate.h"

#include "PositionText.h"

#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QGuiApplication>
#include <QUrl>

void MainWindowDelegate::showPlace(std::optional<GeoPoint> place) {
    shownPlace_ = place;
    for (QAction* item : {outlets_.actionCopyPosition, outlets_.actionOpenPosition})
        if (item != nullptr) item->setEnabled(place.has_value());
}

void MainWindowDelegate::OnCopyPosition() {
    if (!shownPlace_) return;
    QGuiApplication::clipboard()->setText(
        QString::fromStdString(positionText(shownPlace_->latitude, shownPlace_->longitude)));
}

void MainWindowDelegate::OnOpenPosition() {
    if (!shownPlace_) return;
    // The desktop's own handler answers: nothing here waits for the browser.
    QDesktopServices::openUrl(
        QUrl(QString::fromStdString(openStreetMapLink(shownPlace_->latitude, shownPlace_->longitude))));
}
