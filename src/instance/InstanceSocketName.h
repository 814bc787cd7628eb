#pragma once
// Where the running window listens for later starts: one socket per user and desktop session, so
// that tests in private sessions (their own runtime folder or display) never meet the user's window.
// Plain C++: the launcher and the window must agree on it, and the launcher links no Qt.

#include <string>

struct InstanceSocketPlace {
    unsigned userId = 0;
    std::string runtimeDir;      // XDG_RUNTIME_DIR, may be empty
    std::string display;         // DISPLAY
    std::string waylandDisplay;  // WAYLAND_DISPLAY
    std::string override;        // DASHTRACK_INSTANCE_SOCKET: the socket's path when set
    std::string tempDir;         // TMPDIR, /tmp when empty
};

// A path in the runtime folder when there is one, else in the temporary folder, named with the
// user id and a digest of the session; an override that is not a whole path goes in the temporary
// folder too.
std::string instanceSocketName(const InstanceSocketPlace& place);
// The place of this process, from its user and environment.
InstanceSocketPlace currentInstanceSocketPlace();
