#include "GPSTableView.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <memory>

GPSTableView::GPSTableView(QWidget* parent) : QTableView(parent) { setAccessibleName(QStringLiteral("Playlist")); }

bool GPSTableView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && controlView_) {
        const std::unique_ptr<QEvent> copy(event->clone());
        QCoreApplication::sendEvent(controlView_, copy.get());
        if (copy->isAccepted()) {
            event->accept();
            return true;
        }
    }
    return QTableView::event(event);
}

void GPSTableView::keyPressEvent(QKeyEvent* event) {
    QTableView::keyPressEvent(event);
    forwardToControlView(event);
}

void GPSTableView::keyReleaseEvent(QKeyEvent* event) {
    QTableView::keyReleaseEvent(event);
    forwardToControlView(event);
}

void GPSTableView::forwardToControlView(QKeyEvent* event) {
    if (!controlView_) return;
    const std::unique_ptr<QEvent> copy(event->clone());
    QCoreApplication::sendEvent(controlView_, copy.get());
    // Handled: a key the table ignored must not also climb to the parents, among them the
    // key-handling view itself when it holds the table.
    event->accept();
}
