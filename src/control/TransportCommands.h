#pragma once
// What the play control dispatch needs of the window's controller: the transport handlers, and the
// state of the buttons that guard them. The controller implements it; tests record into a fake.

#include "TransportButton.h"

class QObject;

class TransportCommands {
public:
    virtual ~TransportCommands() = default;

    virtual void OnPrev(QObject* sender) = 0;
    virtual void OnBackward(QObject* sender) = 0;
    virtual void OnPlay(QObject* sender) = 0;
    virtual void OnPause(QObject* sender) = 0;
    virtual void OnForward(QObject* sender) = 0;
    virtual void OnNext(QObject* sender) = 0;
    virtual void OnStop(QObject* sender) = 0;
    virtual void OnToggleFullscreen(QObject* sender) = 0;
    virtual void VolumeDown() = 0;
    virtual void VolumeUp() = 0;
    virtual void SpeedDown() = 0;
    virtual void SpeedUp() = 0;
    // One frame forward or back while paused.
    virtual void StepFrame(bool forward) = 0;
    // Sets the start or the end of the marked span on the timeline at the position.
    virtual void MarkSpanEdge(bool start) = 0;
    virtual void UpdatePlayingStatus() = 0;

    // Named apart from QWidget's isEnabled/isHidden, so that a widget can implement them.
    virtual bool isButtonEnabled(TransportButton button) const = 0;
    virtual bool isButtonHidden(TransportButton button) const = 0;
};
