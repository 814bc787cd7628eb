#pragma once
// Picks the movies out of the files dragged onto the window. A few files are read on the spot; many
// are read on a worker thread and the answer is posted back, so a drop never stalls the window.
// The answers come back in the order of the drops.

#include "FilePasteboard.h"

#include <QObject>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

class GPSUtils;
class ValidationJob;

class DroppedMovieFilter final : public QObject {
    Q_OBJECT

public:
    using Movies = std::vector<std::filesystem::path>;
    using Delivery = std::function<void(const Movies& movies)>;

    // Up to this many files are read on the caller's thread.
    static constexpr std::size_t kMostFilesReadAtOnce = 8;

    // utils decides which files are movies and must outlive the filter.
    explicit DroppedMovieFilter(const GPSUtils& utils, QObject* parent = nullptr);
    // Cancels the drops still being read: their movies are never delivered.
    ~DroppedMovieFilter() override;

    // Whether a drag may bring a movie in, as the drag enters. A few files are read; a drag of many
    // is taken on trust, since reading them would stall the window while the pointer moves.
    bool mayHoldMovie(const FilePasteboard& pasteboard) const;

    // Calls deliver with the movies of pasteboard, in their order, possibly none: at once for a few
    // files when no earlier drop is still being read, else later from this object's thread.
    void filter(const FilePasteboard& pasteboard, Delivery deliver);
    // Drops whose movies have not been delivered yet.
    std::size_t pendingDrops() const { return pending_.size(); }

private:
    struct PendingDrop {
        uint64_t id = 0;
        std::unique_ptr<ValidationJob> job;
        Delivery deliver;
        std::optional<Movies> movies;
    };

    static bool isFew(const FilePasteboard& pasteboard);
    void finished(uint64_t id, Movies movies);

    const GPSUtils& utils_;
    uint64_t nextId_ = 1;
    std::deque<PendingDrop> pending_;
};
