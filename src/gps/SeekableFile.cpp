#include "SeekableFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstring>

std::size_t SeekableFile::read(std::span<uint8_t> buffer) {
    const std::size_t got = readAt(position_, buffer);
    position_ += got;
    return got;
}

std::unique_ptr<PosixFile> PosixFile::open(const std::filesystem::path& path) {
    // Non-blocking, so that naming a FIFO cannot hang the caller; reads of regular files ignore it.
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return nullptr;
    struct stat st {};
    if (::fstat(fd, &st) != 0) {
        const int error = errno;
        ::close(fd);
        errno = error;
        return nullptr;
    }
    // A folder, a device or a pipe opens for reading on Linux but is no movie file.
    if (!S_ISREG(st.st_mode)) {
        ::close(fd);
        errno = S_ISDIR(st.st_mode) ? EISDIR : EINVAL;
        return nullptr;
    }
    // Blocks lie a second of media apart: read-ahead would pull in pages nobody asked for.
    ::posix_fadvise(fd, 0, 0, POSIX_FADV_RANDOM);
    return std::make_unique<PosixFile>(Key{}, fd, uint64_t(st.st_size));
}

PosixFile::~PosixFile() { ::close(fd_); }

std::size_t PosixFile::readAt(uint64_t offset, std::span<uint8_t> buffer) {
    if (offset >= size_) return 0;
    std::size_t done = 0;
    while (done < buffer.size()) {
        const ssize_t n = ::pread(fd_, buffer.data() + done, buffer.size() - done, off_t(offset + done));
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        done += std::size_t(n);
    }
    return done;
}

uint64_t PosixFile::zeroBytesAt(uint64_t offset) const {
    if (offset >= size_) return 0;
    // The next byte of data at or after offset; a file system that cannot tell answers offset.
    const off_t data = ::lseek(fd_, off_t(offset), SEEK_DATA);
    if (data < 0) return errno == ENXIO ? size_ - offset : 0;
    return std::min(uint64_t(data), size_) - offset;
}

std::size_t MemoryFile::readAt(uint64_t offset, std::span<uint8_t> buffer) {
    if (offset >= bytes_.size()) return 0;
    const std::size_t n = std::min<uint64_t>(buffer.size(), bytes_.size() - offset);
    std::copy_n(bytes_.begin() + std::ptrdiff_t(offset), n, buffer.begin());
    return n;
}
