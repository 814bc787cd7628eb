#pragma once
// The playlist's cells: the selected row is near-black with white text whether or not the table
// has focus, and the text sits closer to the cell's edges than the base style puts it.

#include <QStyledItemDelegate>

class GPSTextCell : public QStyledItemDelegate {
    Q_OBJECT

public:
    explicit GPSTextCell(QObject* parent = nullptr);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

    // How far the text's rect grows past the cell: 2 pixels left and right, 1 above and below.
    static QRect textFrame(const QRect& cell);
};
