#pragma once
// What a video surface needs of a player whose frames come from mpv. MpvMediaPlayer implements it;
// a surface given any other player shows black.

#include "MpvCore.h"

class MpvRenderSource {
public:
    virtual ~MpvRenderSource() = default;
    // The core to make a render context on; the surface keeps a share of it while the context lives.
    virtual MpvCore renderCore() const = 0;
    // Whether the core has started on this player's file: until then, what it renders is still of
    // the movie before.
    virtual bool fileStarted() const = 0;
    // The surface has put one of this player's frames on screen.
    virtual void frameShown() = 0;
};
