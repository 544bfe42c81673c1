#!/usr/bin/python3
"""Looks at every window on screens of many sizes and scales, and takes pictures of them all: on a light desktop, a
dark one, and one for weak eyes, of high contrast and with large letters.

Fails if a window is larger than its screen or off it, or if a control lies outside its window and can't be scrolled
to. What only an eye sees is in the pictures: build/screens/WIDTHxHEIGHT-SCALE-PALETTE-WINDOW.png.
usage: screens.py [PROGRAM]
"""

import math
import os
import pathlib
import subprocess
import sys

from gi.repository import GLib

from driver import PROGRAM, PROJECT, Failure, Program, click, take_picture, wait_until

SIZES = ("1366x768", "1920x1080", "2560x1440", "3840x2160")
SCALES = (1, 1.25, 1.5, 2, 3)
PICTURES = PROJECT / "build" / "screens"
GENERATE = "Get My Palace Lantern Interpretation"
CHART = "Palace Lantern Chart"
ANALYSIS = "Palace Lantern Analysis"
SCROLLED = ("text", "list item", "scroll bar")  # stand in a view of their own

# The grounds, the letters on them, links, what is selected, and the desktop's font.
PALETTES = {
    "light": None,
    "dark": (("40,42,46", "28,30,33", "52,55,60"), "235,235,235", "120,170,255", ("60,110,200", "255,255,255"), 10),
    "contrast": (("0,0,0", "0,0,0", "0,0,0"), "255,255,255", "255,255,0", ("0,255,255", "0,0,0"), 15),
}


def desktop(folder, palette):
    """The environment of a desktop whose settings choose the palette."""
    if PALETTES[palette] is None:
        return {}
    grounds, letters, links, (selected, selected_letters), points = PALETTES[palette]
    sections = [f"[Colors:{part}]\nBackgroundNormal={ground}\nForegroundNormal={letters}\n"
                f"ForegroundInactive=170,170,170\nForegroundLink={links}\n"
                for part, ground in zip(("Window", "View", "Button"), grounds)]
    sections.append(f"[Colors:Selection]\nBackgroundNormal={selected}\nForegroundNormal={selected_letters}\n")
    sections.append(f"[General]\nfont=DejaVu Sans,{points},-1,5,50,0,0,0,0,0\n")
    (pathlib.Path(folder) / "kdeglobals").write_text("\n".join(sections))
    return {"QT_QPA_PLATFORMTHEME": "kde", "KDE_SESSION_VERSION": "5", "XDG_CONFIG_DIRS": str(folder),
            "KDEDIRS": str(folder)}


def inside(inner, outer, slack):
    return (inner[0] >= outer[0] - slack and inner[1] >= outer[1] - slack
            and inner[0] + inner[2] <= outer[0] + outer[2] + slack
            and inner[1] + inner[3] <= outer[1] + outer[3] + slack)


def faults(window, screen):
    """What of the window, with its title bar, is off the screen, and what of its controls is out of the window."""
    frame = window.rectangle
    slack = math.ceil(window.scale)  # of rounding
    if not inside(frame, screen, slack):
        yield f"the window {frame} is not on the screen {screen[2:]}"
    if window.role != "alert" and frame[1] < 10:
        yield f"the window's title bar is above the screen: {frame}"
    scrolls = any(control.role == "scroll bar" for control in window.descendants())
    for control in window.descendants():
        if control.has("FOCUSABLE") and control.role not in SCROLLED and not scrolls:
            if not inside(control.rectangle, frame, slack):
                yield f"{control.role} '{control.name}' {control.rectangle} is out of the window {frame}"


class Tour:
    """One way through all windows on the present screen."""

    def __init__(self, program, label, screen):
        self.program, self.label, self.screen, self.found = program, label, screen, []

    def look(self, name, window):
        left, top, width, height = window.rectangle
        take_picture(PICTURES / f"{self.label}-{name}.png", "-window", "root")
        told = [f"{self.label} {name}: {fault}" for fault in faults(window, self.screen)]
        self.found += told
        scrolls = "scrolls" if any(c.role == "scroll bar" for c in window.descendants()) else ""
        print(f"{self.label:24} {name:9} {width:5} x {height:<5} {scrolls}", *told, sep="\n    " if told else " ")

    def press_ok(self, window):
        window.find("push button", "OK").do("Press")
        self.program.wait_closed(window)

    def analysis(self, name):
        analysis = self.program.window(ANALYSIS)
        self.look(name, analysis)
        self.press_ok(analysis)

    def go(self):
        find = self.program.find
        self.look("input", self.program.window("Palace Lantern"))
        years = find("combo box", "Year")
        years.do("ShowMenu")
        wait_until(lambda: years.all("list item"), "the years")
        take_picture(PICTURES / f"{self.label}-years.png", "-window", "root")
        years.do("ShowMenu")
        find("push button", GENERATE).do("Press")
        message = self.program.message()
        self.look("message", message)
        self.press_ok(message)
        find("text", "Name").set_text("ALEXANDRA MEI LING")
        find("push button", GENERATE).do("Press")
        chart = find("frame", CHART)
        wait_until(lambda: len(chart.all("push button")) == 12, "the palaces")
        self.look("chart", self.program.window("Palace Lantern"))
        chart.all("push button")[0].do("Press")
        self.analysis("analysis")
        find("push button", "Show All").do("Press")
        self.analysis("show-all")
        click(find("menu item", "Help"))
        click(find("menu item", "About Software"))
        self.look("about", self.program.window("About Palace Lantern"))


def tour(path, size, scale, palette):
    """On the present display, which has that size."""
    PICTURES.mkdir(parents=True, exist_ok=True)
    label = f"{size}-{scale:g}-{palette}"
    width, height = map(int, size.split("x"))
    with Program(path, scale=scale, environment=desktop(os.environ["XDG_RUNTIME_DIR"], palette)) as program:
        tour = Tour(program, label, (0, 0, width, height))
        try:
            tour.go()
        except (Failure, GLib.Error) as failure:
            tour.found.append(f"{label}: {failure}; {program.end_so_far()}")
            print(tour.found[-1])
        return not tour.found


def everywhere(path):
    good = True
    for size in SIZES:
        for scale in SCALES:
            for palette in PALETTES:
                command = [PROJECT / "tools" / "display.sh", sys.executable, __file__, path, size, str(scale), palette]
                good &= subprocess.run(command, env={**os.environ, "DISPLAY_SIZE": size}).returncode == 0
    return good


if __name__ == "__main__":
    arguments = sys.argv[1:]
    if len(arguments) == 4:
        sys.exit(0 if tour(arguments[0], arguments[1], float(arguments[2]), arguments[3]) else 1)
    sys.exit(0 if everywhere(arguments[0] if arguments else PROGRAM) else 1)
