#include "GPSControlView.h"

#include "GPSUtils.h"
#include "PlayControlKeyMap.h"

#include <QDragEnterEvent>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMimeData>
#include <QPointer>

namespace {

// The bytes of a file URL's path as the file system has them; empty for a URL that names no file
// of this machine. A file manager sends a name that is not UTF-8 percent-encoded byte for byte,
// and QUrl::toLocalFile, going through a QString, would lose those bytes.
QByteArray localFileName(const QUrl& url) {
    if (!url.isLocalFile()) return {};
    const QString host = url.host();
    if (!host.isEmpty() && host != QLatin1String("localhost")) return {};
    return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1());
}

}  // namespace

GPSControlView::GPSControlView(QWidget* parent) : GPSControlView(GPSUtils::sharedUtils(), parent) {}

GPSControlView::GPSControlView(const GPSUtils& utils, QWidget* parent) : QWidget(parent), movieFilter_(utils) {
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAccessibleName(tr("Player controls"));
}

FilePasteboard GPSControlView::pasteboardOf(const QMimeData& data) {
    FilePasteboard pasteboard;
    if (!data.hasUrls()) return pasteboard;
    pasteboard.filenames.emplace();
    for (const QUrl& url : data.urls()) {
        const QByteArray name = localFileName(url);
        if (!name.isEmpty()) pasteboard.filenames->emplace_back(name.constData(), name.size());
    }
    return pasteboard;
}

void GPSControlView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) setAccessibleName(tr("Player controls"));
    QWidget::changeEvent(event);
}

bool GPSControlView::event(QEvent* event) {
    // A key with a command comes here as a key press rather than firing a menu shortcut bound to
    // the same key, so it runs once, through the dispatch and its guards.
    if (event->type() == QEvent::ShortcutOverride) {
        auto* keyEvent = static_cast<QKeyEvent*>(event);
        if (PlayControlKeyMap::codeFor(*keyEvent) != 0) {
            keyEvent->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void GPSControlView::keyPressEvent(QKeyEvent* event) {
    // Every key event carries the modifiers held, so one released while another window or widget
    // had the keys cannot stay down here.
    modifiers_.setModifiers(ModifierState::heldAfter(*event));
    // Swallowed, with or without a command.
    event->accept();
    if (ModifierState::isModifierKey(event->key())) return;
    const uint64_t code = PlayControlKeyMap::codeFor(PlayControlKeyMap::keyOf(*event), modifiers_.keyStatus());
    if (delegate_) delegate_->didPerformPlayControl(this, code);
}

void GPSControlView::keyReleaseEvent(QKeyEvent* event) {
    if (ModifierState::isModifierKey(event->key())) modifiers_.setModifiers(ModifierState::heldAfter(*event));
    event->accept();
}

void GPSControlView::focusInEvent(QFocusEvent* event) {
    // A modifier released while the window had no focus sent its release elsewhere.
    modifiers_.setModifiers(QGuiApplication::queryKeyboardModifiers());
    QWidget::focusInEvent(event);
}

void GPSControlView::dragEnterEvent(QDragEnterEvent* event) {
    isValidDragging_ = true;
    const FilePasteboard pasteboard = pasteboardOf(*event->mimeData());
    const bool copy = event->possibleActions().testFlag(Qt::CopyAction) && movieFilter_.mayHoldMovie(pasteboard);
    // A refusal is an accepted entry with no action: Qt sends the moves and the drop only to a
    // view that accepted the entry, and the moves answer copy whatever the entry said.
    event->setDropAction(copy ? Qt::CopyAction : Qt::IgnoreAction);
    event->accept();
}

void GPSControlView::dragMoveEvent(QDragMoveEvent* event) {
    // Where the source allows no copy, Qt puts its own choice of what it allows in its place.
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

void GPSControlView::dragLeaveEvent(QDragLeaveEvent* event) {
    isValidDragging_ = false;
    event->accept();
}

void GPSControlView::dropEvent(QDropEvent* event) {
    if (!isValidDragging_) {
        event->ignore();
        return;
    }
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Filtered again rather than remembered from the entry: the files may have changed meanwhile.
    movieFilter_.filter(pasteboardOf(*event->mimeData()),
                        [view = QPointer<GPSControlView>(this)](const DroppedMovieFilter::Movies& movies) {
                            if (view && view->delegate_) view->delegate_->AddedMovies(view, movies);
                        });
}
