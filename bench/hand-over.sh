#!/usr/bin/env bash
# A later start handing a clip to the running window: the time from starting `dashtrack FILE`
# while a window runs to that clip's row being in the window's playlist. The window runs under a
# virtual X display with the "dashtrack.bench" log on, which stamps each change of the playlist on
# the monotonic clock; each run starts the later instance on a fresh copy of a clip, so every run
# adds one row.
#
#   bench/hand-over.sh BUILD_DIR [FOLDER]   (default: the bundled samples; HANDOVER_RUNS=10)
#
# Target: under 150 ms.
set -euo pipefail

build=${1:?usage: hand-over.sh BUILD_DIR [FOLDER]}
folder=${2:-$build/samples}
runs=${HANDOVER_RUNS:-10}
app=$(cd "$build" && pwd)/src/app/dashtrack
first=$(find "$folder" -maxdepth 1 -type f \( -iname '*.mp4' -o -iname '*.mov' \) | sort | head -n 1)
[ -x "$app" ] || { echo "hand-over: $app is missing; build first" >&2; exit 1; }
[ -n "$first" ] || { echo "hand-over: no movie in $folder" >&2; exit 1; }

here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
# shellcheck source=../scripts/e2e-xvfb-lib.sh
source "$here/../scripts/e2e-xvfb-lib.sh"
xvfb_player_session
work=$XVFB_WORK
mkdir "$work/later"

QT_LOGGING_RULES="dashtrack.bench.debug=true" "$app" "$first" 2>"$work/window.log" &
window=$!
xvfb_on_exit "xvfb_stop_process $window"

/usr/bin/python3 - "$app" "$first" "$work" "$runs" <<'PY'
import re, shutil, statistics, subprocess, sys, time
from pathlib import Path

app, first, work, runs = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3]), int(sys.argv[4])
log = work / "window.log"

def lines(pattern):
    return [m for m in (re.search(pattern, l) for l in log.read_text(errors="replace").splitlines()) if m]

def wait_for(what, probe, seconds=30):
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        found = probe()
        if found:
            return found
        time.sleep(0.005)
    sys.exit(f"hand-over: no {what} within {seconds} s; the window logged:\n{log.read_text(errors='replace')}")

wait_for("first frame", lambda: lines(r"first-frame"))
rows = lambda: [(int(m[1]), int(m[2])) for m in lines(r"playlist-rows count=(\d+) monotonic-us=(\d+)")]
arrivals = lambda: [int(m[1]) for m in lines(r"hand-over monotonic-us=(\d+)")]
latencies, exits, sending, adding = [], [], [], []
for run in range(runs):
    clip = work / "later" / f"later-{run:03d}{first.suffix}"
    shutil.copyfile(first, clip)
    before = len(rows())
    start = time.monotonic_ns() // 1000
    subprocess.run([app, clip.name], cwd=clip.parent, check=True)
    exits.append((time.monotonic_ns() // 1000 - start) / 1000)
    grown = wait_for("new playlist row", lambda: [r for r in rows()[before:] if r[1] > start])
    arrived = [a for a in arrivals() if a > start][0]
    latencies.append((grown[0][1] - start) / 1000)
    sending.append((arrived - start) / 1000)
    adding.append((grown[0][1] - arrived) / 1000)

print(f"runs: {runs}; later start's own time to exit: median {statistics.median(exits):.0f} ms")
print(f"of which: start to paths received {statistics.median(sending):.0f} ms (the later start loading and "
      f"sending), received to row {statistics.median(adding):.0f} ms (the window scanning and adding)")
print(f"later start to row in the playlist: median {statistics.median(latencies):.0f} ms, "
      f"min {min(latencies):.0f} ms, max {max(latencies):.0f} ms (target: under 150 ms)")
PY
