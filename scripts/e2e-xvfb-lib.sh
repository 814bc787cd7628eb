# Sourced by the scripts that run the player under a virtual X display (end-to-end checks,
# benchmarks): starts Xvfb on a free display and stops it again when the script exits, however
# it exits.
#
#   source scripts/e2e-xvfb-lib.sh
#   xvfb_start 1920x1080x24     # sets DISPLAY; fails after a bounded wait
#   ... DISPLAY is usable; the EXIT trap stops Xvfb ...

XVFB_PID=
XVFB_CLEANUPS=()

# Runs every registered cleanup, then stops Xvfb. Installed as the EXIT trap.
xvfb_cleanup() {
  local action
  for action in "${XVFB_CLEANUPS[@]}"; do eval "$action" || true; done
  if [ -n "$XVFB_PID" ]; then
    kill "$XVFB_PID" 2>/dev/null || true
    wait "$XVFB_PID" 2>/dev/null || true
    XVFB_PID=
  fi
}

# Registers a command to run on exit, before Xvfb stops (e.g. killing the player).
xvfb_on_exit() { XVFB_CLEANUPS+=("$1"); }

xvfb_start() {
  local screen=${1:-1920x1080x24} display tries
  trap xvfb_cleanup EXIT
  trap 'exit 130' INT TERM
  for display in $(seq 90 140); do
    [ -e "/tmp/.X${display}-lock" ] || [ -e "/tmp/.X11-unix/X${display}" ] && continue
    Xvfb ":$display" -screen 0 "$screen" -nolisten tcp -noreset >/dev/null 2>&1 &
    XVFB_PID=$!
    for tries in $(seq 1 100); do
      if xdpyinfo -display ":$display" >/dev/null 2>&1; then
        export DISPLAY=":$display"
        unset WAYLAND_DISPLAY
        return 0
      fi
      kill -0 "$XVFB_PID" 2>/dev/null || break  # lost the race for this display: try the next
      sleep 0.1
    done
    kill "$XVFB_PID" 2>/dev/null || true
    wait "$XVFB_PID" 2>/dev/null || true
    XVFB_PID=
  done
  echo "xvfb: could not start a virtual display" >&2
  return 1
}

# Waits (bounded) for a top-level window with this exact name; prints its id. Gives up early when
# the process with the optional pid has ended.
xvfb_wait_for_window() {
  local name=$1 pid=${2:-} tries id
  for tries in $(seq 1 150); do
    if [ -n "$pid" ] && ! kill -0 "$pid" 2>/dev/null; then return 1; fi
    id=$(xdotool search --onlyvisible --name "^${name}\$" 2>/dev/null | head -n 1 || true)
    if [ -n "$id" ]; then
      echo "$id"
      return 0
    fi
    sleep 0.1
  done
  return 1
}

# The window's area on the root window as ImageMagick geometry, WxH+X+Y.
xvfb_window_geometry() {
  xwininfo -id "$1" | awk '
    /Absolute upper-left X/ { x = $NF }
    /Absolute upper-left Y/ { y = $NF }
    /^ *Width:/ { w = $NF }
    /^ *Height:/ { h = $NF }
    END { printf "%sx%s+%s+%s\n", w, h, x, y }'
}

# Settings of the player's own under CONFIG_HOME (exported as XDG_CONFIG_HOME), so that the user's
# are neither read nor written: no tile server is asked from a test, and the route's intake lines,
# which would be the player's only output, are silenced.
#   xvfb_test_settings CONFIG_HOME
xvfb_test_settings() {
  export XDG_CONFIG_HOME=$1
  mkdir -p "$XDG_CONFIG_HOME/dashtrack"
  cat >"$XDG_CONFIG_HOME/dashtrack/Env.plist" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>MapSource</key><string>offline</string></dict></plist>
PLIST
  export QT_LOGGING_RULES="dashtrack.route=false"
}

# The player's surroundings for a scripted run: a scratch folder (XVFB_WORK, removed on exit), a
# virtual display, a private runtime folder (without one Qt says so on stderr), the settings of
# xvfb_test_settings, X11 and no sound.
xvfb_player_session() {
  XVFB_WORK=$(mktemp -d)
  xvfb_on_exit "rm -rf '$XVFB_WORK'"
  xvfb_start 1920x1080x24
  mkdir -m 700 "$XVFB_WORK/runtime"
  export XDG_RUNTIME_DIR=$XVFB_WORK/runtime QT_QPA_PLATFORM=xcb DASHTRACK_AUDIO_OUTPUT=null
  xvfb_test_settings "$XVFB_WORK/config"
}

# Ends a process started in the background and reaps it; nothing for an empty pid.
#   xvfb_stop_process PID
xvfb_stop_process() {
  [ -n "$1" ] || return 0
  kill "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}
