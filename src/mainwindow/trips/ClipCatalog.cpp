#include "ClipCatalog.h"

#include "FileAttributes.h"
#include "GPSDataLoader.h"
#include "Geodesy.h"
#include "MovieDuration.h"
#include "SampleClock.h"

#include <QMetaObject>

#include <chrono>
#include <ctime>

namespace {

std::optional<int64_t> firstDated(const std::vector<GPSData>& track, bool fromEnd) {
    const std::size_t n = track.size();
    for (std::size_t i = 0; i < n; ++i) {
        const GPSData& sample = track[fromEnd ? n - 1 - i : i];
        if (const auto seconds = sampleClockSeconds(sample.data().rmcinfo)) return seconds;
    }
    return std::nullopt;
}

}  // namespace

ClipRecord ClipCatalog::readClip(const std::filesystem::path& file) {
    auto track = std::make_shared<std::vector<GPSData>>();
    GPSTrack loaded = GPSDataLoader::LoadTrack(file);
    std::vector<GPSData> records = std::move(loaded.samples);
    if (!records.empty()) {
        track->reserve(records.size() + 1);
        track->emplace_back();
        track->insert(track->end(), records.begin(), records.end());
    }
    ClipRecord record;
    record.facts.summary.firstSampleSeconds = firstDated(records, false);
    record.facts.summary.lastSampleSeconds = firstDated(records, true);
    record.facts.summary.durationSeconds = readMovieDuration(file).value_or(0.0);
    if (const auto attributes = readFileAttributes(file)) {
        // On the local wall clock, as the camera's GPS times are: a trip without GPS then starts
        // at the time the table's Date & Time column shows.
        const std::time_t utc = std::chrono::system_clock::to_time_t(attributes->creationTime);
        std::tm local{};
        if (localtime_r(&utc, &local) != nullptr) record.facts.summary.creationSeconds = int64_t(utc) + local.tm_gmtoff;
    }
    record.facts.distanceMetres = trackDistanceMetres(records);
    record.track = std::move(track);
    if (!loaded.fixes.empty()) record.fixes = std::make_shared<const std::vector<GPSFix>>(std::move(loaded.fixes));
    return record;
}

ClipCatalog::ClipCatalog(QObject* parent, Reader reader)
    : QObject(parent), reader_(reader ? std::move(reader) : Reader(&ClipCatalog::readClip)) {
    worker_ = std::jthread([this](const std::stop_token& stop) { run(stop); });
}

ClipCatalog::~ClipCatalog() {
    worker_.request_stop();
    wake_.notify_all();
}

void ClipCatalog::request(const std::vector<std::filesystem::path>& files) {
    {
        const std::lock_guard lock(mutex_);
        for (const auto& file : files) {
            if (asked_.insert(file).second) {
                queue_.push_back(file);
                askedInOrder_.push_back(file);
            }
        }
    }
    wake_.notify_all();
}

const ClipRecord* ClipCatalog::find(const std::filesystem::path& file) const {
    const auto it = records_.find(file);
    return it == records_.end() ? nullptr : &it->second;
}

std::size_t ClipCatalog::pending() const {
    const std::lock_guard lock(mutex_);
    return queue_.size() + inHand_ + done_.size();
}

void ClipCatalog::run(const std::stop_token& stop) {
    std::unique_lock lock(mutex_);
    while (!stop.stop_requested()) {
        if (!wake_.wait(lock, stop, [this] { return !queue_.empty(); })) return;
        const std::filesystem::path file = std::move(queue_.front());
        queue_.pop_front();
        inHand_ = 1;
        const int correction = clockCorrection_;
        const uint64_t generation = generation_;
        lock.unlock();
        ClipRecord record = reader_(file);
        correctClock(record, correction);
        lock.lock();
        inHand_ = 0;
        done_.emplace_back(file, std::move(record));
        doneGeneration_.push_back(generation);
        // One delivery on its way carries every clip read until it runs.
        if (!deliveryPosted_) {
            deliveryPosted_ = true;
            QMetaObject::invokeMethod(this, [this] { deliver(); }, Qt::QueuedConnection);
        }
    }
}

void ClipCatalog::deliver() {
    std::vector<std::pair<std::filesystem::path, ClipRecord>> batch;
    std::vector<uint64_t> generations;
    uint64_t current = 0;
    {
        const std::lock_guard lock(mutex_);
        batch.swap(done_);
        generations.swap(doneGeneration_);
        current = generation_;
        deliveryPosted_ = false;
    }
    for (std::size_t i = 0; i < batch.size(); ++i) {
        if (generations[i] == current) records_[batch[i].first] = std::move(batch[i].second);
    }
    if (!batch.empty()) emit clipsRead();
}

void ClipCatalog::setClockCorrectionMinutes(int minutes) {
    {
        const std::lock_guard lock(mutex_);
        if (minutes == clockCorrection_) return;
        clockCorrection_ = minutes;
        ++generation_;
        // Every clip again, in the order asked: the ones waiting are in that list already.
        queue_.assign(askedInOrder_.begin(), askedInOrder_.end());
    }
    wake_.notify_all();
}

void ClipCatalog::correctClock(ClipRecord& record, int minutes) {
    if (minutes == 0) return;
    if (record.track) {
        auto track = std::make_shared<std::vector<GPSData>>(*record.track);
        for (GPSData& sample : *track) sample.shiftClockByMinutes(minutes);
        record.track = std::move(track);
    }
    const int64_t seconds = int64_t(minutes) * 60;
    if (record.fixes) {
        auto fixes = std::make_shared<std::vector<GPSFix>>(*record.fixes);
        for (GPSFix& fix : *fixes) {
            if (fix.clockSeconds) *fix.clockSeconds += double(seconds);
        }
        record.fixes = std::move(fixes);
    }
    ClipSummary& summary = record.facts.summary;
    for (std::optional<int64_t>* time : {&summary.firstSampleSeconds, &summary.lastSampleSeconds, &summary.creationSeconds}) {
        if (*time) **time += seconds;
    }
}
