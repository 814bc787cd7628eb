// The dispatch of play control codes against a controller that records what it is asked to do:
// each code's handler and sender, the guards, and the play/pause choice of code 3.

#include "GPSPlayControl.h"
#include "PlayControlDispatch.h"
#include "TransportCommands.h"

#include <QObject>

#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace {

class RecordingCommands final : public TransportCommands {
public:
    void OnPrev(QObject* sender) override { record("OnPrev", sender); }
    void OnBackward(QObject* sender) override { record("OnBackward", sender); }
    void OnPlay(QObject* sender) override { record("OnPlay", sender); }
    void OnPause(QObject* sender) override { record("OnPause", sender); }
    void OnForward(QObject* sender) override { record("OnForward", sender); }
    void OnNext(QObject* sender) override { record("OnNext", sender); }
    void OnStop(QObject* sender) override { record("OnStop", sender); }
    void OnToggleFullscreen(QObject* sender) override { record("OnToggleFullscreen", sender); }
    void VolumeDown() override { record("VolumeDown", nullptr); }
    void VolumeUp() override { record("VolumeUp", nullptr); }
    void SpeedDown() override { record("SpeedDown", nullptr); }
    void SpeedUp() override { record("SpeedUp", nullptr); }
    void UpdatePlayingStatus() override { record("UpdatePlayingStatus", nullptr); }

    bool isButtonEnabled(TransportButton button) const override { return !disabled.contains(button); }
    bool isButtonHidden(TransportButton button) const override { return hidden.contains(button); }

    std::set<TransportButton> disabled, hidden;
    std::vector<std::string> calls;
    std::vector<QObject*> senders;

private:
    void record(const char* name, QObject* sender) {
        calls.emplace_back(name);
        senders.push_back(sender);
    }
};

using Calls = std::vector<std::string>;

TEST(PlayControlDispatch, RunsEachCodesHandlerWithTheSendingViewUnlessItsButtonIsDisabled) {
    struct Route {
        uint64_t code;
        std::optional<TransportButton> guard;
        Calls calls;
    };
    const Route routes[] = {
        {GPSPlayControlPrev, TransportButton::Prev, {"OnPrev"}},
        {GPSPlayControlBackward, TransportButton::Backward, {"OnBackward"}},
        {GPSPlayControlPlayPause, std::nullopt, {"OnPlay", "UpdatePlayingStatus"}},
        {GPSPlayControlForward, TransportButton::Forward, {"OnForward"}},
        {GPSPlayControlNext, TransportButton::Next, {"OnNext"}},
        {GPSPlayControlStop, TransportButton::Stop, {"OnStop"}},
        {GPSPlayControlToggleFullscreen, TransportButton::ToggleFullscreen, {"OnToggleFullscreen"}},
        {GPSPlayControlVolumeDown, std::nullopt, {"VolumeDown"}},
        {GPSPlayControlVolumeUp, std::nullopt, {"VolumeUp"}},
        {GPSPlayControlSpeedDown, std::nullopt, {"SpeedDown"}},
        {GPSPlayControlSpeedUp, std::nullopt, {"SpeedUp"}},
        {0, std::nullopt, {}},
        {~uint64_t{0}, std::nullopt, {}},
    };
    QObject view;
    for (const auto& route : routes) {
        SCOPED_TRACE(route.code);
        EXPECT_EQ(PlayControlDispatch::guardOf(route.code), route.guard);
        RecordingCommands commands;
        PlayControlDispatch::perform(commands, &view, route.code);
        EXPECT_EQ(commands.calls, route.calls);
        // Handlers that take a sender get the view, so OnPlay acts and OnNext plays.
        if (!route.calls.empty() && route.calls.front().starts_with("On")) {
            EXPECT_EQ(commands.senders.front(), &view);
        }
        // Every button disabled: only the unguarded codes still run.
        RecordingCommands disabled;
        for (const auto button : {TransportButton::Prev, TransportButton::Backward, TransportButton::Play,
                                  TransportButton::Pause, TransportButton::Forward, TransportButton::Next,
                                  TransportButton::Stop, TransportButton::Snapshot, TransportButton::ToggleFullscreen})
            disabled.disabled.insert(button);
        PlayControlDispatch::perform(disabled, &view, route.code);
        EXPECT_EQ(disabled.calls, route.guard ? Calls{} : route.calls);
    }
}

TEST(PlayControlDispatch, PlayPausePausesOnlyWhileThePlayButtonIsHidden) {
    QObject view;
    RecordingCommands playing;
    playing.hidden.insert(TransportButton::Play);
    PlayControlDispatch::perform(playing, &view, GPSPlayControlPlayPause);
    EXPECT_EQ(playing.calls, (Calls{"OnPause", "UpdatePlayingStatus"}));
}

}  // namespace
