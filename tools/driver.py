"""Drives the built program from outside, as a person does.

Controls are found by role and name on the accessibility bus, as a screen reader finds them; they are clicked with
the pointer and typed into with real keys. Nothing sleeps for a fixed time: every step waits for what it needs.
"""

import os
import pathlib
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

PROJECT = pathlib.Path(__file__).resolve().parent.parent
PROGRAM = PROJECT / "build" / "dev" / "app" / "palace-lantern"
PATIENCE = 30  # seconds
TITLE = "Palace Lantern"
MESSAGE = "Palace Lantern Message"
GENERATE = "Get My Palace Lantern Interpretation"
OPEN = "Click Here To Open Previously Saved Palace Lantern Interpretation"
CHART = "Palace Lantern Chart"
ANALYSIS = "Palace Lantern Analysis"
ABOUT = "About Palace Lantern"


class Failure(Exception):
    """A step did not do what it should; the text says which."""


def expect(condition, otherwise):
    if not condition:
        raise Failure(otherwise)


def wait_until(condition, what):
    """Returns the first true value that `condition` gives. A control that vanishes while asked counts as false."""
    end = time.monotonic() + PATIENCE
    while True:
        try:
            value = condition()
        except GLib.Error:
            value = None
        if value:
            return value
        expect(time.monotonic() < end, f"waited {PATIENCE} seconds in vain for {what}")
        time.sleep(0.03)


