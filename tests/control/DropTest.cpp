// Files dragged onto the key-handling view: the names it reads from a URI list, the answers to
// entering and moving, what a drop hands to the delegate, and the drops of many files, read on a
// worker thread and answered in the order they were made.

#include "ControlTestSupport.h"
#include "DroppedMovieFilter.h"
#include "GPSControlView.h"

#include <QCoreApplication>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QUrl>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace {

using Paths = std::vector<std::filesystem::path>;

std::unique_ptr<QMimeData> uriList(const std::vector<QByteArray>& uris) {
    QByteArray list;
    for (const auto& uri : uris) list += uri + "\r\n";
    auto data = std::make_unique<QMimeData>();
    data->setData(QStringLiteral("text/uri-list"), list);
    return data;
}

std::unique_ptr<QMimeData> files(const std::vector<std::string>& names) {
    std::vector<QByteArray> uris;
    for (const auto& name : names) uris.push_back(QUrl::fromLocalFile(QString::fromStdString(name)).toEncoded());
    return uriList(uris);
}

// Runs the event loop until done() holds; the workers always finish, so this always returns.
void processEventsUntil(const std::function<bool()>& done) {
    while (!done()) {
        QCoreApplication::processEvents();
        std::this_thread::yield();
    }
}

class DropTest : public ::testing::Test {
protected:
    DropTest() { view_->setDelegate(&delegate_); }

