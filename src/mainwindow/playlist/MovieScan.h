#pragma once
// One scan for movies, off the UI thread: lists the candidates and runs the video track test on a
// worker thread, and reports on the thread that made it. A child of the window that asked: when
// the window goes, the scan is cancelled and its result is never delivered. It deletes itself
// once it has delivered its result.

#include "VideoTrackProbe.h"

#include <QObject>

#include <atomic>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <memory>
#include <stop_token>
#include <thread>
#include <vector>

class MovieScan final : public QObject {
    Q_OBJECT
public:
    using Files = std::vector<std::filesystem::path>;

    // The movies of the folder that holds firstChosen (movieCandidates).
    static MovieScan* openPanel(std::shared_ptr<const VideoTrackProbe> probe, std::filesystem::path firstChosen,
                                QObject* parent);
    // The movies among the command line's arguments (commandLineCandidates).
    static MovieScan* commandLine(std::shared_ptr<const VideoTrackProbe> probe, std::vector<std::filesystem::path> args,
                                  QObject* parent);

    // Cancels and waits for the file in hand.
    ~MovieScan() override;
    MovieScan(const MovieScan&) = delete;
    MovieScan& operator=(const MovieScan&) = delete;

signals:
    // After files are tested; several steps may come as one.
    void progressed(qulonglong done, qulonglong total);
    // The files that passed, in the candidates' order. Not emitted when the scan is cancelled.
    void finished(const std::vector<std::filesystem::path>& movies);

private:
    using Lister = std::function<Files()>;
    MovieScan(std::shared_ptr<const VideoTrackProbe> probe, Lister lister, QObject* parent);

    void run(const std::stop_token& stop, const VideoTrackProbe* probe, const Lister& lister);
    void postProgress(std::size_t done);
    void deliver(const Files& movies);

    std::atomic<std::size_t> done_ = 0;
    std::atomic<std::size_t> total_ = 0;
    // True while a progress report is on its way; later steps ride on it.
    std::atomic<bool> progressPosted_ = false;
    // Last: stopped and joined in the destructor before anything above goes.
    std::jthread worker_;
};
