#include "PlayerWindow.h"

#include <QCoreApplication>
#include <QVBoxLayout>

PlayerWindow::PlayerWindow(Options options) : options_(options), view_(new GPSPlayerView(this)) {
    setWindowTitle(QStringLiteral("Dashtrack"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(view_);
    view_->engine().setDelegate(this);
    resize(1280, 720);
}

void PlayerWindow::play(const std::filesystem::path& movie) {
    view_->engine().setMovie(movie);
    view_->engine().Resume();
}

void PlayerWindow::Completed(GPSPlayerEngine& engine) {
    if (!options_.quitAtEnd) {
        // Back to the start, paused, as the player does after the last movie of a playlist.
        engine.Seek(0.0);
        return;
    }
    // Sent on every tick at the end; quit once.
    if (!quitting_) {
        quitting_ = true;
        QCoreApplication::quit();
    }
}