def run(*command, check=True, **more):
    """The command's output."""
    return subprocess.run([str(part) for part in command], check=check, stdout=subprocess.PIPE, **more).stdout


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
        name = self.node.get_role_name()
        return "push button" if name == "button" else name  # newer libraries' word for it

    @property
    def caption(self):
        """The label that stands beside a control, as its relation on the bus tells; without one, its name."""
        for relation in self.node.get_relation_set():
            label = relation.get_target(0)
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY and label.get_role_name() == "label":
                return label.get_name()
        return self.name

    def has(self, state):
        return self.node.get_state_set().contains(getattr(Atspi.StateType, state))

    @property
    def rectangle(self):
        """Left, top, width and height on the screen."""
        place = Atspi.Component.get_extents(self.node, Atspi.CoordType.SCREEN)
        return tuple(round(length * self.scale) for length in (place.x, place.y, place.width, place.height))

    @property
    def text(self):
        return Atspi.Text.get_text(self.node, 0, Atspi.Text.get_character_count(self.node))

    def set_text(self, text):
        Atspi.EditableText.set_text_contents(self.node, text)
        self.wait_text(text)

    def wait_text(self, text):
        wait_until(lambda: self.text == text, f"'{text}' in '{self.name}'")

    def wait_focus(self):
        wait_until(lambda: self.has("FOCUSED"), f"the focus on {self.role} '{self.name}'")

    def wait_closed(self):
        """Waits until a window, or what is in it, is gone."""
        def is_gone():
            try:
                return not self.has("SHOWING")
            except GLib.Error:
                return True
        wait_until(is_gone, "a window to close")

    def children(self):
        nodes = (self.node.get_child_at_index(index) for index in range(self.node.get_child_count()))
        return [Control(node, self.scale) for node in nodes if node is not None]

    def descendants(self, hidden=False):
        """Everything below, depth first; what is not showing only if `hidden`."""
        for child in self.children():
            if hidden or child.has("SHOWING"):
                yield child
                yield from child.descendants(hidden)

    def all(self, role, hidden=False):
        return [control for control in self.descendants(hidden) if control.role == role]

    def find(self, role, name=None, hidden=False):
        """The first control of that role with that name, or with that caption for a list; waits for it."""
        def look():
            return next((control for control in self.all(role, hidden) if name in (None, control.caption)), None)
        return wait_until(look, f"{role} '{name or ''}' in '{self.name}'")

    def do(self, action):
        names = [Atspi.Action.get_action_name(self.node, i) for i in range(Atspi.Action.get_n_actions(self.node))]
        expect(action in names, f"{self.role} '{self.name}' offers {names}, not {action}")
        Atspi.Action.do_action(self.node, names.index(action))

    def press_ok(self):
        """Closes a dialog by its button, over the bus."""
        self.find("push button", "OK").do("Press")
        self.wait_closed()

    def click(self, button=1):
        left, top, width, height = wait_until(lambda: self.has("SHOWING") and self.rectangle, self.name)
        run("xdotool", "mousemove", left + width // 2, top + height // 2, "click", button)


class Program(Control):
    """The program, running on the present display with a home of its own. Its children are its windows."""

    def __init__(self, path=PROGRAM, pictures=None, scale=1, environment=None):
        self._folder = tempfile.TemporaryDirectory(prefix="palace-lantern-")
        self.home = pathlib.Path(self._folder.name)
        self.pictures = pictures and pathlib.Path(pictures)
        own = {name: str(self.home) for name in ("HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME")}
        own.update(QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", QT_SCALE_FACTOR=str(scale), **(environment or {}))
        self.events = []
        self.listener = Atspi.EventListener.new(lambda event: self.events.append((event.type, event.source)))
        self.listener.register("window")
        self.listener.register("object")
        self.process = subprocess.Popen([path], env={**os.environ, **own})
        super().__init__(wait_until(self._on_bus, "the program on the accessibility bus"), scale)
        self.node.set_cache_mask(Atspi.Cache.NONE)  # asked anew each time, so never out of date

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.kill()
        self.process.wait()
        self._folder.cleanup()

    def _on_bus(self):
        expect(self.process.poll() is None, f"the program ended at once with code {self.process.returncode}")
        programs = Control(Atspi.get_desktop(0), 1).children()
        return next((each.node for each in programs if each.node.get_process_id() == self.process.pid), None)

    def children(self):
        """The newest first."""
        return super().children()[::-1]

    def window(self, title=TITLE):
        """The newest showing window of that title; waits for it to appear."""
        def look():
            return next((w for w in self.children() if w.has("SHOWING") and w.name == title), None)
        return wait_until(look, f"the window '{title}'")

    def message(self):
        return self.window(MESSAGE)

    def palaces(self):
        """The cells of the chart; waits for it to appear."""
        cells = self.find("frame", CHART).all("push button")
        expect(len(cells) == 12, f"the chart has {len(cells)} palaces")
        return cells

    def wait_event(self, kind, control):
        """Waits until the bus has announced an event of that kind about the control."""
        def heard():
            while GLib.MainContext.default().iteration(False):
                pass
            return any(event.startswith(kind) and source == control.node for event, source in self.events)
        wait_until(heard, f"the announcement {kind} of '{control.name}'")

    def wait_end(self):
        wait_until(lambda: self.process.poll() is not None, "the program to end")
        expect(self.process.returncode == 0, f"the program ended with code {self.process.returncode}")

    def picture(self, title, name):
        """A picture of the topmost window of that title, with its frame."""
        search = ["xdotool", "search", "--all", "--onlyvisible", "--pid", self.process.pid, "--name", f"^{title}$"]
        windows = wait_until(lambda: run(*search, check=False).split(), f"the window '{title}' on the display")
        take_picture(self.pictures / f"{name}.png", "-frame", "-window", windows[-1].decode())


def take_picture(path, *what):
    """Waits until a picture comes again, so that everything is painted (in a row it may not, as cursors blink)."""
    shots = []

    def still():
        time.sleep(0.15)
        shots.append(run("import", *what, "ppm:-"))
        return shots.count(shots[-1]) == 2

    wait_until(still, "the screen to stand still")
    path.parent.mkdir(parents=True, exist_ok=True)
    run("convert", "ppm:-", path, input=shots[-1])


def type_text(text):
    run("xdotool", "type", "--delay", 15, text)


def press(*keys):
    run("xdotool", "key", "--delay", 30, *keys)


def play(steps, program):
    """Takes the program through the steps, each under its own description, and ends the script where one fails."""
    for step in steps:
        print(f"  {step.__doc__}", flush=True)
        try:
            step(program)
        except (Failure, GLib.Error) as failure:
            code = program.process.poll()
            screen = PROJECT / "build" / "failure.png"
            run("import", "-window", "root", screen)
            sys.exit(f"FAILED: {failure}; the program " + ("still runs" if code is None else f"ended with code {code}")
                     + f"\nThe screen as it was then: {screen}")
