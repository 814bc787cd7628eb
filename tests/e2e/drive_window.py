#!/usr/bin/python3
"""Drives the Dashtrack window as a user would and checks what it shows.

Started by e2e-window.sh inside a private D-Bus session under a virtual X display: it launches the
player on a folder of consecutive clips cut from one route, presses keys with xdotool and uses the
menus and buttons through the accessibility bus, and reads the window's items the same way (items
by accessible name, read-outs by accessible description, a read-out's text being its name).
Each condition is polled until a deadline; a failure says what was expected and what was seen.
A screenshot of the screen is kept for each step.

  drive_window.py --app DASHTRACK --open CLIP_FOLDER --route ROUTE.csv --out DIR \
                  --clip NAME:FIRST_SECOND:SECONDS ...
"""

import argparse
import csv
import os
import re
import shutil
import signal
import subprocess
import sys
import time
from dataclasses import dataclass
from pathlib import Path

import pyatspi

DEADLINE = 20.0  # seconds a condition may take to come true, generous for a busy machine
SCREEN = (1920, 1080)
SPEED_TOLERANCE = 0.015  # the texts have two decimals; neighbouring seconds differ by 0.1 or more
KNOTS_FACTOR = 1.852  # shown KM/H = shown MPH x this
# The window's background, as 8-bit hex, while the player is in front and while it is not.
ACTIVE_BACKGROUND = "17A1FF"
INACTIVE_BACKGROUND = "E6E6E6"


class Failure(Exception):
    pass


@dataclass(frozen=True)
class Clip:
    name: str
    first_second: int  # the route's second at which the clip starts
    seconds: int


class Route:
    """The speeds of the route the clips were made from, one per second."""

    def __init__(self, path):
        with open(path, newline="") as file:
            rows = [row for row in csv.reader(line for line in file if not line.startswith("#"))]
        self.speeds = [float(row[3]) for row in rows[1:]]

    def speed(self, second, unit):
        mph = self.speeds[second]
        return mph * KNOTS_FACTOR if unit == "KM/H" else mph

    def second_of(self, clip, speed_text, unit):
        """The clip's playback second whose record shows this speed, None if none does. Second 0
        shows the empty sample before the first record, whose speed reads zero."""
        value = float(speed_text)
        if value == 0.0:
            return 0
        for k in range(1, clip.seconds + 1):
            if abs(self.speed(clip.first_second + k, unit) - value) <= SPEED_TOLERANCE:
                return k
        return None


