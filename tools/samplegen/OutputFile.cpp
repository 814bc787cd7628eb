#include "OutputFile.h"

#include "SampleGenError.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#include <cstring>
#include <string>
#include <vector>

namespace {

std::string systemError(const std::string& what, const std::filesystem::path& path) {
    return path.string() + ": " + what + ": " + std::strerror(errno);
}

}  // namespace

OutputFile::OutputFile(const std::filesystem::path& destination) : destination_(destination) {
    std::string pattern = destination.string() + ".XXXXXX";
    fd_ = ::mkstemp(pattern.data());
    if (fd_ < 0) throw SampleGenError(systemError("cannot create output", destination));
    temporary_ = pattern;
    (void)::fchmod(fd_, 0644);  // mkstemp makes it private; a movie is for everyone to play
}

OutputFile::~OutputFile() {
    if (fd_ >= 0) ::close(fd_);
    if (!temporary_.empty()) ::unlink(temporary_.c_str());
}

void OutputFile::writeAt(uint64_t offset, std::span<const uint8_t> data) {
    while (!data.empty()) {
        const ssize_t written = ::pwrite(fd_, data.data(), data.size(), off_t(offset));
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) throw SampleGenError(systemError("write failed", destination_));
        data = data.subspan(std::size_t(written));
        offset += uint64_t(written);
    }
}

uint64_t OutputFile::write(std::span<const uint8_t> data) {
    const uint64_t start = position_;
    writeAt(start, data);
    position_ += data.size();
    return start;
}

void OutputFile::padTo(uint64_t offset) {
    if (offset <= position_) return;
    write(std::vector<uint8_t>(offset - position_, 0));
}

void OutputFile::patchU32BE(uint64_t offset, uint32_t value) {
    const uint8_t bytes[4] = {uint8_t(value >> 24), uint8_t(value >> 16), uint8_t(value >> 8), uint8_t(value)};
    writeAt(offset, bytes);
}

void OutputFile::commit(std::optional<int64_t> modificationTime) {
    if (modificationTime) {
        const timespec times[2] = {{time_t(*modificationTime), 0}, {time_t(*modificationTime), 0}};
        if (::futimens(fd_, times) != 0) throw SampleGenError(systemError("cannot set file time", destination_));
    }
    const int fd = fd_;
    fd_ = -1;
    if (::close(fd) != 0) throw SampleGenError(systemError("write failed", destination_));
    if (::rename(temporary_.c_str(), destination_.c_str()) != 0)
        throw SampleGenError(systemError("cannot rename output", destination_));
    temporary_.clear();
}
