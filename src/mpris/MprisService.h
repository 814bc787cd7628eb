#pragma once
// Publishes the window's player on the session bus for media keys and desktop media controls,
// as org.mpris.MediaPlayer2.dashtrack at /org/mpris/MediaPlayer2.

class MainWindowDelegate;
class QWidget;

class MprisService {
public:
    // False, silently, without a session bus: the player then runs without it. Everything it
    // makes is the window's child.
    static bool publish(MainWindowDelegate& controller, QWidget& window);
};
