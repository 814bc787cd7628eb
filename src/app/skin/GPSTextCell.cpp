#include "GPSTextCell.h"

#include "SkinColours.h"

#include <QApplication>
#include <QPainter>

GPSTextCell::GPSTextCell(QObject* parent) : QStyledItemDelegate(parent) {}

QRect GPSTextCell::textFrame(const QRect& cell) { return cell.adjusted(-2, -1, 2, 1); }

void GPSTextCell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const bool selected = item.state.testFlag(QStyle::State_Selected);

    // The background is filled here, within the cell: the text's larger rect would spill over the
    // neighbouring rows.
    if (selected)
        painter->fillRect(option.rect, SkinColours::selectedRow());
    else if (item.backgroundBrush.style() != Qt::NoBrush)
        painter->fillRect(option.rect, item.backgroundBrush);

    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        item.palette.setColor(group, QPalette::Highlight, Qt::transparent);
        item.palette.setColor(group, QPalette::HighlightedText, SkinColours::selectedText());
    }
    item.backgroundBrush = Qt::NoBrush;
    item.features.setFlag(QStyleOptionViewItem::Alternate, false);
    // The near-black row already marks the current entry; a focus outline on one cell adds noise.
    item.state.setFlag(QStyle::State_HasFocus, false);
    item.rect = textFrame(option.rect);

    const QWidget* widget = option.widget;
    QStyle* style = widget != nullptr ? widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, widget);
}