    Qt::DropAction enter(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDragEnterEvent event(QPoint(5, 5), allowed, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.get(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    Qt::DropAction move(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDragMoveEvent event(QPoint(6, 6), allowed, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.get(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    void leave() {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(view_.get(), &event);
    }
    void drop(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDropEvent event(QPointF(6, 6), allowed, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.get(), &event);
    }

    ProbedSettings settings_;
    RecordingDelegate delegate_;
    std::unique_ptr<GPSControlView> view_ = std::make_unique<GPSControlView>(settings_.utils());
};

std::vector<std::string> manyNames(const char* stem, int count) {
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back("/clips/" + std::string(stem) + std::to_string(i) + ".mov");
    return names;
}

TEST(GPSControlViewPasteboard, ReadsLocalFileNamesAsBytes) {
    struct Row {
        const char* name;
        std::vector<QByteArray> uris;
        std::optional<std::vector<std::string>> names;
    };
    const std::vector<Row> rows{
        {"plain and spaced",
         {"file:///clips/a.mov", "file:///clips/two%20words.mp4"},
         std::vector<std::string>{"/clips/a.mov", "/clips/two words.mp4"}},
        {"not UTF-8", {"file:///clips/caf%E9-%FF.mov"}, std::vector<std::string>{"/clips/caf\xe9-\xff.mov"}},
        {"UTF-8", {"file:///clips/%D0%B4%D0%B0.mov"}, std::vector<std::string>{"/clips/\xd0\xb4\xd0\xb0.mov"}},
        {"localhost", {"file://localhost/clips/a.mov"}, std::vector<std::string>{"/clips/a.mov"}},
        {"no files of this machine",
         {"https://example.org/a.mov", "file://elsewhere/clips/a.mov"},
         std::vector<std::string>{}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto data = uriList(row.uris);
        EXPECT_EQ(GPSControlView::pasteboardOf(*data).filenames, row.names);
    }
    QMimeData text;
    text.setText(QStringLiteral("/clips/a.mov"));
    EXPECT_EQ(GPSControlView::pasteboardOf(text).filenames, std::nullopt) << "no URI list";
}

TEST_F(DropTest, EnteringOffersACopyOnlyForAMovieAndACopyingSource) {
    struct Row {
        const char* name;
        std::vector<std::string> names;
        Qt::DropActions allowed;
        Qt::DropAction answer;
    };
    const std::vector<Row> rows{
        {"a movie", {"/clips/movie-a.mov"}, Qt::CopyAction, Qt::CopyAction},
        {"a movie among text",
         {"/clips/notes.txt", "/clips/movie-a.mov"},
         Qt::CopyAction | Qt::MoveAction,
         Qt::CopyAction},
        {"no movie", {"/clips/notes.txt", "/clips/song.mp4"}, Qt::CopyAction, Qt::IgnoreAction},
        {"no copy allowed", {"/clips/movie-a.mov"}, Qt::MoveAction | Qt::LinkAction, Qt::IgnoreAction},
        {"nothing", {}, Qt::CopyAction, Qt::IgnoreAction},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        leave();
        const auto data = files(row.names);
        EXPECT_EQ(enter(*data, row.allowed), row.answer);
        EXPECT_TRUE(view_->isValidDragging()) << "set on entering whatever the answer";
        // Moving always answers copy; Qt makes it the source's own choice where copy is not allowed.
        EXPECT_NE(move(*data, row.allowed), Qt::IgnoreAction);
        if (row.allowed.testFlag(Qt::CopyAction)) {
            EXPECT_EQ(move(*data, row.allowed), Qt::CopyAction);
        }
    }
    EXPECT_TRUE(delegate_.drops.empty());
}

TEST_F(DropTest, EveryDropTellsTheDelegateItsMoviesInOrder) {
    struct Row {
        const char* name;
        std::vector<std::string> names;
        Qt::DropActions allowed;
        Paths movies;
    };
    const std::vector<Row> rows{
        {"movies among text, one twice",
         {"/clips/movie-a.mov", "/clips/notes.txt", "/clips/movie-b.avi", "/clips/movie-a.mov"},
         Qt::CopyAction | Qt::MoveAction,
         {"/clips/movie-a.mov", "/clips/movie-b.avi", "/clips/movie-a.mov"}},
        {"no movie: still told", {"/clips/notes.txt"}, Qt::CopyAction, {}},
        {"a source that does not copy", {"/clips/movie-a.mov"}, Qt::MoveAction, {"/clips/movie-a.mov"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        delegate_.drops.clear();
        const auto data = files(row.names);
        enter(*data, row.allowed);
        drop(*data, row.allowed);
        ASSERT_EQ(delegate_.drops.size(), 1u);
        EXPECT_EQ(delegate_.drops[0].sender, view_.get());
        EXPECT_EQ(delegate_.drops[0].movies, row.movies);
        EXPECT_TRUE(view_->isValidDragging()) << "the end of a drag leaves it set";
    }
}

TEST_F(DropTest, DraggingInAndOutAgainAddsNothing) {
    const auto data = files({"/clips/movie-a.mov"});
    enter(*data);
    leave();
    EXPECT_FALSE(view_->isValidDragging());
    drop(*data);
    EXPECT_TRUE(delegate_.drops.empty());
}

TEST_F(DropTest, ManyFilesAreReadOffTheWindowsThread) {
    auto names = manyNames("clip", 20);
    names[3] = "/clips/movie-3.mov";
    names[17] = "/clips/movie-17.mov";
    const auto data = files(names);

    EXPECT_EQ(enter(*data), Qt::CopyAction) << "a drag of many is taken on trust";
    EXPECT_EQ(settings_.probe().calls(), 0u) << "entering reads none of them";

    drop(*data);
    EXPECT_TRUE(delegate_.drops.empty()) << "the answer comes later";
    processEventsUntil([&] { return !delegate_.drops.empty(); });
    ASSERT_EQ(delegate_.drops.size(), 1u);
    EXPECT_EQ(delegate_.drops[0].sender, view_.get());
    EXPECT_EQ(delegate_.drops[0].movies, (Paths{"/clips/movie-3.mov", "/clips/movie-17.mov"}));
    EXPECT_FALSE(settings_.probe().threads().contains(std::this_thread::get_id()));
}

TEST_F(DropTest, DropsAreAnsweredInTheOrderTheyWereMade) {
    auto large = manyNames("clip", 12);
    large[0] = "/clips/held.mov";  // keeps the worker until released
    large[1] = "/clips/movie-large.mov";
    const auto largeData = files(large);
    const auto smallData = files({"/clips/movie-small.mov"});

    enter(*largeData);
    drop(*largeData);
    enter(*smallData);
    drop(*smallData);
    // The small drop is read meanwhile, but must wait for the large one.
    processEventsUntil([&] { return settings_.probe().calls() >= 1; });
    QCoreApplication::processEvents();
    EXPECT_TRUE(delegate_.drops.empty());

    settings_.probe().release();
    processEventsUntil([&] { return delegate_.drops.size() == 2; });
    EXPECT_EQ(delegate_.drops[0].movies, (Paths{"/clips/movie-large.mov"}));
    EXPECT_EQ(delegate_.drops[1].movies, (Paths{"/clips/movie-small.mov"}));
}

TEST_F(DropTest, AnAnswerThatComesAfterTheViewHasGoneIsDropped) {
    const auto data = files(manyNames("movie-", 30));
    enter(*data);
    drop(*data);
    view_.reset();
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents();
    EXPECT_TRUE(delegate_.drops.empty());
}

}  // namespace
