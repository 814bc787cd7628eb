#include "ApplicationIcon.h"

#include "IconImage.h"

#include <QPixmap>
#include <QSvgRenderer>

QIcon applicationIcon() {
    // Drawn here rather than left to Qt's SVG icon plugin, which a system need not have.
    QSvgRenderer renderer(QStringLiteral(":/icon/dashtrack.svg"));
    QIcon icon;
    for (int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        icon.addPixmap(QPixmap::fromImage(iconImage(renderer, size)));
    return icon;
}
