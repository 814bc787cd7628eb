// Files dragged onto the key-handling view: names read from a URI list, the answers to a drag,
// and drops of many files, read on a worker thread and answered in the order they were made.

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

class DropTest : public ControlViewTest {
protected:
    template <typename Event>
    Qt::DropAction answer(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        Event event(QPoint(5, 5), allowed, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.get(), &event);
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }
    Qt::DropAction enter(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        return answer<QDragEnterEvent>(data, allowed);
    }
    void leave() {
        QDragLeaveEvent event;
        QCoreApplication::sendEvent(view_.get(), &event);
    }
    void drop(const QMimeData& data, Qt::DropActions allowed = Qt::CopyAction | Qt::MoveAction) {
        QDropEvent event(QPointF(6, 6), allowed, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(view_.get(), &event);
    }
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
    using Names = std::vector<std::string>;
    const std::vector<Row> rows{
        {"plain and spaced",
         {"file:///clips/a.mov", "file:///clips/two%20words.mp4"},
         Names{"/clips/a.mov", "/clips/two words.mp4"}},
        {"not UTF-8", {"file:///clips/caf%E9-%FF.mov"}, Names{"/clips/caf\xe9-\xff.mov"}},
        {"localhost", {"file://localhost/clips/a.mov"}, Names{"/clips/a.mov"}},
        {"no files of this machine", {"https://example.org/a.mov", "file://elsewhere/clips/a.mov"}, Names{}},
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

TEST_F(DropTest, EnteringOffersACopyOnlyForAMovieAndACopyingSourceButEveryDropIsTold) {
    struct Row {
        const char* name;
        std::vector<std::string> names;
        Qt::DropActions allowed;
        Qt::DropAction answer;
        Paths movies;
    };
    const Row rows[] = {
        {"movies among text, one twice",
         {"/clips/movie-a.mov", "/clips/notes.txt", "/clips/movie-b.avi", "/clips/movie-a.mov"},
         Qt::CopyAction | Qt::MoveAction,
         Qt::CopyAction,
         {"/clips/movie-a.mov", "/clips/movie-b.avi", "/clips/movie-a.mov"}},
        {"no movie", {"/clips/notes.txt", "/clips/song.mp4"}, Qt::CopyAction, Qt::IgnoreAction, {}},
        {"no copy allowed",
         {"/clips/movie-a.mov"},
         Qt::MoveAction | Qt::LinkAction,
         Qt::IgnoreAction,
         {"/clips/movie-a.mov"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        delegate_.drops.clear();
        const auto data = files(row.names);
        EXPECT_EQ(enter(*data, row.allowed), row.answer);
        EXPECT_TRUE(view_->isValidDragging()) << "set on entering whatever the answer";
        // Moving always answers copy; Qt makes it the source's own choice where copy is not allowed.
        const Qt::DropAction moved = answer<QDragMoveEvent>(*data, row.allowed);
        EXPECT_NE(moved, Qt::IgnoreAction);
        if (row.allowed.testFlag(Qt::CopyAction)) {
            EXPECT_EQ(moved, Qt::CopyAction);
        }
        drop(*data, row.allowed);
        ASSERT_EQ(delegate_.drops.size(), 1u);
        EXPECT_EQ(delegate_.drops[0].sender, view_.get());
        EXPECT_EQ(delegate_.drops[0].movies, row.movies);
        EXPECT_TRUE(view_->isValidDragging()) << "the end of a drag leaves it set";
    }
    // Dragged in and out again: a drop that follows adds nothing.
    delegate_.drops.clear();
    const auto data = files({"/clips/movie-a.mov"});
    enter(*data);
    leave();
    EXPECT_FALSE(view_->isValidDragging());
    drop(*data);
    EXPECT_TRUE(delegate_.drops.empty());
}

TEST_F(DropTest, DropsAreAnsweredInTheOrderTheyWereMade) {
    auto large = manyNames("clip", 12);
    large[0] = "/clips/held.mov";  // keeps the worker until released
    large[1] = "/clips/movie-large.mov";
    large[11] = "/clips/movie-11.mov";
    const auto largeData = files(large);
    const auto smallData = files({"/clips/movie-small.mov"});

    EXPECT_EQ(enter(*largeData), Qt::CopyAction) << "a drag of many is taken on trust";
    drop(*largeData);
    processEventsUntil([&] { return !settings_.probe().threads().empty(); });
    EXPECT_FALSE(settings_.probe().threads().contains(std::this_thread::get_id()))
        << "entering reads none of them and the drop reads them off the window's thread";
    enter(*smallData);
    drop(*smallData);
    // The small drop is read meanwhile, but must wait for the large one.
    processEventsUntil([&] { return settings_.probe().calls() >= 1; });
    QCoreApplication::processEvents();
    EXPECT_TRUE(delegate_.drops.empty());

    settings_.probe().release();
    processEventsUntil([&] { return delegate_.drops.size() == 2; });
    EXPECT_EQ(delegate_.drops[0].sender, view_.get());
    EXPECT_EQ(delegate_.drops[0].movies, (Paths{"/clips/movie-large.mov", "/clips/movie-11.mov"}));
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
