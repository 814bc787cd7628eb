#pragma once
// The transport buttons whose state the play control dispatch consults.

enum class TransportButton { Prev, Backward, Play, Pause, Forward, Next, Stop, Snapshot, ToggleFullscreen };
