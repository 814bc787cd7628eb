#include "TableStream.h"

#include <algorithm>

TableStream::TableStream(SeekableFile& file, uint64_t start, uint64_t entries, std::size_t entryBytes)
    : file_(file), nextOffset_(start), remaining_(entries), entryBytes_(entryBytes) {}

std::span<const uint8_t> TableStream::nextRun() {
    if (remaining_ == 0) return {};
    if (filled_ - cursor_ < entryBytes_ && !refill()) return {};
    const std::size_t entries = std::size_t(std::min<uint64_t>((filled_ - cursor_) / entryBytes_, remaining_));
    const std::span<const uint8_t> run(buffer_.data() + cursor_, entries * entryBytes_);
    cursor_ += run.size();
    remaining_ -= entries;
    return run;
}

bool TableStream::refill() {
    // Whole entries only, so an entry never straddles two fills.
    const uint64_t wanted = std::min<uint64_t>(remaining_, kBufferBytes / entryBytes_) * entryBytes_;
    file_.seek(nextOffset_);
    const std::size_t got = file_.read(std::span<uint8_t>(buffer_.data(), std::size_t(wanted)));
    filled_ = got - got % entryBytes_;
    nextOffset_ += filled_;
    cursor_ = 0;
    if (filled_ == 0) {
        remaining_ = 0;
        return false;
    }
    return true;
}
