#pragma once
// The GPS tracks, lengths and creation times of the playlist's clips, read on a worker thread as
// the playlist fills, so that trips, the timeline and the route ahead never make the window wait.
// Results come back on the thread that made the catalog, a batch at a time.

#include "GPSData.h"
#include "TripIndex.h"

#include <QObject>

#include <condition_variable>
#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <optional>
#include <stop_token>
#include <thread>
#include <utility>
#include <vector>

// What the catalog knows of one clip.
struct ClipRecord {
    // The player's form of the track: an empty lead-in sample, then one record a second.
    std::shared_ptr<const std::vector<GPSData>> track;
    // Every fix of the formats that record several a second; null for the others.
    std::shared_ptr<const std::vector<GPSFix>> fixes;
    ClipFacts facts;
};

class ClipCatalog final : public QObject {
    Q_OBJECT
public:
    using Reader = std::function<ClipRecord(const std::filesystem::path&)>;

    // A null reader means readClip.
    explicit ClipCatalog(QObject* parent = nullptr, Reader reader = {});
    // Stops the worker after the file in hand.
    ~ClipCatalog() override;
    ClipCatalog(const ClipCatalog&) = delete;
    ClipCatalog& operator=(const ClipCatalog&) = delete;

    // Queues the files not yet read or queued, in order.
    void request(const std::vector<std::filesystem::path>& files);
    const ClipRecord* find(const std::filesystem::path& file) const;
    // Files queued or being read.
    std::size_t pending() const;

    // Reads one clip from the disk: its track, its length from the movie header, its creation time.
    static ClipRecord readClip(const std::filesystem::path& file);

    // Minutes added to every clip's times (the camera's clock set wrong), from the next read on.
    // A change reads every known clip again in the background; until each is read again, find()
    // gives its record with the old times.
    void setClockCorrectionMinutes(int minutes);
    // The record with its date and times moved by minutes: the track, the fixes' clock and the
    // trip facts alike, so that everything built on it agrees.
    static void correctClock(ClipRecord& record, int minutes);

signals:
    // Some clips have been read; find() now knows them.
    void clipsRead();

private:
    void run(const std::stop_token& stop);
    void deliver();

    Reader reader_;
    std::map<std::filesystem::path, ClipRecord> records_;

    mutable std::mutex mutex_;
    std::condition_variable_any wake_;
    std::deque<std::filesystem::path> queue_;
    std::vector<std::pair<std::filesystem::path, ClipRecord>> done_;
    std::set<std::filesystem::path> asked_;  // queued or read, so each file is read once
    std::vector<std::filesystem::path> askedInOrder_;
    int clockCorrection_ = 0;
    // Bumped by each correction change: a record read under an older one is not delivered.
    uint64_t generation_ = 0;
    std::vector<uint64_t> doneGeneration_;
    std::size_t inHand_ = 0;
    bool deliveryPosted_ = false;
    // Last: stopped and joined before anything above goes.
    std::jthread worker_;
};
