#pragma once
// The one table that runs the command of a play control code: each guarded command runs only
// while its button is enabled, and gets the sender that sent the code.

#include "TransportButton.h"

#include <cstdint>
#include <optional>

class QObject;
class TransportCommands;

class PlayControlDispatch {
public:
    // Runs the command of playControl on commands; a code without a route does nothing.
    static void perform(TransportCommands& commands, QObject* sender, uint64_t playControl);
    // The button that must be enabled for playControl to run; absent when none is.
    static std::optional<TransportButton> guardOf(uint64_t playControl);
};
