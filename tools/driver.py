"""Drives the built program from outside, as a person does.

Controls are found by role and name on the accessibility bus, as a screen reader finds them; they are clicked with
the pointer and typed into with real keys. Nothing sleeps for a fixed time: every step waits for what it needs.
"""

import os
import pathlib
import signal
import subprocess
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PROJECT = pathlib.Path(__file__).resolve().parent.parent
PROGRAM = PROJECT / "build" / "dev" / "app" / "palace-lantern"
PATIENCE = 30  # seconds


class Failure(Exception):
    """A step did not do what it should; the text says which."""


def expect(condition, otherwise):
    if not condition:
        raise Failure(otherwise)


def wait_until(condition, what, seconds=PATIENCE):
    """Returns the first true value that `condition` gives. A control that vanishes while asked counts as false."""
    end = time.monotonic() + seconds
    while True:
        try:
            value = condition()
        except GLib.Error:
            value = None
        if value:
            return value
        if time.monotonic() > end:
            raise Failure(f"waited {seconds} seconds in vain for {what}")
        time.sleep(0.03)


def run(*command):
    return subprocess.run([str(part) for part in command], check=True, capture_output=True, text=True).stdout


class Control:
    """A control on the accessibility bus. Lengths are in the screen's pixels."""

    def __init__(self, node, scale):
        self.node = node
        self.scale = scale

    @property
    def name(self):
        return self.node.get_name() or ""

    @property
    def role(self):
        return self.node.get_role_name()

    def has(self, state):
        return self.node.get_state_set().contains(getattr(Atspi.StateType, state))

    @property
    def rectangle(self):
        """Left, top, width and height on the screen."""
        place = self.node.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return tuple(round(length * self.scale) for length in (place.x, place.y, place.width, place.height))

    @property
    def middle(self):
        left, top, width, height = self.rectangle
        return left + width // 2, top + height // 2

    @property
    def selected(self):
        """The entry that is selected in a list."""
        return next((entry.name for entry in self.children() if entry.has("SELECTED")), None)

    @property
    def text(self):
        text = self.node.get_text_iface()
        return text.get_text(0, text.get_character_count())

    def set_text(self, text):
        """Whether the control took the text."""
        editable = self.node.get_editable_text_iface()
        return editable is not None and editable.set_text_contents(text) and self.text == text

    def has_focus(self):
        return self.has("FOCUSED")

    def children(self):
        for index in range(self.node.get_child_count()):
            child = self.node.get_child_at_index(index)
            if child is not None:
                yield Control(child, self.scale)

    def descendants(self, hidden=False):
        """Everything below, depth first; what is not showing only if `hidden`."""
        for child in self.children():
            if hidden or child.has("SHOWING"):
                yield child
                yield from child.descendants(hidden)

    def all(self, role, hidden=False):
        return [control for control in self.descendants(hidden) if control.role == role]

    def find(self, role, name=None, seconds=PATIENCE):
        """The first showing control of that role with that name; waits for it to appear."""
        return wait_until(lambda: self.find_now(role, name), f"{role} '{name or ''}' in '{self.name}'", seconds)

    def find_now(self, role, name=None):
        for control in self.descendants():
            if control.role == role and name in (None, control.name):
                return control
        return None

    def do(self, *actions):
        """Carries out the first of the named actions that the control offers."""
        offered = self.node.get_action_iface()
        names = [offered.get_action_name(i).lower() for i in range(offered.get_n_actions())] if offered else []
        for action in actions:
            if action.lower() in names:
                expect(offered.do_action(names.index(action.lower())), f"'{self.name}' refused '{action}'")
                return
        raise Failure(f"{self.role} '{self.name}' offers none of {actions}, only {names}")


