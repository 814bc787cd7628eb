#include "TripBandCell.h"

#include "PlaylistTableModel.h"
#include "SkinColours.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace {

constexpr int kLabelPadding = 6;
constexpr int kLabelMargin = 4;

// A rounded label at the right of the cell; returns the width it takes.
int paintLabel(QPainter& painter, const QRect& cell, const QString& text, const QColor& fill, const QColor& ink,
               const QFont& font) {
    QFont small = font;
    small.setPointSizeF(std::max(7.0, font.pointSizeF() - 1.5));
    small.setBold(true);
    const QFontMetrics metrics(small);
    // Where the whole label would crowd out the file name, its first part ("12:40") stands for it.
    const int room = cell.width() * 2 / 5;
    QString shown = text;
    if (metrics.horizontalAdvance(shown) + 2 * kLabelPadding > room) shown = text.section(QStringLiteral(" · "), 0, 0);
    const int width = std::min(metrics.horizontalAdvance(shown) + 2 * kLabelPadding, std::max(room, 24));
    const QRectF label(cell.right() - kLabelMargin - width + 1, cell.top() + 2.5, width, cell.height() - 5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath pill;
    pill.addRoundedRect(label, label.height() / 2, label.height() / 2);
    painter.fillPath(pill, fill);
    painter.setFont(small);
    painter.setPen(ink);
    painter.drawText(label.adjusted(kLabelPadding, 0, -kLabelPadding, 0), Qt::AlignCenter,
                     metrics.elidedText(shown, Qt::ElideRight, width - 2 * kLabelPadding));
    painter.restore();
    return width + 2 * kLabelMargin;
}

}  // namespace

TripBandCell::TripBandCell(QObject* parent) : GPSTextCell(parent) {}

QColor TripBandCell::bandColour(int tripNumber) {
    // Amber and a light teal: both read on the window's blue and on the selected row's near-black.
    return tripNumber % 2 == 1 ? QColor(0xFF, 0xC1, 0x4D) : QColor(0x7F, 0xF0, 0xD2);
}

QColor TripBandCell::problemColour() { return QColor(0xFF, 0x6B, 0x6B); }

void TripBandCell::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const QVariant tripNumber = index.data(PlaylistTableModel::TripNumberRole);
    const QVariant problem = index.data(PlaylistTableModel::ProblemRole);
    const bool firstColumn = index.column() == PlaylistTableModel::FileColumn;
    QStyleOptionViewItem cell = option;

    if (firstColumn) {
        // The band and the label take their room from the text, not from the row's background.
        int labelWidth = 0;
        const QString heading = index.data(PlaylistTableModel::TripHeadingRole).toString();
        if (option.state.testFlag(QStyle::State_Selected)) painter->fillRect(option.rect, SkinColours::selectedRow());
        if (problem.isValid())
            labelWidth = paintLabel(*painter, option.rect, problem.toString(), problemColour(), Qt::white, option.font);
        else if (!heading.isEmpty() && tripNumber.isValid())
            labelWidth = paintLabel(*painter, option.rect, heading, bandColour(tripNumber.toInt()), QColor(0x1B, 0x1B, 0x1F),
                                    option.font);
        cell.rect = option.rect.adjusted(kBandWidth + 2, 0, -labelWidth, 0);
    }
    if (problem.isValid()) {
        cell.font.setStrikeOut(true);
        cell.palette.setColor(QPalette::Text, problemColour());
    }
    GPSTextCell::paint(painter, cell, index);

    if (firstColumn && tripNumber.isValid())
        painter->fillRect(QRect(option.rect.left(), option.rect.top(), kBandWidth, option.rect.height()),
                          bandColour(tripNumber.toInt()));
    if (index.data(PlaylistTableModel::StartsTripRole).toBool() && index.row() > 0)
        painter->fillRect(QRect(option.rect.left(), option.rect.top(), option.rect.width(), 1), QColor(255, 255, 255, 90));
}
