#include "PlaylistTableModel.h"
#include "PlaylistTestSupport.h"
#include "TimeZoneGuard.h"

#include <QAbstractItemModelTester>

#include <gtest/gtest.h>

namespace {

class PlaylistTableModelTest : public ::testing::Test {
protected:
    QString cell(int row, int column, int role = Qt::DisplayRole) const {
        return model.data(model.index(row, column), role).toString();
    }
    TimeZoneGuard zone{"UTC0"};
    Playlist playlist;
    PlaylistTableModel model{playlist};
    QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PlaylistTableModelTest, RowsShowTheEntriesTextsUnderTheColumnsIdentifiers) {
    playlist.add(std::vector<PlaylistItem>{
        {"/cam/Fahrt über Köln.MOV", FileAttributes{.size = 3500000000, .creationTime = localTime(3, 13, 5, 9)}},
        {"/cam/unreadable.mp4", std::nullopt},
    });
    model.reloadData();
    ASSERT_EQ(model.rowCount(), 2);
    const char* identifiers[] = {"File", "DateTime", "Size"};
    const char* titles[] = {"File", "Date & Time", "Size"};
    const QString texts[] = {QString::fromUtf8("/cam/Fahrt über Köln.MOV"), "2016-05-03 01:05:09", "3.3 G"};
    for (int column = 0; column < 3; ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::UserRole).toString(), identifiers[column]);
        EXPECT_EQ(model.headerData(column, Qt::Horizontal).toString(), titles[column]);
        EXPECT_EQ(PlaylistTableModel::columnWithIdentifier(identifiers[column]), column);
        EXPECT_EQ(cell(0, column), texts[column]);
        EXPECT_EQ(cell(0, column, Qt::AccessibleTextRole), texts[column]);
    }
    EXPECT_EQ(cell(0, 0, Qt::ToolTipRole), texts[0]);
    EXPECT_EQ(cell(1, 1), "");
    EXPECT_EQ(cell(1, 2), "");
    EXPECT_TRUE(model.data(model.index(0, 2), Qt::TextAlignmentRole).toInt() & Qt::AlignRight);
}

}  // namespace
