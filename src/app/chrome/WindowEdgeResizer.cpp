#include "WindowEdgeResizer.h"

#include "WindowEdges.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWidget>

WindowEdgeResizer::WindowEdgeResizer(QWidget& window) : QObject(&window), window_(window) {
    // The border is the window's own: the pointer moving over it reaches the window alone.
    window.setMouseTracking(true);
    window.installEventFilter(this);
}

bool WindowEdgeResizer::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &window_) return false;
    const bool resizable = !window_.isMaximized() && !window_.isFullScreen();
    switch (event->type()) {
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        const Qt::Edges edges =
            resizable ? resizeEdgesAt(mouse->position().toPoint(), window_.size(), kBorder) : Qt::Edges();
        if (edges == Qt::Edges())
            window_.unsetCursor();
        else
            window_.setCursor(cursorForEdges(edges));
        return false;
    }
    case QEvent::Leave:
        window_.unsetCursor();
        return false;
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (!resizable || mouse->button() != Qt::LeftButton) return false;
        const Qt::Edges edges = resizeEdgesAt(mouse->position().toPoint(), window_.size(), kBorder);
        return edges != Qt::Edges() && startWindowResize(window_, edges);
    }
    default:
        return false;
    }
}
