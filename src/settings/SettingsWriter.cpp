#include "SettingsWriter.h"

#include <utility>

SettingsWriter::SettingsWriter(std::filesystem::path file, WriteFile write)
    : file_(std::move(file)), writeFile_(std::move(write)), thread_([this] { run(); }) {}

SettingsWriter::~SettingsWriter() {
    {
        std::lock_guard lock(mutex_);
        stopping_ = true;
    }
    changed_.notify_all();
    // The thread leaves only once nothing is pending, so the last value reaches the disk.
    thread_.join();
}

void SettingsWriter::write(std::string contents) {
    {
        std::lock_guard lock(mutex_);
        pending_ = std::move(contents);
        ++asked_;
    }
    changed_.notify_all();
}

bool SettingsWriter::flush() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return written_ == asked_; });
    return lastWriteSucceeded_;
}

void SettingsWriter::run() {
    std::unique_lock lock(mutex_);
    for (;;) {
        changed_.wait(lock, [this] { return pending_ || stopping_; });
        if (!pending_) return;
        std::string contents = std::move(*pending_);
        pending_.reset();
        const uint64_t covered = asked_;  // everything asked so far is in these contents
        lock.unlock();
        const bool ok = writeFile_(file_, contents);
        lock.lock();
        written_ = covered;
        lastWriteSucceeded_ = ok;
        changed_.notify_all();
    }
}
