#include "FileAttributes.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace {

std::chrono::system_clock::time_point timePoint(const struct statx_timestamp& stamp) {
    using namespace std::chrono;
    return system_clock::time_point(duration_cast<system_clock::duration>(seconds(stamp.tv_sec) +
                                                                          nanoseconds(stamp.tv_nsec)));
}

}  // namespace

std::optional<FileAttributes> readFileAttributes(const std::filesystem::path& file) {
    struct statx info {};
    if (::statx(AT_FDCWD, file.c_str(), AT_STATX_SYNC_AS_STAT, STATX_SIZE | STATX_BTIME | STATX_MTIME, &info) != 0)
        return std::nullopt;
    if (!(info.stx_mask & STATX_SIZE)) return std::nullopt;
    // Without a birth time (FAT cards from a camera, some network file systems) the modification
    // time stands in: it is when the camera finished writing, and copies keep it.
    const bool born = (info.stx_mask & STATX_BTIME) != 0;
    if (!born && !(info.stx_mask & STATX_MTIME)) return std::nullopt;
    return FileAttributes{.size = info.stx_size, .creationTime = timePoint(born ? info.stx_btime : info.stx_mtime)};
}