def wait_for(what, probe, deadline=DEADLINE, interval=0.1):
    """Polls probe() -> (ok, seen) until ok; returns seen. Raises with the last value seen."""
    end = time.monotonic() + deadline
    while True:
        ok, seen = probe()
        if ok:
            return seen
        if time.monotonic() > end:
            raise Failure(f"expected {what} within {deadline:.0f} s; saw {seen!r}")
        time.sleep(interval)


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Window:
    """The running player as the accessibility bus and the X server show it."""

    def __init__(self, process):
        self.process = process
        self.app = wait_for("the player on the accessibility bus", self._find_app)
        self.window_id = wait_for("a visible Dashtrack window", self._find_x_window)
        self._items = {}

    def _alive(self):
        if self.process.poll() is not None:
            raise Failure(f"the player exited with status {self.process.returncode}")

    def _find_app(self):
        self._alive()
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            app = desktop.getChildAtIndex(index)
            try:
                if app is not None and app.get_process_id() == self.process.pid:
                    return True, app
            except Exception:  # an application leaving the bus as we look
                continue
        return False, "no application with the player's process id"

    def _find_x_window(self):
        self._alive()
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Dashtrack$"],
                               capture_output=True, text=True).stdout.split()
        return bool(found), found[0] if found else "no window"

    def item(self, key, predicate):
        """The first accessible object below the application that satisfies predicate; looked up
        once, since the window's items stay while it lives."""
        if key not in self._items:
            def probe():
                self._alive()
                self.app.clear_cache()
                found = pyatspi.findDescendant(self.app, predicate, breadth_first=True)
                return found is not None, found if found is not None else f"no item {key}"
            self._items[key] = wait_for(f"an item {key}", probe)
        return self._items[key]

    def named(self, name, roles=None):
        def matches(acc):
            return acc is not None and acc.name == name and (roles is None or acc.getRole() in roles)
        return self.item(f"named {name!r}", matches)

    def readout(self, description):
        return self.item(f"described {description!r}",
                         lambda acc: acc is not None and acc.description == description)

    def text(self, description):
        acc = self.readout(description)
        acc.clear_cache()
        return acc.name

    def showing(self, name):
        acc = self.named(name, (pyatspi.ROLE_PUSH_BUTTON,))
        acc.clear_cache()
        return acc.getState().contains(pyatspi.STATE_SHOWING)

    def position(self):
        """The Position slider's place between its ends, 0 to 1."""
        return self.slider_fraction("Position")

    def slider_fraction(self, name):
        """A slider's place between its ends, 0 to 1."""
        acc = self.named(name, (pyatspi.ROLE_SLIDER,))
        acc.clear_cache()
        value = acc.queryValue()
        low, high = value.minimumValue, value.maximumValue
        return (value.currentValue - low) / (high - low) if high > low else 0.0

    def timeline(self):
        """The Timeline's position in seconds and its accessible object."""
        acc = self.named("Timeline", (pyatspi.ROLE_SLIDER,))
        return acc.queryValue().currentValue, acc

    def click_at(self, acc, fraction):
        """A left click at a fraction of the item's width, half way down."""
        x, y, width, height = acc.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        run("xdotool", "mousemove", "--sync", str(int(x + width * fraction)), str(int(y + height / 2)), "click", "1")

    def press(self, name):
        acc = self.named(name, (pyatspi.ROLE_PUSH_BUTTON,))
        acc.queryAction().doAction(0)

    def choose_menu_item(self, name):
        acc = self.item(f"menu item {name!r}",
                        lambda a: a is not None and a.name == name
                        and a.getRole() in (pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_CHECK_MENU_ITEM,
                                            pyatspi.ROLE_RADIO_MENU_ITEM))
        action = acc.queryAction()
        names = [action.getName(i) for i in range(action.nActions)]
        action.doAction(names.index("Press") if "Press" in names else 0)

    def key(self, keys, window=None):
        """Types keys into a window, which gets the keyboard focus first as a desktop would give it."""
        self._alive()
        run("xdotool", "windowfocus", "--sync", window or self.window_id)
        run("xdotool", "key", "--clearmodifiers", keys)

    def visible_windows(self):
        """Geometry (x, y, width, height) of each visible top-level window of the player."""
        ids = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid), "."],
                             capture_output=True, text=True).stdout.split()
        windows = {}
        for window in ids:
            info = run("xwininfo", "-id", window)
            fields = dict(re.findall(r"^\s*(Absolute upper-left X|Absolute upper-left Y|Width|Height):\s+(-?\d+)",
                                     info, re.M))
            windows[window] = tuple(int(fields[k]) for k in
                                    ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        return windows


class Session:
    def __init__(self, args):
        self.args = args
        self.route = Route(args.route)
        self.clips = [Clip(n, int(f), int(s)) for n, f, s in (c.split(":") for c in args.clip)]
        self.out = Path(args.out)
        self.out.mkdir(parents=True, exist_ok=True)
        self.step = 0
        log = open(self.out / "dashtrack.log", "wb")
        self.process = subprocess.Popen([args.app, *args.open], stdout=log, stderr=subprocess.STDOUT)
        self.window = None

    def close(self):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()

    def shoot(self, label):
        self.step += 1
        path = self.out / f"{self.step:02d}-{label}.png"
        subprocess.run(["import", "-window", "root", str(path)], check=False, capture_output=True)
        print(f"e2e: screenshot {path}")

    # What the read-outs say.

    def unit(self):
        return self.window.text("Speed unit")

    def current_clip(self):
        title = self.window.text("Title")
        for clip in self.clips:
            if clip.name in title:
                return clip
        return None

    def sample(self):
        """One reading: (clip, unit, speed text, playback seconds before, after the reading)."""
        clip = self.current_clip()
        before = self.window.position()
        speed = self.window.text("Speed")
        after = self.window.position()
        seconds = clip.seconds if clip else 0
        return clip, self.unit(), speed, before * seconds, after * seconds

    def check_sample(self, reading):
        """The speed shown is the route's speed of the second being played, in the unit shown."""
        clip, unit, speed, t0, t1 = reading
        if clip is None:
            raise Failure(f"expected the title to name one of {[c.name for c in self.clips]}; saw "
                          f"{self.window.text('Title')!r}")
        if not re.fullmatch(r"\d{2,3}\.\d{2}", speed):
            raise Failure(f"expected a speed text like 12.34; saw {speed!r}")
        second = self.route.second_of(clip, speed, unit)
        if second is None:
            expected = [f"{self.route.speed(clip.first_second + k, unit):05.2f}" for k in range(1, clip.seconds + 1)]
            raise Failure(f"expected one of {clip.name}'s speeds in {unit} {expected}; saw {speed!r}")
        # The read-out changes on the 0.1 s tick after the second begins.
        if not int(t0) - 1 <= second <= int(t1) + 1:
            raise Failure(f"expected the speed of second {int(t0)}..{int(t1)} of {clip.name} in {unit}; "
                          f"saw {speed!r}, the speed of second {second}")
        return second

    def samples(self, count, interval=0.35):
        readings = []
        for _ in range(count):
            reading = self.sample()
            self.check_sample(reading)
            readings.append(reading)
            time.sleep(interval)
        return readings

    def paused(self):
        return self.window.showing("Play") and not self.window.showing("Pause")

    def playing(self):
        return self.window.showing("Pause") and not self.window.showing("Play")

    def buttons(self):
        return f"Play {'shown' if self.window.showing('Play') else 'hidden'}, " \
               f"Pause {'shown' if self.window.showing('Pause') else 'hidden'}"

    # The steps, in the order a user would take them.

    def first_clip_plays(self):
        oldest = self.clips[0]
        wait_for(f"the title to name {oldest.name}", lambda: (self.current_clip() == oldest, self.window.text("Title")))
        wait_for("the Pause button (playing)", lambda: (self.playing(), self.buttons()))
        wait_for("a speed other than zero",
                 lambda: ((s := self.window.text("Speed")) not in ("", "00.00"), s))
        readings = self.samples(10)
        speeds = {r[2] for r in readings}
        if len(speeds) < 3:
            raise Failure(f"expected the speed to change over 3.5 s of playing; saw only {sorted(speeds)}")
        self.shoot("first-clip-playing")
        print(f"e2e: first clip plays, speeds seen {sorted(speeds)} {readings[0][1]}")

    def space_pauses_and_plays(self):
        self.window.key("space")
        wait_for("the Play button, the Pause button gone (paused)", lambda: (self.paused(), self.buttons()))
        # Let a tick that was under way land before taking the reference.
        time.sleep(0.3)
        still = self.sample()
        for _ in range(6):
            time.sleep(0.4)
            now = self.sample()
            if now[2] != still[2] or abs(now[4] - still[4]) > 0.05:
                raise Failure(f"expected the speed and position to stay while paused; saw {still[2]!r} at "
                              f"{still[4]:.2f} s, then {now[2]!r} at {now[4]:.2f} s")
        self.shoot("paused")
        self.window.key("space")
        wait_for("the Pause button, the Play button gone (playing)", lambda: (self.playing(), self.buttons()))
        wait_for("the speed to change again after playing on",
                 lambda: ((s := self.window.text("Speed")) != still[2], s))
        self.samples(3)
        print("e2e: Space pauses and plays again")

    def right_steps_ten_seconds(self):
        clip = self.current_clip()
        before = self.window.position() * clip.seconds
        if before + 14 > clip.seconds:
            raise Failure(f"expected to be early enough in {clip.name} for a 10 s step; at {before:.1f} s")
        self.window.key("Right")
        after = wait_for(f"the position to jump forward from {before:.2f} s",
                         lambda: ((t := self.window.position() * clip.seconds) - before > 5, t))
        jump = after - before
        # Playing on between the two readings adds a little.
        if not 9.0 <= jump <= 12.0:
            raise Failure(f"expected Right to step 10 s forward from {before:.2f} s; went to {after:.2f} s")
        # The slider shows the seek's target at once; the read-outs follow when the picture does.
        wait_for(f"the speed of a second after {int(after)} s",
                 lambda: ((second := self.route.second_of(clip, self.window.text("Speed"), self.unit())) is not None
                          and second >= int(after), self.window.text("Speed")))
        self.samples(4)
        self.shoot("stepped-ten-seconds")
        print(f"e2e: Right steps from {before:.1f} s to {after:.1f} s")

    def ctrl_right_loads_next_clip(self):
        first = self.current_clip()
        following = self.clips[self.clips.index(first) + 1]
        self.window.key("ctrl+Right")
        wait_for(f"the title to name {following.name}",
                 lambda: (self.current_clip() == following, self.window.text("Title")))
        wait_for(f"the position to go back near the start of {following.name}",
                 lambda: ((t := self.window.position() * following.seconds) < 5, f"{t:.2f} s"))
        # A command from the keyboard plays the clip it loads.
        wait_for(f"{following.name} playing (the Pause button)", lambda: (self.playing(), self.buttons()))
        wait_for("a speed other than zero", lambda: ((s := self.window.text("Speed")) not in ("", "00.00"), s))
        self.samples(3)
        self.shoot("next-clip")
        print(f"e2e: Ctrl+Right loads {following.name}")

    def units_menu_changes_the_unit(self):
        # Paused, the same record is shown before and after: its speed must simply be converted.
        if not self.paused():
            self.window.press("Pause")
            wait_for("paused by the Pause button", lambda: (self.paused(), self.buttons()))
        if self.window.text("Speed") in ("", "00.00"):
            # Second 0 shows no record: play on into the movie's first records.
            self.window.press("Play")
            wait_for("a speed other than zero", lambda: ((s := self.window.text("Speed")) != "00.00", s))
            self.window.press("Pause")
            wait_for("paused by the Pause button", lambda: (self.paused(), self.buttons()))
        time.sleep(0.3)
        clip = self.current_clip()
        start_unit = self.unit()
        second = self.check_sample(self.sample())
        for unit in [u for u in ("KM/H", "MPH") if u != start_unit] + [start_unit]:
            self.window.choose_menu_item(unit)
            expected = self.route.speed(clip.first_second + second, unit)
            wait_for(f"the unit {unit} and the speed {expected:05.2f}",
                     lambda: (self.unit() == unit
                              and abs(float(self.window.text("Speed")) - expected) <= SPEED_TOLERANCE,
                              f"{self.unit()} {self.window.text('Speed')}"))
            self.shoot(f"unit-{unit.replace('/', '')}")
        print(f"e2e: the Units menu switches {start_unit} and back, speed of second {second} converted")
        self.window.press("Play")
        wait_for("playing again by the Play button", lambda: (self.playing(), self.buttons()))

    def full_screen_and_back(self):
        def full_screen_window():
            windows = self.window.visible_windows()
            covering = [w for w, g in windows.items() if g == (0, 0) + SCREEN]
            return bool(covering), (covering[0] if covering else windows)

        self.window.key("ctrl+f")
        covering = wait_for(f"a window of the player covering the {SCREEN[0]}x{SCREEN[1]} screen", full_screen_window)
        time.sleep(0.5)
        self.shoot("full-screen")
        self.window.key("Escape", window=covering)
        wait_for("no window covering the screen and the main window shown",
                 lambda: (not full_screen_window()[0] and self.window.window_id in self.window.visible_windows(),
                          self.window.visible_windows()))
        self.shoot("full-screen-left")
        print("e2e: Ctrl+F goes full screen, Escape comes back")

    def title_strip_colour(self):
        """The colour a few pixels into the window's top-left corner: its title strip's background."""
        x, y, _, _ = self.window.visible_windows()[self.window.window_id]
        pixel = run("import", "-window", "root", "-crop", f"1x1+{x + 6}+{y + 6}", "-depth", "8", "txt:-")
        found = re.search(r"#([0-9A-Fa-f]{6})", pixel)
        return found.group(1).upper() if found else pixel

    def active_and_inactive(self):
        wait_for("the title strip blue while the player is in front",
                 lambda: ((c := self.title_strip_colour()) == ACTIVE_BACKGROUND, c))
        self.shoot("active-playing")
        other = subprocess.Popen(["xmessage", "-geometry", "+1500+950", "another application"],
                                 stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            other_id = wait_for("another application's window",
                                lambda: (bool(ids := subprocess.run(
                                    ["xdotool", "search", "--onlyvisible", "--classname", "^xmessage$"],
                                    capture_output=True, text=True).stdout.split()), ids))[0]
            run("xdotool", "windowfocus", "--sync", other_id)
            wait_for("the title strip grey while another application is in front",
                     lambda: ((c := self.title_strip_colour()) == INACTIVE_BACKGROUND, c))
            self.shoot("inactive-playing")
        finally:
            other.terminate()
            other.wait()
        run("xdotool", "windowfocus", "--sync", self.window.window_id)
        wait_for("the title strip blue again", lambda: ((c := self.title_strip_colour()) == ACTIVE_BACKGROUND, c))
        print("e2e: blue in front, grey behind another application")

    def about_over_the_window(self):
        self.window.choose_menu_item("About Dashtrack")
        about = self.window.named("About Dashtrack")
        wait_for("the About view shown", lambda: (about.getState().contains(pyatspi.STATE_SHOWING), "hidden"))
        # The fade runs for about two thirds of a second.
        time.sleep(1.0)
        self.shoot("about")
        if not self.playing():
            raise Failure(f"expected the movie to play on behind the About view; {self.buttons()}")
        self.window.press("Close About")
        wait_for("the About view gone after its fade",
                 lambda: (not (about.clear_cache() or about.getState().contains(pyatspi.STATE_SHOWING)), "shown"))
        self.shoot("about-closed")
        print("e2e: the About view fades in over the playing movie and away again")

    def trip_of(self, clip):
        """The clips of the trip that holds clip: consecutive names whose first seconds follow on."""
        index = self.clips.index(clip)
        start = index
        while start > 0 and self.clips[start - 1].first_second + self.clips[start - 1].seconds == self.clips[start].first_second:
            start -= 1
        end = index
        while end + 1 < len(self.clips) and self.clips[end].first_second + self.clips[end].seconds == self.clips[end + 1].first_second:
            end += 1
        return self.clips[start:end + 1]

    def continuous_play_carries_the_readouts(self):
        self.window.choose_menu_item("Play Clips Continuously")
        # The second clip of the first trip, playing, ten seconds before its end.
        second = self.clips[1]
        for _ in range(4):
            if self.current_clip() == second:
                break
            self.window.key("ctrl+Left" if self.clips.index(self.current_clip()) > 1 else "ctrl+Right")
            time.sleep(0.5)
        wait_for(f"the title to name {second.name}", lambda: (self.current_clip() == second, self.window.text("Title")))
        if not self.playing():
            self.window.key("space")
        wait_for(f"{second.name} playing", lambda: (self.playing(), self.buttons()))
        self.window.key("Right")
        following = self.clips[2]
        seen = []
        end = time.monotonic() + second.seconds + DEADLINE
        # Every reading across the change of clip: the read-outs never go idle in between.
        while time.monotonic() < end:
            clip, speed = self.current_clip(), self.window.text("Speed")
            seen.append((clip.name if clip else None, speed))
            if speed in ("", "00.00"):
                raise Failure(f"expected the read-outs to carry on from {second.name} into {following.name}; "
                              f"saw {speed!r} in {clip.name if clip else None}")
            if clip == following and self.route.second_of(following, speed, self.unit()) not in (None, 0):
                break
            time.sleep(0.05)
        else:
            raise Failure(f"expected {following.name} to follow {second.name} at once; saw {seen[-5:]}")
        wait_for(f"{following.name} playing on by itself", lambda: (self.playing(), self.buttons()))
        self.samples(3)
        self.shoot("continuous-play")
        print(f"e2e: continuous play goes from {second.name} into {following.name}, {len(seen)} readings, none idle")

    def timeline_click_seeks_while_paused(self):
        self.window.key("space")
        wait_for("paused", lambda: (self.paused(), self.buttons()))
        trip = self.trip_of(self.current_clip())
        total = sum(c.seconds for c in trip)
        _, timeline = self.window.timeline()
        self.window.click_at(timeline, 0.6)
        # Where the click landed, by the timeline's own account, then the clip and second it names.
        target = wait_for("the timeline's position to move to about 60 % of the trip",
                          lambda: (abs((v := self.window.timeline()[0]) - 0.6 * total) < 0.1 * total, v))
        offset = target
        for clip in trip:
            if offset < clip.seconds:
                break
            offset -= clip.seconds
        wait_for(f"the title to name {clip.name}", lambda: (self.current_clip() == clip, self.window.text("Title")))
        expected = int(offset)

        def shows_that_second():
            speed = self.window.text("Speed")
            second = self.route.second_of(clip, speed, self.unit())
            return second is not None and abs(second - expected) <= 1, f"{speed} (second {second})"
        wait_for(f"the speed of second {expected} of {clip.name} while paused", shows_that_second)
        if not self.paused():
            raise Failure(f"expected the movie to stay paused after a click on the timeline; {self.buttons()}")
        self.shoot("timeline-click-paused")
        print(f"e2e: a click on the timeline at {target:.1f} s of the trip shows second {expected} of {clip.name}")

    def period_steps_one_frame(self):
        before = self.window.timeline()[0]
        self.window.key("period")
        after = wait_for(f"the position to move one frame on from {before:.3f} s",
                         lambda: ((v := self.window.timeline()[0]) > before + 0.01, v))
        if after - before > 0.5:
            raise Failure(f"expected one frame (1/15 s) forward from {before:.3f} s; went to {after:.3f} s")
        if not self.paused():
            raise Failure(f"expected the movie to stay paused after a frame step; {self.buttons()}")
        self.shoot("frame-step")
        print(f"e2e: . steps one frame, {before:.3f} s to {after:.3f} s")

    # Media keys: the desktop's controls reach the player over the session bus, as playerctl does.

    def playerctl(self, *arguments):
        return run("playerctl", "--player=dashtrack", *arguments).strip()

    def playerctl_status(self, expected):
        return wait_for(f"playerctl status {expected}", lambda: ((s := self.playerctl("status")) == expected, s))

    def media_keys_drive_the_player(self):
        players = run("playerctl", "--list-all").split()
        if "dashtrack" not in players:
            raise Failure(f"expected playerctl to list dashtrack; saw {players}")
        # Desktops find the player's icon and name through the desktop entry it names.
        entry = run("dbus-send", "--session", "--print-reply", "--dest=org.mpris.MediaPlayer2.dashtrack",
                    "/org/mpris/MediaPlayer2", "org.freedesktop.DBus.Properties.Get",
                    "string:org.mpris.MediaPlayer2", "string:DesktopEntry")
        if '"io.github.dashtrack.Dashtrack"' not in entry:
            raise Failure(f"expected the desktop entry io.github.dashtrack.Dashtrack; saw {entry!r}")
        self.playerctl_status("Paused")
        self.playerctl("play-pause")
        self.playerctl_status("Playing")
        wait_for("the Pause button after play-pause from playerctl", lambda: (self.playing(), self.buttons()))
        self.playerctl("play-pause")
        self.playerctl_status("Paused")
        wait_for("the Play button after play-pause from playerctl", lambda: (self.paused(), self.buttons()))

        clip = self.current_clip()
        title = self.playerctl("metadata", "xesam:title")
        url = self.playerctl("metadata", "xesam:url")
        length = int(self.playerctl("metadata", "mpris:length")) / 1e6
        if title != clip.name or not (url.startswith("file:///") and url.endswith("/" + clip.name)):
            raise Failure(f"expected the metadata of {clip.name}; saw title {title!r}, url {url!r}")
        if abs(length - clip.seconds) > 0.5:
            raise Failure(f"expected a length of {clip.seconds} s for {clip.name}; saw {length:.3f} s")

        target = clip.seconds / 2
        self.playerctl("position", f"{target}")
        wait_for(f"playerctl position {target} s",
                 lambda: (abs((p := float(self.playerctl("position"))) - target) < 0.3, p))
        wait_for(f"the Position slider at {target} s of {clip.seconds}",
                 lambda: (abs((p := self.window.position()) * clip.seconds - target) < 0.5, p * clip.seconds))

        index = self.clips.index(clip)
        command, expected = ("next", self.clips[index + 1]) if index + 1 < len(self.clips) else \
            ("previous", self.clips[index - 1])
        self.playerctl(command)
        wait_for(f"{command} from playerctl to load {expected.name}",
                 lambda: (self.current_clip() == expected, self.window.text("Title")))
        wait_for(f"the metadata of {expected.name}",
                 lambda: ((t := self.playerctl("metadata", "xesam:title")) == expected.name, t))
        self.shoot("media-keys")
        print(f"e2e: playerctl plays, pauses, reads {clip.name}'s metadata, sets the position, "
              f"and {command} loads {expected.name}")

        self.playerctl("volume", "0.25")
        wait_for("the Volume slider at a quarter after playerctl volume 0.25",
                 lambda: (abs((v := self.window.slider_fraction("Volume")) - 0.25) < 0.02, v))
        wait_for("playerctl to read the volume back",
                 lambda: (abs((v := float(self.playerctl("volume"))) - 0.25) < 0.02, v))
        rows = self.playlist_rows()
        opened = self.out / "opened-by-uri.MOV"
        shutil.copyfile(Path(self.args.open[0]) / self.clips[-1].name, opened)
        self.playerctl("open", opened.resolve().as_uri())
        wait_for(f"playerctl open to add a row to the {rows}", lambda: ((n := self.playlist_rows()) == rows + 1, n))
        print("e2e: playerctl sets the volume the slider shows, and open adds a clip to the playlist")

    def playlist_rows(self):
        table = self.window.named("Playlist", (pyatspi.ROLE_TABLE, pyatspi.ROLE_TREE_TABLE))
        table.clear_cache()
        return table.queryTable().nRows

    def later_start_adds_to_this_window(self):
        rows = self.playlist_rows
        before = rows()
        later = Path(self.args.open[0]).parent / "later"
        later.mkdir(exist_ok=True)
        name = "2026_1115_090000_0006.MOV"
        shutil.copyfile(Path(self.args.open[0]) / self.clips[-1].name, later / name)
        # As a user types it: the launcher beside the window's program, with a name relative to the
        # later start's own folder (the window is told the whole path).
        launcher = Path(self.args.app).with_name("dashtrack")
        second = subprocess.run([str(launcher), name], cwd=later, capture_output=True, text=True, timeout=DEADLINE)
        if second.returncode != 0 or second.stdout or second.stderr:
            raise Failure(f"expected the later start to hand over quietly and exit 0; saw status "
                          f"{second.returncode}, output {second.stdout + second.stderr!r}")
        wait_for(f"the playlist to grow from {before} to {before + 1} rows", lambda: ((n := rows()) == before + 1, n))
        self.shoot("later-start-added")
        print(f"e2e: a later start added {name} to the running window's playlist and exited")

        # --new-window opts out: a window of its own plays the clip (and quits at its first frame),
        # and the running window's playlist stays as it was.
        own = subprocess.run([str(launcher), "--new-window", "--quit-at-first-frame", name], cwd=later,
                             capture_output=True, text=True, timeout=DEADLINE)
        if own.returncode != 0:
            raise Failure(f"expected --new-window to open its own window and quit at its first frame; "
                          f"saw status {own.returncode}, output {own.stdout + own.stderr!r}")
        if rows() != before + 1:
            raise Failure(f"expected --new-window to leave the running window's {before + 1} rows; saw {rows()}")
        print("e2e: --new-window played the clip in a window of its own and left the running one alone")

    def export_track_writes_gpx(self):
        """File, Export Track, Loaded Clip… into a GPX: the document dashtrack-gps writes for that
        clip, whose points exiftool reads back."""
        target = self.out / "export.gpx"
        target.unlink(missing_ok=True)
        self.window.choose_menu_item("Loaded Clip…")
        dialog = wait_for("the Export Track dialog", self._export_dialog)
        self.window.key("ctrl+a", dialog)
        run("xdotool", "type", "--delay", "20", str(target))
        self.shoot("export-dialog")
        self.window.key("Return", dialog)
        wait_for(f"{target} written", lambda: (target.exists(), "no file"))
        written = target.read_text()
        clip = re.search(r"<trk>\s*<name>([^<]*)</name>", written).group(1)
        unit = "kmh" if self.unit() == "KM/H" else "mph"
        tool = run(self.args.gps_tool, "extract", "--format", "gpx", "--unit", unit, clip)
        if written != tool:
            raise Failure(f"expected the export of {clip} to be the document dashtrack-gps writes for it")
        points = [(float(a), float(b)) for a, b in re.findall(r'<trkpt lat="([^"]+)" lon="([^"]+)"', tool)]
        values = [float(v) for v in run("exiftool", "-n", "-a", "-s3", "-GpxTrkTrksegTrkptLat",
                                        "-GpxTrkTrksegTrkptLon", str(target)).split()]
        read = list(zip(values[:len(values) // 2], values[len(values) // 2:]))
        if not points or read != points:
            raise Failure(f"expected exiftool to read the {len(points)} points of {clip}; read {len(read)}")
        print(f"e2e: Export Track wrote {len(points)} points of {Path(clip).name}, as dashtrack-gps and exiftool read them")

    def _export_dialog(self):
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", "^Export Track$"],
                               capture_output=True, text=True).stdout.split()
        return bool(found), found[0] if found else "no dialog"

    def run(self):
        self.window = Window(self.process)
        for step in (self.first_clip_plays, self.space_pauses_and_plays, self.right_steps_ten_seconds,
                     self.ctrl_right_loads_next_clip, self.units_menu_changes_the_unit, self.full_screen_and_back,
                     self.active_and_inactive, self.about_over_the_window, self.continuous_play_carries_the_readouts,
                     self.timeline_click_seeks_while_paused, self.period_steps_one_frame,
                     self.media_keys_drive_the_player, self.later_start_adds_to_this_window,
                     self.export_track_writes_gpx):
            try:
                step()
            except Failure:
                self.shoot(f"FAILED-{step.__name__}")
                raise


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--app", required=True)
    parser.add_argument("--open", action="append", required=True, help="a folder or movie to open")
    parser.add_argument("--route", required=True)
    parser.add_argument("--out", required=True)
    parser.add_argument("--clip", action="append", required=True, help="NAME:FIRST_SECOND:SECONDS, oldest first")
    parser.add_argument("--gps-tool", required=True, help="dashtrack-gps, to read the exported track's clip")
    args = parser.parse_args()
    # ctest's time-out and Ctrl+C end the run through the finally below.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    session = Session(args)
    try:
        session.run()
    except Failure as failure:
        print(f"e2e: FAIL: {failure}", file=sys.stderr)
        return 1
    finally:
        session.close()
        print(f"e2e: screenshots and the player's output in {session.out}")
    log = session.out / "dashtrack.log"
    if log.stat().st_size:
        print(f"e2e: FAIL: the player printed in a normal run:\n{log.read_text(errors='replace')}", file=sys.stderr)
        return 1
    print("e2e: OK")
    return 0


if __name__ == "__main__":
    sys.exit(main())
