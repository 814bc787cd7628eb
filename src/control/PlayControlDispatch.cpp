#include "PlayControlDispatch.h"

#include "GPSPlayControl.h"
#include "TransportCommands.h"

#include <algorithm>
#include <array>

namespace {

using Action = void (*)(TransportCommands&, QObject*);

struct Route {
    GPSPlayControl code;
    std::optional<TransportButton> guard;
    Action action;
};

constexpr std::array kRoutes{
    Route{GPSPlayControlPrev, TransportButton::Prev, [](TransportCommands& c, QObject* s) { c.OnPrev(s); }},
    Route{GPSPlayControlBackward, TransportButton::Backward, [](TransportCommands& c, QObject* s) { c.OnBackward(s); }},
    // btPlay is hidden exactly while the movie plays at rate 1.0.
    Route{GPSPlayControlPlayPause, std::nullopt,
          [](TransportCommands& c, QObject* s) {
              if (c.isButtonHidden(TransportButton::Play)) {
                  c.OnPause(s);
              } else {
                  c.OnPlay(s);
              }
              c.UpdatePlayingStatus();
          }},
    Route{GPSPlayControlForward, TransportButton::Forward, [](TransportCommands& c, QObject* s) { c.OnForward(s); }},
    Route{GPSPlayControlNext, TransportButton::Next, [](TransportCommands& c, QObject* s) { c.OnNext(s); }},
    Route{GPSPlayControlStop, TransportButton::Stop, [](TransportCommands& c, QObject* s) { c.OnStop(s); }},
    Route{GPSPlayControlToggleFullscreen, TransportButton::ToggleFullscreen,
          [](TransportCommands& c, QObject* s) { c.OnToggleFullscreen(s); }},
    Route{GPSPlayControlVolumeDown, std::nullopt, [](TransportCommands& c, QObject*) { c.VolumeDown(); }},
    Route{GPSPlayControlVolumeUp, std::nullopt, [](TransportCommands& c, QObject*) { c.VolumeUp(); }},
    Route{GPSPlayControlSpeedDown, std::nullopt, [](TransportCommands& c, QObject*) { c.SpeedDown(); }},
    Route{GPSPlayControlSpeedUp, std::nullopt, [](TransportCommands& c, QObject*) { c.SpeedUp(); }},
    // Stepping needs a movie, which is what the snapshot button's state says too.
    Route{GPSPlayControlStepFrameBackward, TransportButton::Snapshot,
          [](TransportCommands& c, QObject*) { c.StepFrame(false); }},
    Route{GPSPlayControlStepFrameForward, TransportButton::Snapshot,
          [](TransportCommands& c, QObject*) { c.StepFrame(true); }},
    Route{GPSPlayControlMarkStart, TransportButton::Snapshot, [](TransportCommands& c, QObject*) { c.MarkSpanEdge(true); }},
    Route{GPSPlayControlMarkEnd, TransportButton::Snapshot, [](TransportCommands& c, QObject*) { c.MarkSpanEdge(false); }},
};

const Route* routeOf(uint64_t playControl) {
    const auto* found =
        std::find_if(kRoutes.begin(), kRoutes.end(), [&](const Route& route) { return route.code == playControl; });
    return found == kRoutes.end() ? nullptr : found;
}

}  // namespace

void PlayControlDispatch::perform(TransportCommands& commands, QObject* sender, uint64_t playControl) {
    const Route* route = routeOf(playControl);
    if (route == nullptr) return;
    if (route->guard && !commands.isButtonEnabled(*route->guard)) return;
    route->action(commands, sender);
}

std::optional<TransportButton> PlayControlDispatch::guardOf(uint64_t playControl) {
    const Route* route = routeOf(playControl);
    return route ? route->guard : std::nullopt;
}