class Program:
    """The program, running on the present display with a runtime and a configuration folder of its own."""

    def __init__(self, path=PROGRAM, scale=1.0, environment=None):
        self.scale = scale
        self.home = tempfile.TemporaryDirectory(prefix="palace-lantern-")
        os.chmod(self.home.name, 0o700)
        own = {
            "HOME": self.home.name,
            "XDG_RUNTIME_DIR": self.home.name,
            "XDG_CONFIG_HOME": self.home.name,
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
            "QT_SCALE_FACTOR": str(scale),
        }
        self.process = subprocess.Popen([path], env={**os.environ, **own, **(environment or {})})
        self.events = []
        self.listener = Atspi.EventListener.new(lambda event: self.events.append((event.type, event.source)))
        self.listener.register("window")
        self.node = wait_until(self._on_bus, "the program on the accessibility bus")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.send_signal(signal.SIGKILL)
            self.process.wait()
        self.home.cleanup()

    def _on_bus(self):
        expect(self.process.poll() is None, f"the program ended at once with code {self.process.returncode}")
        desktop = Atspi.get_desktop(0)
        for index in range(desktop.get_child_count()):
            node = desktop.get_child_at_index(index)
            if node is not None and node.get_process_id() == self.process.pid:
                node.set_cache_mask(Atspi.Cache.NONE)  # asked anew each time, so never out of date
                return node
        return None

    def windows(self):
        return [window for window in Control(self.node, self.scale).children() if window.has("SHOWING")]

    def window(self, title):
        """The showing window of that title, in front of others of the same title; waits for it to appear."""
        found = wait_until(lambda: [w for w in self.windows() if w.name == title], f"the window '{title}'")
        return found[-1]

    def message(self):
        """The message box that is showing; waits for it to appear."""
        return wait_until(lambda: [w for w in self.windows() if w.role == "alert"], "a message box")[-1]

    def find(self, role, name=None):
        """The first showing control of that role with that name in any window, the newest window first."""
        def look():
            found = (window.find_now(role, name) for window in reversed(self.windows()))
            return next((control for control in found if control), None)
        return wait_until(look, f"{role} '{name or ''}'")

    def heard(self, window):
        """The kinds of events with which the window has been announced on the bus."""
        while GLib.MainContext.default().iteration(False):
            pass
        return [kind for kind, source in self.events if source == window.node]

    def wait_closed(self, window):
        """Waits until the window, or a control in it, is gone."""
        wait_until(lambda: not is_showing(window), "the window to close")

    def end_so_far(self):
        """Whether the program still runs, for a failure's report."""
        code = self.process.poll()
        return "the program still runs" if code is None else f"the program had ended with code {code}"

    def wait_end(self):
        """The code with which the program ended."""
        wait_until(lambda: self.process.poll() is not None, "the program to end")
        return self.process.returncode

    def window_id(self, title):
        """The topmost window of the program with that title, as the display knows it."""
        search = ["xdotool", "search", "--all", "--onlyvisible", "--pid", self.process.pid, "--name", f"^{title}$"]
        return wait_until(lambda: _lines(search), f"the window '{title}' on the display")[-1]

    def picture(self, title, path):
        """A picture of the window with its frame."""
        take_picture(path, "-frame", "-window", self.window_id(title))


def take_picture(path, *what):
    """Waits until two pictures in a row are the same, so that everything is painted, and keeps the last."""
    shots = []

    def still():
        time.sleep(0.15)
        shots.append(subprocess.run(["import", *map(str, what), "ppm:-"], check=True, capture_output=True).stdout)
        return shots[-2:].count(shots[-1]) == 2

    wait_until(still, "the screen to stand still")
    subprocess.run(["convert", "ppm:-", path], input=shots[-1], check=True)


def _lines(command):
    return subprocess.run([str(part) for part in command], capture_output=True, text=True).stdout.split()


def is_showing(control):
    try:
        return control.has("SHOWING")
    except GLib.Error:
        return False


def click(control):
    x, y = wait_until(lambda: control.has("SHOWING") and control.middle, f"{control.role} '{control.name}'")
    run("xdotool", "mousemove", x, y, "click", 1)


def type_text(text):
    run("xdotool", "type", "--delay", 15, text)


def press(*keys):
    run("xdotool", "key", "--delay", 30, *keys)
