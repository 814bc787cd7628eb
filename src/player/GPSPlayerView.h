#pragma once
// The movie area of the main window: shows the picture of the engine's player, and can leave the
// window to fill the screen alone. The engine behind it does the playing; callers reach it through
// engine().

#include "FullScreenSwitch.h"
#include "GPSPlayerEngine.h"
#include "MediaPlayer.h"
#include "UpdateTimer.h"
#include "VideoSurface.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class GPSUtils;
class QLabel;

class GPSPlayerView final : public QWidget {
    Q_OBJECT

public:
    // Makes the surface that shows the picture; its widget becomes a child of parent.
    using SurfaceMaker = std::function<std::unique_ptr<VideoSurface>(QWidget* parent)>;

    // The real view: mpv players, the surface the machine supports, the shared settings. This is
    // the constructor a form built in Qt Designer calls.
    explicit GPSPlayerView(QWidget* parent = nullptr);
    // Every outside service chosen by the caller; tests pass fakes. settings must outlive the view.
    GPSPlayerView(std::shared_ptr<MediaPlayerFactory> playerFactory, const SurfaceMaker& makeSurface,
                  std::unique_ptr<UpdateTimer> updateTimer, GPSUtils& settings, QWidget* parent = nullptr);
    ~GPSPlayerView() override;

    GPSPlayerEngine& engine() { return engine_; }
    const GPSPlayerEngine& engine() const { return engine_; }

    // Where the keys go, modifier changes included, apart from Escape in full screen; null when none.
    QWidget* controlView() const { return controlView_; }
    void setControlView(QWidget* controlView) { controlView_ = controlView; }

    // The movie alone fills the screen, or goes back to its place in the window.
    void toggleFullscreen();
    bool isInFullScreenMode() const { return fullScreen_.isFullScreen(); }

    // A line over the movie's place saying why there is no picture ("File not found"), with a
    // smaller second line; cleared when a movie plays again.
    void showMessage(const QString& message, const QString& detail);
    void clearMessage();
    QString message() const;

protected:
    // A shortcut override is judged by controlView, so the keys it takes reach it from here too.
    bool event(QEvent* event) override;
    // Escape leaves full screen; every other key goes to controlView.
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    // A double click toggles full screen.
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    // Scrolling over the movie does nothing.
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void forwardToControlView(QKeyEvent* event);
    void placeMessage();

    std::unique_ptr<VideoSurface> surface_;
    // After surface_, so destroyed before it: the engine takes its players out of the surface.
    GPSPlayerEngine engine_;
    FullScreenSwitch fullScreen_;
    QPointer<QWidget> controlView_;
    QLabel* message_;  // a child, over the surface
};
