#pragma once
// Validates a list of files on a worker thread, so that a folder of hundreds of clips does not
// stall the window. The answer is the one GPSUtils::validURLs gives, in the same order.

#include "VideoTrackProbe.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <future>
#include <memory>
#include <optional>
#include <stop_token>
#include <thread>
#include <vector>

class ValidationJob {
public:
    using Files = std::vector<std::filesystem::path>;
    // Both are called on the worker thread; a window posts them on to its own thread.
    using Progress = std::function<void(std::size_t done, std::size_t total)>;
    using Completion = std::function<void(const Files& valid)>;

    // Starts at once. Without a probe no file is valid. Progress is reported after each file; completion, only when the whole list
    // was validated, comes before the result is made available.
    ValidationJob(std::shared_ptr<const VideoTrackProbe> probe, Files files, Progress progress = {},
                  Completion completion = {});
    // Cancels and waits for the file being tested.
    ~ValidationJob() = default;
    ValidationJob(const ValidationJob&) = delete;
    ValidationJob& operator=(const ValidationJob&) = delete;

    // The valid files in input order; absent when the job was cancelled before the end.
    std::shared_future<std::optional<Files>> result() const { return result_; }
    // Stops before the next file.
    void cancel() { worker_.request_stop(); }

private:
    static std::optional<Files> run(const std::stop_token& stop, const VideoTrackProbe* probe, const Files& files,
                                    const Progress& progress);

    std::shared_future<std::optional<Files>> result_;
    // Last, so it is joined before the members above go away.
    std::jthread worker_;
};
