#pragma once
// Hears when a newly loaded movie's first frame has been painted: the benchmarks time launches and
// movie changes by it. Nobody listens unless the application installs a listener.

class FirstFrameListener {
public:
    virtual ~FirstFrameListener() = default;
    virtual void firstFrameShown() = 0;
    // Every painted frame, the first ones included: the change from one clip to the next is timed
    // from the last frame of the one to the first of the other.
    virtual void frameShown() {}
};

// The one listener, not owned; null stops listening. GUI thread only, like the players.
void setFirstFrameListener(FirstFrameListener* listener);
// Told by a player when the first frame of its movie has been painted.
void notifyFirstFrameShown();
// Told by a player at every painted frame.
void notifyFrameShown();
