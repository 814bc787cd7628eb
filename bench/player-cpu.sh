#!/usr/bin/env bash
# CPU time and dropped frames of playing the 20 s 1280x720 30 fps movie in a 1280x720 window under
# a virtual X display: Dashtrack with each renderer against the mpv program (--vo=x11, --vo=gpu);
# and the time from loading to the first frame. Sound goes to mpv's null output everywhere.
#
#   bench/player-cpu.sh BUILD_DIR [MOVIE]     (BENCH_RUNS=3 runs each, the median is kept)
#
# Target: Dashtrack's renderer for this machine within 10% of the better mpv, no dropped frames.
set -euo pipefail

build=${1:?usage: player-cpu.sh BUILD_DIR [MOVIE]}
movie=${2:-$build/tests/fixtures/player_720p.mov}
runs=${BENCH_RUNS:-3}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
app=$build/src/app/dashtrack
for needed in "$app" "$movie"; do
  [ -e "$needed" ] || { echo "player-cpu: $needed is missing; build first" >&2; exit 1; }
done
for program in mpv Xvfb /usr/bin/time; do
  command -v "$program" >/dev/null || { echo "player-cpu: $program is not installed" >&2; exit 1; }
done

# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK

# One run: prints "cpu_seconds wall_seconds first_frame_ms decoder_drops output_drops frames_shown".
run_once() {
  local kind=$1 stats=$work/stats times=$work/times
  rm -f "$stats" "$times"
  case $kind in
    dashtrack-*)
      DASHTRACK_VIDEO_RENDERER=${kind#dashtrack-} DASHTRACK_AUDIO_OUTPUT=null QT_QPA_PLATFORM=xcb \
      QT_LOGGING_RULES="dashtrack.mpv.stats.info=true" \
        /usr/bin/time -f '%U %S %e' -o "$times" timeout 120 "$app" --quit-at-end "$movie" 2>"$stats.log" >/dev/null || true
      grep -o 'first-frame-ms=.*output-drops=[0-9]*' "$stats.log" | tail -n 1 | sed 's/file=[^ ]* //' >"$stats" || true
      ;;
    mpv-*)
      # --gpu-sw: mpv's OpenGL output otherwise refuses llvmpipe, the only OpenGL under Xvfb.
      /usr/bin/time -f '%U %S %e' -o "$times" timeout 120 mpv --no-config --ao=null --vo="${kind#mpv-}" \
        --gpu-sw=yes --geometry=1280x720+0+0 --script="$here/mpv-stats.lua" \
        --script-opts="mpv_stats-out=$stats" --really-quiet "$movie" >/dev/null 2>&1 || true
      ;;
  esac
  awk -v stats="$(cat "$stats" 2>/dev/null)" '{
      n = split(stats, kv, /[ =]/); for (i = 1; i < n; i += 2) v[kv[i]] = kv[i + 1]
      shown = ("frames-shown" in v) ? v["frames-shown"] : "-"
      printf "%.2f %.2f %s %s %s %s\n", $1 + $2, $3, v["first-frame-ms"], v["decoder-drops"], v["output-drops"], shown
    }' "$times"
}

median() { sort -n | awk '{ a[NR] = $1 } END { print a[int((NR + 1) / 2)] }'; }

printf '%-16s %8s %8s %15s %14s %13s %13s\n' player "cpu s" "wall s" "first frame ms" "decoder drops" \
  "output drops" "frames shown"
declare -A cpu
for kind in dashtrack-sw dashtrack-gl mpv-x11 mpv-gpu; do
  : >"$work/$kind"
  for _ in $(seq 1 "$runs"); do run_once "$kind" >>"$work/$kind"; done
  cpu[$kind]=$(cut -d' ' -f1 "$work/$kind" | median)
  # Drops: the worst run; frames shown: the fewest.
  printf '%-16s %8s %8s %15s %14s %13s %13s\n' "$kind" "${cpu[$kind]}" \
    "$(cut -d' ' -f2 "$work/$kind" | median)" "$(cut -d' ' -f3 "$work/$kind" | median)" \
    "$(cut -d' ' -f4 "$work/$kind" | sort -n | tail -n 1)" "$(cut -d' ' -f5 "$work/$kind" | sort -n | tail -n 1)" \
    "$(cut -d' ' -f6 "$work/$kind" | sort -n | head -n 1)"
done

# Under Xvfb the only OpenGL is llvmpipe, so Dashtrack's own choice here is the software renderer.
awk -v ours="${cpu[dashtrack-sw]}" -v x11="${cpu[mpv-x11]}" -v gpu="${cpu[mpv-gpu]}" 'BEGIN {
  best = x11 < gpu ? x11 : gpu
  printf "dashtrack-sw uses %.0f%% of the better mpv'"'"'s CPU time (target: at most 110%%)\n", 100 * ours / best
}'
