#!/usr/bin/env bash
# Memory while playing: the resident (RSS) and proportional (PSS) set of Dashtrack after ~5 s of
# playing the 20 s 1280x720 movie, against the mpv program on the same movie, under a virtual X
# display, renderers paired by class (Dashtrack sw with mpv --vo=x11, gl with mpv --vo=gpu).
# Read from /proc/PID/smaps_rollup; the median of MEMORY_RUNS (3) runs.
#
#   bench/player-memory.sh BUILD_DIR [MOVIE]
set -euo pipefail

build=${1:?usage: player-memory.sh BUILD_DIR [MOVIE]}
movie=${2:-$build/tests/fixtures/player_720p.mov}
runs=${MEMORY_RUNS:-3}
seconds=${MEMORY_SECONDS:-5}
app=$build/src/app/dashtrack
for needed in "$app" "$movie"; do
  [ -e "$needed" ] || { echo "player-memory: $needed is missing; build first" >&2; exit 1; }
done
for program in mpv Xvfb; do
  command -v "$program" >/dev/null || { echo "player-memory: $program is not installed" >&2; exit 1; }
done

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK

player_pid=
stop_player() {
  xvfb_stop_process "$player_pid"
  player_pid=
}
xvfb_on_exit stop_player

# One run: prints "rss_kb pss_kb", or nothing when the player was gone before the reading.
run_once() {
  local kind=$1
  case $kind in
    dashtrack-*) DASHTRACK_VIDEO_RENDERER=${kind#dashtrack-} "$app" "$movie" >/dev/null 2>&1 & ;;
    # --gpu-sw: mpv's OpenGL output otherwise refuses llvmpipe, the only OpenGL under Xvfb.
    mpv-*) mpv --no-config --ao=null --vo="${kind#mpv-}" --gpu-sw=yes --geometry=1280x720+0+0 \
             --really-quiet "$movie" >/dev/null 2>&1 & ;;
  esac
  player_pid=$!
  sleep "$seconds"
  awk '/^Rss:/ { rss = $2 } /^Pss:/ { pss = $2 } END { if (rss) print rss, pss }' \
    "/proc/$player_pid/smaps_rollup" 2>/dev/null || true
  stop_player
}

median() { sort -n | awk '{ a[NR] = $1 } END { print a[int((NR + 1) / 2)] }'; }

printf '%-14s %10s %10s\n' player "RSS MiB" "PSS MiB"
for kind in dashtrack-sw mpv-x11 dashtrack-gl mpv-gpu; do
  : >"$work/$kind"
  for _ in $(seq 1 "$runs"); do run_once "$kind" >>"$work/$kind"; done
  printf '%-14s %10.1f %10.1f\n' "$kind" "$(cut -d' ' -f1 "$work/$kind" | median | awk '{ print $1 / 1024 }')" \
    "$(cut -d' ' -f2 "$work/$kind" | median | awk '{ print $1 / 1024 }')"
done
