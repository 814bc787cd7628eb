#pragma once
// Where the running window listens for later starts: one socket per user and desktop session, so
// that tests in private sessions (their own runtime folder or display) never meet the user's window.

#include <QString>

struct InstanceSocketPlace {
    unsigned userId = 0;
    QString runtimeDir;      // XDG_RUNTIME_DIR, may be empty
    QString display;         // DISPLAY
    QString waylandDisplay;  // WAYLAND_DISPLAY
    QString override;        // DASHTRACK_INSTANCE_SOCKET: used as it is when set
};

// A path in the runtime folder when there is one, else a name QLocalServer puts in the temporary
// folder; both carry the user id and a digest of the session.
QString instanceSocketName(const InstanceSocketPlace& place);
// The place of this process, from its user and environment.
InstanceSocketPlace currentInstanceSocketPlace();
