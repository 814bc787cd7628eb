#pragma once
// Where a media player's picture is drawn. The real surfaces render mpv frames (OpenGL or software);
// a player without a picture leaves the surface black.

class MediaPlayer;
class QWidget;

class VideoSurface {
public:
    virtual ~VideoSurface() = default;
    // The widget to place in a layout; owned by its Qt parent.
    virtual QWidget* widget() = 0;
    // Shows this player's picture from now on; null or an empty player blanks the surface.
    // The surface does not own the player, and is told before the player goes away.
    virtual void setPlayer(MediaPlayer* player) = 0;
};
