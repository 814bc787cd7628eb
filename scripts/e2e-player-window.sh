#!/usr/bin/env bash
# End-to-end check of the main window: under a virtual X display, plays a movie with each video
# renderer, takes two screenshots a second apart and checks that the window shows a picture (not
# black) that moves, and that the player printed nothing. The movie is played from a copy whose
# name is not UTF-8, as a Linux file name may be. With the OpenGL renderer it also shows the window
# at its usual and its smallest size (window-1280x800.png, window-1024x640.png). The screenshots
# stay in OUT_DIR for a look.
#
#   scripts/e2e-player-window.sh DASHTRACK_BINARY MOVIE OUT_DIR
set -euo pipefail

app=${1:?usage: e2e-player-window.sh DASHTRACK_BINARY MOVIE OUT_DIR}
movie=${2:?missing MOVIE}
out=${3:?missing OUT_DIR}
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=e2e-xvfb-lib.sh
source "$here/e2e-xvfb-lib.sh"

min_brightness=0.10  # mean over the window, 0 (black) to 1 (white)
mkdir -p "$out"
xvfb_player_session
work=$XVFB_WORK
named_movie=$work/$'clip-\xff-'$(basename "$movie")
cp "$movie" "$named_movie"

app_pid=
stop_app() {
  xvfb_stop_process "$app_pid"
  app_pid=
}
xvfb_on_exit stop_app

# The window at the size it opens with and at its minimum, the movie playing.
shoot_sizes() {
  local window=$1 size
  for size in 1280x800 1024x640; do
    xdotool windowsize "$window" "${size%x*}" "${size#*x}"
    sleep 1
    import -display "$DISPLAY" -window "$window" "$out/window-$size.png"
  done
}

check_renderer() {
  local renderer=$1 window geometry mean changed
  echo "e2e: $renderer renderer on $DISPLAY"
  DASHTRACK_VIDEO_RENDERER=$renderer \
    "$app" "$named_movie" >"$out/$renderer.log" 2>&1 &
  app_pid=$!
  if ! window=$(xvfb_wait_for_window Dashtrack "$app_pid"); then
    echo "e2e: FAIL ($renderer): no Dashtrack window appeared" >&2
    cat "$out/$renderer.log" >&2
    return 1
  fi
  geometry=$(xvfb_window_geometry "$window")
  # Long enough to load and play well past the first frame, even on a busy machine.
  sleep 3
  import -display "$DISPLAY" -window root "$out/$renderer-1.png"
  sleep 1
  import -display "$DISPLAY" -window root "$out/$renderer-2.png"
  if [ "$renderer" = gl ]; then shoot_sizes "$window"; fi
  if ! kill -0 "$app_pid" 2>/dev/null; then
    echo "e2e: FAIL ($renderer): the player exited early" >&2
    cat "$out/$renderer.log" >&2
    return 1
  fi
  stop_app
  convert "$out/$renderer-2.png" -crop "$geometry" +repage "$out/$renderer-window.png"
  mean=$(convert "$out/$renderer-window.png" -colorspace gray -format '%[fx:mean]' info:)
  # The number of pixels that differ between the two shots: the movie plays.
  changed=$(compare -metric AE -fuzz 2% "$out/$renderer-1.png" "$out/$renderer-2.png" null: 2>&1 || true)
  echo "e2e: $renderer: window $geometry, mean brightness $mean, $changed pixels changed in 1 s"
  if ! awk -v m="$mean" -v min="$min_brightness" 'BEGIN { exit !(m > min) }'; then
    echo "e2e: FAIL ($renderer): the window is black (mean $mean)" >&2
    return 1
  fi
  if ! awk -v c="$changed" 'BEGIN { exit !(c + 0 > 1000) }'; then
    echo "e2e: FAIL ($renderer): the picture does not move ($changed pixels changed)" >&2
    return 1
  fi
  # Quiet by default: a normal run prints nothing on stdout or stderr.
  if [ -s "$out/$renderer.log" ]; then
    echo "e2e: FAIL ($renderer): the player printed in a normal run:" >&2
    cat "$out/$renderer.log" >&2
    return 1
  fi
}

status=0
for renderer in gl sw; do
  check_renderer "$renderer" || status=1
done
[ "$status" -eq 0 ] && echo "e2e: OK, screenshots in $out"
exit "$status"
