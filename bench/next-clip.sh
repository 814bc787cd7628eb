#!/usr/bin/env bash
# The time from the key that changes movies (Ctrl+Right, then Ctrl+Left, by turns) to the new
# movie's first painted frame, in Dashtrack opened on a folder, under a virtual X display, with
# each renderer. Both instants are taken by the application itself on the monotonic clock (the
# "dashtrack.bench" logging category): the key when its press reaches the window, the frame when
# it has been painted.
#
#   bench/next-clip.sh BUILD_DIR [FOLDER]   (default: the bundled samples; NEXT_SWITCHES=10)
#
# Target: under 150 ms.
set -euo pipefail

build=${1:?usage: next-clip.sh BUILD_DIR [FOLDER]}
folder=${2:-$build/samples}
switches=${NEXT_SWITCHES:-10}
app=$build/src/app/dashtrack
[ -x "$app" ] || { echo "next-clip: $app is missing; build first" >&2; exit 1; }
for program in Xvfb xdotool; do
  command -v "$program" >/dev/null || { echo "next-clip: $program is not installed" >&2; exit 1; }
done

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK

app_pid=
stop_app() {
  xvfb_stop_process "$app_pid"
  app_pid=
}
xvfb_on_exit stop_app

frames() { grep -c 'first-frame monotonic-us=' "$1" || true; }

# Waits (bounded) until the log holds more than $2 first frames.
wait_for_frame() {
  local log=$1 count=$2 tries
  for tries in $(seq 1 200); do
    [ "$(frames "$log")" -gt "$count" ] && return 0
    kill -0 "$app_pid" 2>/dev/null || return 1
    sleep 0.05
  done
  return 1
}

for renderer in sw gl; do
  log=$work/$renderer.log
  DASHTRACK_VIDEO_RENDERER=$renderer QT_LOGGING_RULES="dashtrack.bench.debug=true" "$app" "$folder" 2>"$log" &
  app_pid=$!
  window=$(xvfb_wait_for_window Dashtrack "$app_pid") || { echo "next-clip: no window" >&2; cat "$log" >&2; exit 1; }
  wait_for_frame "$log" 0 || { echo "next-clip: the first movie never showed" >&2; cat "$log" >&2; exit 1; }
  for i in $(seq 1 "$switches"); do
    sleep 1
    key=ctrl+Right
    [ $((i % 2)) -eq 0 ] && key=ctrl+Left
    count=$(frames "$log")
    xdotool windowfocus --sync "$window"
    xdotool key --clearmodifiers "$key"
    wait_for_frame "$log" "$count" || echo "next-clip: no new frame after $key" >&2
  done
  stop_app
  # Each Left/Right press (Qt key codes 1000012, 1000014), paired with the first frame after it.
  awk -v renderer="$renderer" '
    /key-press key=(1000012|1000014) / { sub(/.*monotonic-us=/, ""); key = $1; next }
    /first-frame monotonic-us=/ && key { sub(/.*monotonic-us=/, ""); ms[++n] = ($1 - key) / 1000; key = 0 }
    END {
      if (n == 0) { print renderer ": no movie change measured"; exit }
      for (i = 1; i <= n; i++) for (j = i + 1; j <= n; j++) if (ms[j] < ms[i]) { t = ms[i]; ms[i] = ms[j]; ms[j] = t }
      median = (n % 2) ? ms[(n + 1) / 2] : (ms[n / 2] + ms[n / 2 + 1]) / 2
      printf "%s renderer: %d changes, key to first frame median %.1f ms, worst %.1f ms (target: under 150)\n",
        renderer, n, median, ms[n]
    }' "$log"
done
