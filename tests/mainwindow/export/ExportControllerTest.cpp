// The controller's Export Track over real clips: which scopes are offered, and the document the
// dialog's choice leads to.

#include "ControllerHarness.h"

#include <QAction>
#include <QFileDialog>
#include <QMenu>
#include <QTest>

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

namespace {

class ExportControllerTest : public ControllerHarness, public ::testing::Test {
protected:
    ExportControllerTest() {
        MainWindowOutlets o = controller.outlets();
        o.menuExportTrack = menu = new QMenu(&window);
        o.actionExportClip = clipItem = menu->addAction(QStringLiteral("Loaded Clip…"));
        o.actionExportTrip = tripItem = menu->addAction(QStringLiteral("Selected Trip…"));
        o.actionExportPlaylist = playlistItem = menu->addAction(QStringLiteral("Whole Playlist…"));
        controller.setOutlets(o);
    }

    // Lists the files, which plays the first, and waits until the catalog has read them all.
    void open(const std::vector<std::filesystem::path>& files) {
        controller.AddedMovies(nullptr, files);
        ASSERT_TRUE(waitForClipsRead());
        controller.RefreshExportMenu();
    }
    std::vector<bool> offered() const {
        return {menu->isEnabled(), clipItem->isEnabled(), tripItem->isEnabled(), playlistItem->isEnabled()};
    }
    std::filesystem::path tripClip(const char* name) const { return std::filesystem::path(TRIP_CLIP_DIR) / name; }

    QMenu* menu = nullptr;
    QAction *clipItem = nullptr, *tripItem = nullptr, *playlistItem = nullptr;
};

TEST_F(ExportControllerTest, NothingIsOfferedWithoutATrack) {
    controller.RefreshExportMenu();
    EXPECT_EQ(offered(), (std::vector<bool>{false, false, false, false}));
    // A clip without GPS, once read, has nothing to export either.
    open({movie(3)});
    EXPECT_EQ(offered(), (std::vector<bool>{false, false, false, false}));
}

TEST_F(ExportControllerTest, ThePlaylistBecomesOneTrackPerTripInTheChosenFormat) {
    // Two trips: three clips that follow each other, and one from another drive.
    open({tripClip("a0.mov"), tripClip("a1.mov"), tripClip("a2.mov"), tripClip("b0.mov")});
    EXPECT_EQ(offered(), (std::vector<bool>{true, true, true, true}));

    controller.OnExportTrack(MainWindowDelegate::ExportScope::Playlist);
    auto* dialog = window.findChild<QFileDialog*>(QStringLiteral("exportTrackDialog"));
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(dialog->selectedNameFilter(), QStringLiteral("GPX 1.1 (*.gpx)"));  // nothing remembered yet
    const QTemporaryDir folder;
    const std::filesystem::path target = folder.filePath(QStringLiteral("drive.kml")).toStdString();
    dialog->selectNameFilter(QStringLiteral("KML 2.2 (*.kml)"));
    dialog->selectFile(QString::fromStdString(target.string()));
    QMetaObject::invokeMethod(dialog, "accept");  // as the Save button does
    ASSERT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(target) && playlistItem->isEnabled(); }));

    EXPECT_EQ(settings.utils().exportFormat(), "kml");
    // The next export offers the remembered format first.
    controller.OnExportTrack(MainWindowDelegate::ExportScope::LoadedClip);
    const auto dialogs = window.findChildren<QFileDialog*>(QStringLiteral("exportTrackDialog"));
    ASSERT_EQ(dialogs.size(), 1);  // the first one went when it closed
    EXPECT_EQ(dialogs.front()->selectedNameFilter(), QStringLiteral("KML 2.2 (*.kml)"));
    dialogs.front()->reject();
    std::ostringstream text;
    text << std::ifstream(target).rdbuf();
    const auto count = [&](const std::string& part) {
        std::size_t n = 0;
        for (std::size_t at = text.str().find(part); at != std::string::npos; at = text.str().find(part, at + 1)) ++n;
        return n;
    };
    EXPECT_EQ(count("<Placemark>"), 2u);
    EXPECT_EQ(count("<gx:MultiTrack>"), 2u);
    EXPECT_EQ(count("<gx:Track>"), 4u);
    EXPECT_EQ(count("<name>Trip 1, from "), 1u);
    EXPECT_EQ(count("<name>Trip 2, from "), 1u);
}

}  // namespace
