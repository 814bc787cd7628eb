#pragma once
// The window of `make run`: one movie view filling it, playing one movie.

#include "GPSPlayerView.h"
#include "GPSPlayerViewDelegate.h"

#include <QWidget>

#include <filesystem>

class PlayerWindow final : public QWidget, public GPSPlayerViewDelegate {
public:
    struct Options {
        // Quit once the movie has played to its end (benchmarks); otherwise go back to its start.
        bool quitAtEnd = false;
    };

    explicit PlayerWindow(Options options);

    // Loads the movie and starts it.
    void play(const std::filesystem::path& movie);

    void Completed(GPSPlayerEngine& engine) override;

private:
    Options options_;
    GPSPlayerView* view_;  // owned by this window
    bool quitting_ = false;
};
