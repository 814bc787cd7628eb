#include "TrackExportJob.h"

#include "TrackFormats.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <fstream>
#include <optional>
#include <random>
#include <system_error>

namespace {

std::string systemError(int error) {
    return error != 0 ? std::generic_category().message(error) : std::string("the write failed");
}

// A temporary file of our own beside the target: the rename then stays on one file system, and
// it gets the permissions a new file of the user's would (which mkstemp's 0600 would not).
class TemporaryFile {
public:
    explicit TemporaryFile(const std::filesystem::path& target) {
        std::random_device random;
        for (int attempt = 0; attempt < 16 && !created_; ++attempt) {
            path_ = target.parent_path() /
                    ("." + target.filename().string() + ".export-" + std::to_string(random() % 1000000));
            const int fd = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
            if (fd >= 0) {
                ::close(fd);
                created_ = true;
            } else if (errno != EEXIST) {
                error_ = errno;
                return;
            }
        }
        if (!created_ && error_ == 0) error_ = EEXIST;
    }
    ~TemporaryFile() {
        if (created_) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool created() const { return created_; }
    int error() const { return error_; }
    const std::filesystem::path& path() const { return path_; }
    // Flushed to the disk and renamed over target: after this the destructor leaves it be.
    std::optional<int> moveTo(const std::filesystem::path& target) {
        const int fd = ::open(path_.c_str(), O_RDONLY | O_CLOEXEC);
        if (fd < 0 || ::fsync(fd) != 0) {
            const int error = errno;
            if (fd >= 0) ::close(fd);
            return error;
        }
        ::close(fd);
        if (::rename(path_.c_str(), target.c_str()) != 0) return errno;
        created_ = false;
        return std::nullopt;
    }

private:
    std::filesystem::path path_;
    bool created_ = false;
    int error_ = 0;
};

}  // namespace

std::size_t TrackExportJob::clipCount() const {
    std::size_t count = 0;
    for (const ExportTrack& track : request_.tracks) count += track.clips.size();
    return count;
}

TrackExportResult TrackExportJob::run(std::stop_token cancel,
                                      const std::function<void(std::size_t, std::size_t)>& progress) const {
    using Outcome = TrackExportResult::Outcome;
    const TrackFormat* format = findTrackFormat(request_.format);
    if (format == nullptr) return {Outcome::Failed, "no such format"};
    if (cancel.stop_requested()) return {Outcome::Cancelled, {}};

    TemporaryFile temporary(request_.target);
    if (!temporary.created()) return {Outcome::Failed, systemError(temporary.error())};
    std::ofstream out(temporary.path(), std::ios::binary | std::ios::trunc);
    if (!out) return {Outcome::Failed, systemError(errno)};

    const std::size_t total = clipCount();
    const bool loneClip = total == 1;
    const auto writer = format->make(out, {.unit = request_.unit, .severalFiles = !loneClip, .segmented = !loneClip});
    std::size_t gathered = 0;
    writer->begin();
    for (const ExportTrack& track : request_.tracks) {
        std::vector<NamedTrack> segments;
        segments.reserve(track.clips.size());
        for (const ExportClip& clip : track.clips) {
            if (cancel.stop_requested()) return {Outcome::Cancelled, {}};
            segments.push_back({clip.name, clip.load ? clip.load() : GPSTrack{}});
            if (progress) progress(++gathered, total);
        }
        if (cancel.stop_requested()) return {Outcome::Cancelled, {}};
        if (loneClip)
            writer->file(segments.front());
        else if (!segments.empty())
            writer->segmentedTrack(track.name, segments);
        if (!out) return {Outcome::Failed, systemError(errno)};
    }
    writer->end();
    out.close();
    if (!out) return {Outcome::Failed, systemError(errno)};
    if (cancel.stop_requested()) return {Outcome::Cancelled, {}};
    if (const std::optional<int> error = temporary.moveTo(request_.target)) return {Outcome::Failed, systemError(*error)};
    return {Outcome::Written, {}};
}
