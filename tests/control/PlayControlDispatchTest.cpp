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

    std::set<TransportButton> disabled;
    std::set<TransportButton> hidden;
    std::vector<std::string> calls;
    std::vector<QObject*> senders;

private:
    void record(const char* name, QObject* sender) {
        calls.emplace_back(name);
        senders.push_back(sender);
    }
};

struct Route {
    uint64_t code;
    std::optional<TransportButton> guard;
    std::vector<std::string> calls;
};

const std::vector<Route>& routes() {
    static const std::vector<Route> table{
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
    };
    return table;
}

TEST(PlayControlDispatch, RunsEachCodesHandlerWithTheSendingView) {
    QObject view;
    for (const auto& route : routes()) {
        SCOPED_TRACE(route.code);
        RecordingCommands commands;
        PlayControlDispatch::perform(commands, &view, route.code);
        EXPECT_EQ(commands.calls, route.calls);
        // Handlers that take a sender get the view, so OnPlay acts and OnNext plays.
        if (route.calls.front().starts_with("On")) {
            EXPECT_EQ(commands.senders.front(), &view);
        }
        EXPECT_EQ(PlayControlDispatch::guardOf(route.code), route.guard);
    }
}

TEST(PlayControlDispatch, AGuardedCodeDoesNothingWhileItsButtonIsDisabled) {
    QObject view;
    for (const auto& route : routes()) {
        SCOPED_TRACE(route.code);
        RecordingCommands commands;
        // Every button disabled: only the unguarded codes still run.
        for (const auto button :
             {TransportButton::Prev, TransportButton::Backward, TransportButton::Play, TransportButton::Pause,
              TransportButton::Forward, TransportButton::Next, TransportButton::Stop, TransportButton::Snapshot,
              TransportButton::ToggleFullscreen}) {
            commands.disabled.insert(button);
        }
        PlayControlDispatch::perform(commands, &view, route.code);
        EXPECT_EQ(commands.calls.empty(), route.guard.has_value());
    }
}

TEST(PlayControlDispatch, PlayPausePausesOnlyWhileThePlayButtonIsHidden) {
    QObject view;
    RecordingCommands playing;
    playing.hidden.insert(TransportButton::Play);
    PlayControlDispatch::perform(playing, &view, GPSPlayControlPlayPause);
    EXPECT_EQ(playing.calls, (std::vector<std::string>{"OnPause", "UpdatePlayingStatus"}));

    // At rate 2.0 the play button shows: code 3 goes back to 1.0 instead of pausing. A disabled
    // pause or play button is no guard.
    RecordingCommands fast;
    fast.disabled.insert(TransportButton::Play);
    fast.disabled.insert(TransportButton::Pause);
    PlayControlDispatch::perform(fast, &view, GPSPlayControlPlayPause);
    EXPECT_EQ(fast.calls, (std::vector<std::string>{"OnPlay", "UpdatePlayingStatus"}));
}

TEST(PlayControlDispatch, CodesWithoutACommandDoNothing) {
    QObject view;
    for (const uint64_t code : {uint64_t{0}, uint64_t{12}, uint64_t{255}, ~uint64_t{0}}) {
        RecordingCommands commands;
        PlayControlDispatch::perform(commands, &view, code);
        EXPECT_TRUE(commands.calls.empty()) << code;
        EXPECT_EQ(PlayControlDispatch::guardOf(code), std::nullopt);
    }
}

}  // namespace
