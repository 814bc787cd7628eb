#include "GPSTableHeaderView.h"
#include "GPSTextCell.h"
#include "SkinColours.h"
#include "SkinControls.h"
#include "SkinTestSupport.h"

#include <QApplication>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

// A colour the skin never uses: every pixel of it is the table's own background.
const QColor kBase(0, 100, 0);

class TableSkinTest : public ::testing::Test {
protected:
    TableSkinTest() : model(4, 3) {
        model.setHorizontalHeaderLabels({QStringLiteral("File"), QStringLiteral("DateTime"), QStringLiteral("Size")});
        for (int row = 0; row < 4; ++row)
            for (int column = 0; column < 3; ++column) model.setItem(row, column, new QStandardItem(QStringLiteral("WWW")));
        QPalette colours = table.palette();
        colours.setColor(QPalette::Base, kBase);
        table.setPalette(colours);
        table.setModel(&model);
        table.verticalHeader()->hide();
        table.setShowGrid(false);
        table.setSelectionBehavior(QAbstractItemView::SelectRows);
        header().setSectionResizeMode(0, QHeaderView::Stretch);
        table.setColumnWidth(1, 90);
        applyPlaylistTableSkin(table);
        table.resize(320, 220);
        table.show();
        QApplication::processEvents();
    }

    QHeaderView& header() { return *table.horizontalHeader(); }

    QStandardItemModel model;
    QTableView table;
};

TEST_F(TableSkinTest, KeepsTheHeadersSectionsAndCanBeAppliedAgain) {
    QHeaderView* skinned = &header();
    ASSERT_NE(qobject_cast<GPSTableHeaderView*>(skinned), nullptr);
    EXPECT_EQ(header().sectionResizeMode(0), QHeaderView::Stretch);
    EXPECT_EQ(header().sectionSize(1), 90);
    applyPlaylistTableSkin(table);
    EXPECT_EQ(&header(), skinned);
}

// White lines above, below and at the right end of every section; at the left end only for the
// leftmost shown section, whose dark field therefore starts 1 in.
TEST_F(TableSkinTest, HeaderSectionsAreDarkFieldsRingedByWhiteLines) {
    for (const int firstShown : {0, 1}) {
        SCOPED_TRACE(firstShown);
        header().setSectionHidden(0, firstShown == 1);
        const QImage image = header().grab().toImage();
        const int h = image.height();
        const QColor dark = SkinColours::headerBackground();
        for (int section = firstShown; section < 3; ++section) {
            SCOPED_TRACE(section);
            const int left = header().sectionViewportPosition(section);
            const int right = left + header().sectionSize(section) - 1;
            const int field = section == firstShown ? left + 1 : left;
            EXPECT_TRUE(isWhite(image, left + 4, 0) && isWhite(image, left + 4, h - 1) && isWhite(image, right, h / 2));
            EXPECT_EQ(isWhite(image, left, h / 2), section == firstShown);
            EXPECT_TRUE(isColour(image, field, 1, dark) && isColour(image, field, h - 2, dark) &&
                        isColour(image, right - 1, h / 2, dark));
            int title = 0;
            for (int y = 2; y < h - 2; ++y)
                for (int x = field + 1; x < right - 1; ++x) title += isWhite(image, x, y);
            EXPECT_GT(title, 10);
        }
    }
}

// Edge to edge in every column, white text, and no colour over the rows next to it.
TEST_F(TableSkinTest, SelectedRowIsNearBlackWithWhiteText) {
    table.selectRow(1);
    const QImage image = table.viewport()->grab().toImage();
    const int top = table.rowViewportPosition(1);
    const int bottom = top + table.rowHeight(1) - 1;
    for (int column = 0; column < 3; ++column) {
        SCOPED_TRACE(column);
        const int left = table.columnViewportPosition(column);
        const int right = left + table.columnWidth(column) - 1;
        EXPECT_TRUE(isColour(image, left, top, SkinColours::selectedRow()) &&
                    isColour(image, right, bottom, SkinColours::selectedRow()));
        EXPECT_TRUE(isColour(image, left + 1, top - 1, kBase) && isColour(image, left + 1, bottom + 1, kBase));
        int text = 0;
        for (int y = top; y <= bottom; ++y)
            for (int x = left; x <= right; ++x) text += image.pixelColor(x, y).lightness() > 200;
        EXPECT_GT(text, 10);
    }
}

