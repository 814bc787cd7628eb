#include "WindowEdges.h"

#include <QWindow>

Qt::Edges resizeEdgesAt(QPoint p, QSize size, int band) {
    if (p.x() < 0 || p.y() < 0 || p.x() >= size.width() || p.y() >= size.height()) return {};
    // Corners are grabbed a little more generously than the edges: they are harder to hit.
    const int corner = 3 * band;
    Qt::Edges edges;
    const bool nearLeft = p.x() < band, nearRight = p.x() >= size.width() - band;
    const bool nearTop = p.y() < band, nearBottom = p.y() >= size.height() - band;
    if (nearLeft) edges |= Qt::LeftEdge;
    if (nearRight) edges |= Qt::RightEdge;
    if (nearTop) edges |= Qt::TopEdge;
    if (nearBottom) edges |= Qt::BottomEdge;
    if ((nearTop || nearBottom) && p.x() < corner) edges |= Qt::LeftEdge;
    if ((nearTop || nearBottom) && p.x() >= size.width() - corner) edges |= Qt::RightEdge;
    if ((nearLeft || nearRight) && p.y() < corner) edges |= Qt::TopEdge;
    if ((nearLeft || nearRight) && p.y() >= size.height() - corner) edges |= Qt::BottomEdge;
    return edges;
}

Qt::CursorShape cursorForEdges(Qt::Edges edges) {
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    if (horizontal && vertical) {
        const bool falling = (edges & Qt::LeftEdge && edges & Qt::TopEdge) ||
                             (edges & Qt::RightEdge && edges & Qt::BottomEdge);
        return falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
    }
    if (horizontal) return Qt::SizeHorCursor;
    if (vertical) return Qt::SizeVerCursor;
    return Qt::ArrowCursor;
}

bool startWindowResize(QWidget& window, Qt::Edges edges) {
    QWindow* handle = window.windowHandle();
    return handle != nullptr && edges != Qt::Edges() && handle->startSystemResize(edges);
}
