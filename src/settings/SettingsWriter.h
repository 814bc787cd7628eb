#pragma once
// Writes the settings file on a thread of its own, so that a change never waits on the disk. A
// burst of changes makes few writes: the writer always writes the latest contents it was given.

#include <condition_variable>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

class SettingsWriter {
public:
    // Replaces a file's contents as a whole; true when they are on disk.
    using WriteFile = std::function<bool(const std::filesystem::path&, std::string_view)>;

    SettingsWriter(std::filesystem::path file, WriteFile write);
    // Writes what is still pending before it returns.
    ~SettingsWriter();
    SettingsWriter(const SettingsWriter&) = delete;
    SettingsWriter& operator=(const SettingsWriter&) = delete;

    // Hands over the file's new contents; any contents not yet written are dropped for these.
    void write(std::string contents);
    // Waits until the last contents handed over are on disk, or their write has failed. True when
    // the last write succeeded (or nothing was ever asked).
    bool flush();

private:
    void run();

    const std::filesystem::path file_;
    const WriteFile writeFile_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::optional<std::string> pending_;
    uint64_t asked_ = 0;    // contents handed over so far
    uint64_t written_ = 0;  // of those, how many are settled (written or failed)
    bool lastWriteSucceeded_ = true;
    bool stopping_ = false;
    std::thread thread_;  // last: it starts once everything above is ready
};