TEST_F(TableSkinTest, FramesTheTableWithAWhiteLineTwoPixelsWide) {
    const QImage image = table.grab().toImage();
    const int w = image.width(), h = image.height();
    // Each edge from outside in, below the rows where the viewport shows its base.
    for (const auto& [p, step] : {std::pair{QPoint(0, h - 10), QPoint(1, 0)}, {QPoint(w - 1, h - 10), QPoint(-1, 0)},
                                  {QPoint(w / 2, h - 1), QPoint(0, -1)}}) {
        SCOPED_TRACE(p.x());
        EXPECT_TRUE(isWhite(image, p.x(), p.y()) && isWhite(image, p.x() + step.x(), p.y() + step.y()));
        EXPECT_TRUE(isColour(image, p.x() + 2 * step.x(), p.y() + 2 * step.y(), kBase));
    }
    EXPECT_TRUE(isWhite(image, w / 2, 0) && isWhite(image, w / 2, 1));
    EXPECT_EQ(header().geometry().top(), 2);
}

// One cell painted straight into an image, where the view's focus and activation are the option's.
QImage paintCell(const QStyledItemDelegate& delegate, QStyle::State state, Qt::Alignment alignment) {
    QStandardItemModel model(1, 1);
    model.setItem(0, 0, new QStandardItem(QStringLiteral("WWW")));
    model.item(0, 0)->setTextAlignment(alignment | Qt::AlignVCenter);
    QImage image(120, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(kBase);
    QStyleOptionViewItem option;
    option.rect = QRect(10, 10, 100, 20);
    option.state = state | QStyle::State_Enabled;
    option.palette.setColor(QPalette::Text, Qt::black);
    QPainter painter(&image);
    delegate.paint(&painter, option, model.index(0, 0));
    return image;
}

TEST(TextCellSkin, SelectionColourIgnoresFocusAndActivation) {
    for (const QStyle::State state : {QStyle::State_Active, QStyle::State_None, QStyle::State_HasFocus}) {
        SCOPED_TRACE(static_cast<int>(state));
        const QImage image = paintCell(GPSTextCell(), state | QStyle::State_Selected, Qt::AlignLeft);
        EXPECT_TRUE(isColour(image, 10, 10, SkinColours::selectedRow()) &&
                    isColour(image, 109, 29, SkinColours::selectedRow()));
        EXPECT_TRUE(isColour(image, 9, 10, kBase) && isColour(image, 10, 9, kBase));
    }
}

TEST(TextCellSkin, TextSitsTwoPixelsCloserToTheCellsEdge) {
    for (const auto& [alignment, shift] : {std::pair{Qt::AlignLeft, -2}, {Qt::AlignRight, 2}}) {
        SCOPED_TRACE(alignment);
        // The text's first dark column for left alignment, its last for right.
        const auto edge = [alignment](const QImage& image) {
            int first = -1, last = -1;
            for (int x = 0; x < image.width(); ++x)
                for (int y = 0; y < image.height(); ++y)
                    if (image.pixelColor(x, y).lightness() < 40) {
                        if (first < 0) first = x;
                        last = x;
                    }
            return alignment == Qt::AlignLeft ? first : last;
        };
        const int base = edge(paintCell(QStyledItemDelegate(), QStyle::State_None, alignment));
        ASSERT_GT(base, 0);
        EXPECT_EQ(edge(paintCell(GPSTextCell(), QStyle::State_None, alignment)), base + shift);
    }
}

}  // namespace
