#include "ApplicationIcon.h"

QIcon applicationIcon() {
    // Qt's SVG icon engine (part of Qt SVG, which we link) draws it at each size when first asked.
    return QIcon(QStringLiteral(":/icon/dashtrack.svg"));
}
