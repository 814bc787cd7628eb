#!/usr/bin/env bash
# Launch to first frame, as whole processes under a virtual X display: Dashtrack opened on a folder
# of movies against the mpv program on the folder's first (oldest) movie, each with the renderer
# of the same class: Dashtrack's software renderer against mpv --vo=x11, its OpenGL renderer
# against mpv --vo=gpu. Dashtrack quits at its first painted frame (--quit-at-first-frame), mpv
# after showing one frame (--frames=1).
#
#   bench/launch-first-frame.sh BUILD_DIR [FOLDER]   (default: the bundled samples; LAUNCH_RUNS=10)
#
# Target: Dashtrack within 1.5 times mpv's time.
set -euo pipefail

build=${1:?usage: launch-first-frame.sh BUILD_DIR [FOLDER]}
folder=${2:-$build/samples}
runs=${LAUNCH_RUNS:-10}
app=$build/src/app/dashtrack
first=$(find "$folder" -maxdepth 1 -type f \( -iname '*.mp4' -o -iname '*.mov' \) | sort | head -n 1)
[ -x "$app" ] || { echo "launch-first-frame: $app is missing; build first" >&2; exit 1; }
[ -n "$first" ] || { echo "launch-first-frame: no movie in $folder" >&2; exit 1; }
for program in mpv hyperfine Xvfb; do
  command -v "$program" >/dev/null || { echo "launch-first-frame: $program is not installed" >&2; exit 1; }
done

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK

# mean seconds of a command in hyperfine's JSON export
mean_of() { /usr/bin/python3 -c 'import json,sys; print(json.load(open(sys.argv[1]))["results"][int(sys.argv[2])]["mean"])' "$@"; }

echo "first movie: $first"
for pair in "sw x11" "gl gpu"; do
  read -r renderer vo <<<"$pair"
  echo "-- dashtrack ($renderer renderer) against mpv --vo=$vo"
  # --gpu-sw: mpv's OpenGL output otherwise refuses llvmpipe, the only OpenGL under Xvfb.
  DASHTRACK_VIDEO_RENDERER=$renderer hyperfine -N --warmup 2 --runs "$runs" --style basic \
    --export-json "$work/$renderer.json" \
    "timeout 60 $app --quit-at-first-frame $folder" \
    "timeout 60 mpv --no-config --ao=null --vo=$vo --gpu-sw=yes --frames=1 --really-quiet $first" 2>/dev/null |
    grep -E 'Time|Range|±|faster' || true
  awk -v ours="$(mean_of "$work/$renderer.json" 0)" -v theirs="$(mean_of "$work/$renderer.json" 1)" 'BEGIN {
    printf "dashtrack %.0f ms, mpv %.0f ms: %.2f times mpv'"'"'s (target: at most 1.5)\n",
      1000 * ours, 1000 * theirs, ours / theirs }'
done
