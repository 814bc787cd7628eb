#include "TableStream.h"

#include <algorithm>

namespace {

// Entries in a hole of a sparse file: all zero, handed out without reading the file.
constexpr std::array<uint8_t, TableStream::kBufferBytes> kZeros{};

}  // namespace

TableStream::TableStream(SeekableFile& file, uint64_t start, uint64_t entries, std::size_t entryBytes)
    : file_(file), nextOffset_(start), remaining_(entries), entryBytes_(entryBytes) {}

std::span<const uint8_t> TableStream::nextRun() {
    if (remaining_ == 0) return {};
    if (filled_ - cursor_ < entryBytes_ && !refill()) return {};
    const std::size_t entries = std::size_t(std::min<uint64_t>((filled_ - cursor_) / entryBytes_, remaining_));
    const std::span<const uint8_t> run(source_ + cursor_, entries * entryBytes_);
    cursor_ += run.size();
    remaining_ -= entries;
    return run;
}

bool TableStream::refill() {
    // Whole entries only, so an entry never straddles two fills.
    const uint64_t wanted = std::min<uint64_t>(remaining_, kBufferBytes / entryBytes_) * entryBytes_;
    cursor_ = 0;
    // A table in a hole costs no read: a hostile file claims gigabytes of it.
    if (zerosAhead_ < entryBytes_) zerosAhead_ = file_.zeroBytesAt(nextOffset_);
    const uint64_t zeros = std::min(zerosAhead_, wanted);
    if (zeros >= entryBytes_) {
        source_ = kZeros.data();
        filled_ = std::size_t(zeros - zeros % entryBytes_);
        nextOffset_ += filled_;
        zerosAhead_ -= filled_;
        return true;
    }
    zerosAhead_ = 0;
    source_ = buffer_.data();
    file_.seek(nextOffset_);
    const std::size_t got = file_.read(std::span<uint8_t>(buffer_.data(), std::size_t(wanted)));
    filled_ = got - got % entryBytes_;
    nextOffset_ += filled_;
    if (filled_ == 0) {
        remaining_ = 0;
        return false;
    }
    return true;
}
