#include "PlaylistTableModel.h"
#include "PlaylistTestSupport.h"
#include "TimeZoneGuard.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>
#include <QTableView>

#include <gtest/gtest.h>

namespace {

QString cell(const PlaylistTableModel& model, int row, int column, int role = Qt::DisplayRole) {
    return model.data(model.index(row, column), role).toString();
}

class PlaylistTableModelTest : public ::testing::Test {
protected:
    TimeZoneGuard zone{"UTC0"};
    Playlist playlist;
    PlaylistTableModel model{playlist};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PlaylistTableModelTest, ColumnsAreToldApartByIdentifier) {
    ASSERT_EQ(model.columnCount(), 3);
    const char* identifiers[] = {"File", "DateTime", "Size"};
    const char* titles[] = {"File", "Date & Time", "Size"};
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(PlaylistTableModel::columnIdentifier(column), identifiers[column]);
        EXPECT_EQ(PlaylistTableModel::columnWithIdentifier(identifiers[column]), column);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::UserRole).toString(), identifiers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), titles[column]);
    }
    EXPECT_EQ(PlaylistTableModel::columnIdentifier(3), "");
    EXPECT_EQ(PlaylistTableModel::columnWithIdentifier("Name"), -1);
}

TEST_F(PlaylistTableModelTest, RowsShowTheEntriesTextsAndAbsentTextsShowEmpty) {
    playlist.add(std::vector<PlaylistItem>{
        {"/cam/Fahrt über Köln.MOV", FileAttributes{.size = 3500000000, .creationTime = localTime(2016, 5, 3, 13, 5, 9)}},
        {"/cam/unreadable.mp4", std::nullopt},
    });
    model.reloadData();
    ASSERT_EQ(model.rowCount(), 2);

    EXPECT_EQ(cell(model, 0, 0), QString::fromUtf8("/cam/Fahrt über Köln.MOV"));
    EXPECT_EQ(cell(model, 0, 1), "2016-05-03 01:05:09");
    EXPECT_EQ(cell(model, 0, 2), "3.3 G");
    EXPECT_EQ(cell(model, 0, 0, Qt::ToolTipRole), QString::fromUtf8("/cam/Fahrt über Köln.MOV"));
    EXPECT_FALSE(model.data(model.index(0, 1), Qt::ToolTipRole).isValid());
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(cell(model, 0, column, Qt::AccessibleTextRole), cell(model, 0, column));

    EXPECT_EQ(cell(model, 1, 0), "/cam/unreadable.mp4");
    EXPECT_EQ(cell(model, 1, 1), "");
    EXPECT_EQ(cell(model, 1, 2), "");

    EXPECT_TRUE(model.data(model.index(0, 2), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
    EXPECT_FALSE(model.data(model.index(0, 0), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

TEST_F(PlaylistTableModelTest, ReloadDataResetsAttachedViews) {
    QTableView view;
    view.setModel(&model);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    EXPECT_EQ(view.verticalHeader()->count(), 0);

    playlist.add(std::vector<PlaylistItem>{{"b.mp4", madeAt(5)}, {"a.mp4", madeAt(4)}});
    model.reloadData();
    EXPECT_EQ(resets.count(), 1);
    EXPECT_EQ(view.verticalHeader()->count(), 2);
    view.selectRow(1);

    playlist.removeAt(1);
    model.reloadData();
    EXPECT_EQ(view.verticalHeader()->count(), 1);
    // A reset drops the selection; the controller selects the row it wants afterwards.
    EXPECT_FALSE(view.selectionModel()->hasSelection());
    EXPECT_EQ(cell(model, 0, 0), "a.mp4");
}

}  // namespace
