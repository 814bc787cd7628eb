#!/usr/bin/env bash
# End-to-end test of the main window driven as a user drives it (drive_window.py): under a virtual
# X display and a private D-Bus session, so that Qt and the driver meet on an accessibility bus of
# their own, with a private home so that the user's settings are never read or written.
#
#   tests/e2e/e2e-window.sh DASHTRACK_BINARY CLIP_FOLDER ROUTE_CSV OUT_DIR --clip NAME:FIRST:SECONDS...
set -euo pipefail

app=${1:?usage: e2e-window.sh DASHTRACK_BINARY CLIP_FOLDER ROUTE_CSV OUT_DIR --clip NAME:FIRST:SECONDS...}
folder=${2:?missing CLIP_FOLDER}
route=${3:?missing ROUTE_CSV}
out=${4:?missing OUT_DIR}
shift 4
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../../scripts/e2e-xvfb-lib.sh
source "$here/../../scripts/e2e-xvfb-lib.sh"

mkdir -p "$out"
rm -f "$out"/*.png "$out"/dashtrack.log
work=$(mktemp -d)
xvfb_on_exit "rm -rf '$work'"
xvfb_start 1920x1080x24

mkdir -m 700 "$work/runtime" "$work/home"
# The playlist sorts by the files' creation (birth) times, then by name: fresh copies made in one go
# sort by their camera names. A copy made the wrong side of noon would sort first, since the order's
# clock has twelve hours, so a copy does not straddle it.
while [ "$(date +%H%M%S)" -ge 115955 ] && [ "$(date +%H%M%S)" -le 120000 ]; do sleep 1; done
mkdir "$work/clips"
cp -p "$folder"/* "$work/clips/"
export XDG_RUNTIME_DIR=$work/runtime HOME=$work/home XDG_CONFIG_HOME=$work/home/.config
xvfb_test_settings "$XDG_CONFIG_HOME"
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_QPA_PLATFORM=xcb DASHTRACK_AUDIO_OUTPUT=null
# The system's Python, which has the accessibility bindings, whatever python is first on PATH.
unset PYTHONPATH PYTHONHOME
# The bus daemons' notes on services they start are no news.
dbus-run-session -- /usr/bin/python3 "$here/drive_window.py" \
  --app "$app" --open "$work/clips" --route "$route" --out "$out" "$@" 2>&1 |
  sed -u '/^dbus-daemon\[[0-9]*\]: /d; /^SpiRegistry daemon is running/d'
