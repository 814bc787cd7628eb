#include "ValidationJob.h"

ValidationJob::ValidationJob(std::shared_ptr<const VideoTrackProbe> probe, Files files, Progress progress,
                             Completion completion) {
    std::promise<std::optional<Files>> promise;
    result_ = promise.get_future().share();
    // The thread owns everything it uses, so nothing is shared with the caller but the result.
    worker_ =
        std::jthread([probe = std::move(probe), files = std::move(files), progress = std::move(progress),
                      completion = std::move(completion), promise = std::move(promise)](std::stop_token stop) mutable {
            auto valid = run(stop, probe.get(), files, progress);
            if (valid && completion) completion(*valid);
            promise.set_value(std::move(valid));
        });
}

std::optional<ValidationJob::Files> ValidationJob::run(const std::stop_token& stop, const VideoTrackProbe* probe,
                                                       const Files& files, const Progress& progress) {
    Files valid;
    for (std::size_t done = 0; done < files.size(); ++done) {
        if (stop.stop_requested()) return std::nullopt;
        if (probe && probe->hasVideoTrack(files[done])) valid.push_back(files[done]);
        if (progress) progress(done + 1, files.size());
    }
    return valid;
}
