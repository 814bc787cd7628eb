#!/usr/bin/env bash
# The change from the last painted frame of one clip to the first painted frame of the next, under
# continuous play, in Dashtrack opened on a folder of consecutive 720p clips of one trip, under a
# virtual X display, with each renderer. Both instants are taken by the application itself on the
# monotonic clock (the "dashtrack.bench" logging categories).
#
#   bench/continuous-play.sh BUILD_DIR   (CLIPS=5 clips of SECONDS=4 s each)
#
# Target: under 100 ms.
set -euo pipefail

build=${1:?usage: continuous-play.sh BUILD_DIR}
clips=${CLIPS:-5}
seconds=${SECONDS_PER_CLIP:-4}
app=$build/src/app/dashtrack
samplegen=$build/tools/samplegen/dashtrack-samplegen
for program in "$app" "$samplegen"; do
  [ -x "$program" ] || { echo "continuous-play: $program is missing; build first" >&2; exit 1; }
done
command -v Xvfb >/dev/null || { echo "continuous-play: Xvfb is not installed" >&2; exit 1; }

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK
# Continuous play on, as a user who chose it in the Playback menu.
cat >"$XDG_CONFIG_HOME/dashtrack/Env.plist" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<plist version="1.0"><dict><key>MapSource</key><string>offline</string><key>ContinuousPlay</key><integer>1</integer></dict></plist>
PLIST

# One drive, cut into consecutive clips as a camera cuts it.
mkdir "$work/clips"
route=$work/route.csv
{
  echo "time,latitude,longitude,speed"
  for s in $(seq 0 $((clips * seconds))); do
    awk -v s="$s" 'BEGIN { printf "2026-11-15T09:%02d:%02d,%.6f,2.350000,30.0\n", int(s / 60), s % 60, 48.85 + s * 0.0001 }'
  done
} >"$route"
for i in $(seq 0 $((clips - 1))); do
  start=$((i * seconds))
  name=$(printf '2026_1115_09%02d%02d_%04d.MP4' $((start / 60)) $((start % 60)) $((i + 1)))
  "$samplegen" --size 1280x720 --fps 30 --from "$start" --seconds "$seconds" "$route" "$work/clips/$name"
done

app_pid=
stop_app() {
  xvfb_stop_process "$app_pid"
  app_pid=
}
xvfb_on_exit stop_app

for renderer in sw gl; do
  log=$work/$renderer.log
  DASHTRACK_VIDEO_RENDERER=$renderer QT_LOGGING_RULES="dashtrack.route=false;dashtrack.bench.debug=true;dashtrack.bench.frames.debug=true" \
    "$app" --quit-at-end "$work/clips" 2>"$log" &
  app_pid=$!
  # The player quits at the end of the trip's last clip; bounded in case it never gets there.
  for _ in $(seq 1 $((clips * seconds * 4 + 120))); do
    kill -0 "$app_pid" 2>/dev/null || break
    sleep 0.25
  done
  stop_app
  # Each first frame after the first, paired with the last painted frame before it.
  awk -v renderer="$renderer" '
    /painted-frame monotonic-us=/ { sub(/.*monotonic-us=/, ""); last = $1; next }
    /first-frame monotonic-us=/ { sub(/.*monotonic-us=/, ""); if (seen++ && last) ms[++n] = ($1 - last) / 1000; next }
    END {
      if (n == 0) { print renderer ": no change of clip measured"; exit }
      for (i = 1; i <= n; i++) for (j = i + 1; j <= n; j++) if (ms[j] < ms[i]) { t = ms[i]; ms[i] = ms[j]; ms[j] = t }
      median = (n % 2) ? ms[(n + 1) / 2] : (ms[n / 2] + ms[n / 2 + 1]) / 2
      printf "%s renderer: %d changes, last frame to next first frame median %.1f ms, worst %.1f ms (target: under 100)\n",
        renderer, n, median, ms[n]
    }' "$log"
done
