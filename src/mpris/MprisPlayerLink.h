#pragma once
// The player as desktop media controls see it: reads the window's controller and engine into an
// MprisPlayerState, and turns their requests into the window's own commands. Transport requests
// are play control codes sent to the key-handling view's delegate, as the keys and the Playback
// menu send them, so the same guards apply; the volume goes through its slider's own handler, and
// seeks go to the engine, finer than the position slider's steps.
// The D-Bus adaptors are attached to this object.

#include "MprisPlayerState.h"

#include <QDBusObjectPath>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QVariantMap>

#include <cstdint>

class GPSControlView;
class GPSPlayerEngine;
class MainWindowDelegate;
class QWidget;

class MprisPlayerLink final : public QObject {
    Q_OBJECT

public:
    // window holds the controller's views; both must outlive the link (make it the window's child).
    MprisPlayerLink(MainWindowDelegate& controller, QWidget& window, QObject* parent = nullptr);

    MprisPlayerState state() const;
    double positionSeconds() const;

    void playPause();
    void play();
    void pause();
    void stop();
    void next();
    void previous();
    void seekBy(qlonglong offsetMicroseconds);
    void setPosition(const QDBusObjectPath& track, qlonglong positionMicroseconds);
    void openUri(const QString& uri);
    void setRate(double rate);
    void setVolume(double volume);
    void raiseWindow();
    void quit();

    // Starts watching for changes of the published properties.
    void startWatching();

signals:
    // The Player properties that changed since the last report (Position never is one).
    void playerPropertiesChanged(const QVariantMap& changed);
    void seeked(qlonglong positionMicroseconds);

private:
    GPSPlayerEngine* engine() const;
    void send(uint64_t playControl);
    // Seeks the engine to the exact time and lets the controls follow, as after a drag of the knob.
    void seekToSeconds(double seconds);
    void reportChanges();

    MainWindowDelegate& controller_;
    QPointer<QWidget> window_;
    QPointer<GPSControlView> controlView_;
    QTimer changeWatch_;
    // The state the last report described.
    MprisPlayerState published_;
};
