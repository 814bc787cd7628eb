#include "GPSTableHeaderView.h"

#include "GPSTableHeaderCell.h"
#include "SkinColours.h"

#include <QEvent>
#include <QPainter>
#include <QTableView>

#include <algorithm>

GPSTableHeaderView::GPSTableHeaderView(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
    setAccessibleName(tr("Columns"));
    // The strip past the last section matches the sections.
    QPalette colours = palette();
    colours.setColor(QPalette::Button, SkinColours::headerBackground());
    colours.setColor(QPalette::ButtonText, SkinColours::headerText());
    setPalette(colours);
}

void GPSTableHeaderView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::LanguageChange) setAccessibleName(tr("Columns"));
    QHeaderView::changeEvent(event);
}

QSize GPSTableHeaderView::sizeHint() const {
    QSize hint = QHeaderView::sizeHint();
    hint.setHeight(GPSTableHeaderCell::preferredHeight());
    return hint;
}

GPSTableHeaderView* GPSTableHeaderView::install(QTableView& table) {
    QHeaderView* old = table.horizontalHeader();
    if (auto* already = qobject_cast<GPSTableHeaderView*>(old)) return already;
    auto* header = new GPSTableHeaderView(&table);
    const QByteArray state = old != nullptr ? old->saveState() : QByteArray();
    const bool hidden = old != nullptr && old->isHidden();
    if (old != nullptr && !old->accessibleName().isEmpty()) header->setAccessibleName(old->accessibleName());
    // The table deletes the old header here.
    table.setHorizontalHeader(header);
    if (!state.isEmpty()) header->restoreState(state);
    header->setHidden(hidden);
    return header;
}

void GPSTableHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
    if (painter == nullptr || !rect.isValid()) return;
    const QString title = model() != nullptr ? model()->headerData(logicalIndex, orientation()).toString() : QString();
    GPSTableHeaderCell(title).paint(*painter, rect, isLeftmost(logicalIndex));
}

QSize GPSTableHeaderView::sectionSizeFromContents(int logicalIndex) const {
    QSize size = QHeaderView::sectionSizeFromContents(logicalIndex);
    const QString title = model() != nullptr ? model()->headerData(logicalIndex, orientation()).toString() : QString();
    size.setWidth(std::max(size.width(), GPSTableHeaderCell::preferredWidth(title)));
    return size;
}

bool GPSTableHeaderView::isLeftmost(int logicalIndex) const {
    for (int visual = 0; visual < count(); ++visual) {
        const int logical = this->logicalIndex(visual);
        if (!isSectionHidden(logical)) return logical == logicalIndex;
    }
    return false;
}
