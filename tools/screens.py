#!/usr/bin/python3
"""Looks at every window on screens of many sizes and scales, and takes pictures of them all: on a light desktop, a
dark one, and one for weak eyes, of high contrast and with large letters.

Fails if a window is larger than its screen or off it, if a control lies outside its window and can't be scrolled
to, or if the chart scrolls at scale 1, where every screen here has room for it. What only an eye sees is in the
pictures: build/screens/WIDTHxHEIGHT-SCALE-PALETTE-WINDOW.png.
usage: screens.py [SIZE SCALE PALETTE]   to look on the present display alone, which has that size
"""

import itertools
import math
import os
import pathlib
import subprocess
import sys

from driver import ABOUT, ANALYSIS, GENERATE, PROJECT, TITLE, Program, expect, play, press, take_picture

SIZES = ("1366x768", "1920x1080", "2560x1440", "3840x2160")
SCALES = ("1", "1.25", "1.5", "2", "3")
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


def faults(name, window, screen):
    """What of the window, with its title bar, is off the screen, what of its controls is out of the window, and
    whether it scrolls though it need not."""
    frame = window.rectangle
    slack = math.ceil(window.scale)  # of rounding
    if not inside(frame, screen, slack):
        yield f"the window {frame} is not on the screen {screen[2:]}"
    if window.role != "alert" and frame[1] < 10:
        yield f"the window's title bar is above the screen: {frame}"
    if window.all("scroll bar"):
        if name == "chart" and window.scale == 1:
            yield "the chart scrolls"
        return
    for control in window.descendants():
        if control.has("FOCUSABLE") and control.role not in SCROLLED and not inside(control.rectangle, frame, slack):
            yield f"{control.role} '{control.name}' {control.rectangle} is out of the window {frame}"


def tour(size, scale, palette):
    """Through all windows on the present display, which has that size."""
    screen = (0, 0, *map(int, size.split("x")))
    found = []

    def photograph(name):
        take_picture(PROJECT / "build" / "screens" / f"{size}-{scale}-{palette}-{name}.png", "-window", "root")

    def look(name, window):
        photograph(name)
        _, _, width, height = window.rectangle
        print(f"    {name:9} {width:5} x {height:<5}", "scrolls" if window.all("scroll bar") else "")
        found.extend(f"{name}: {fault}" for fault in faults(name, window, screen))

    def look_at_all(program):
        look("input", program.window())
        years = program.find("combo box", "Year")
        years.do("ShowMenu")
        years.find("list item")
        photograph("years")
        press("Escape")
        years.find("list", hidden=True).wait_closed()
        generate = program.find("push button", GENERATE)
        generate.do("Press")
        message = program.message()
        look("message", message)
        message.press_ok()
        program.find("text", "Name").set_text("ALEXANDRA MEI LING")
        generate.do("Press")
        palaces = program.palaces()
        look("chart", program.window(f"{TITLE} - ALEXANDRA MEI LING"))
        for name, button in (("analysis", palaces[0]), ("show-all", program.find("push button", "Show All"))):
            button.do("Press")
            analysis = program.window(ANALYSIS)
            look(name, analysis)
            analysis.press_ok()
        program.find("menu item", "Help").click()
        program.find("menu item", "About Software").click()
        look("about", program.window(ABOUT))
        expect(not found, "\n".join(found))

    look_at_all.__doc__ = f"{size} at scale {scale}, {palette}"
    with Program(scale=float(scale), environment=desktop(os.environ["XDG_RUNTIME_DIR"], palette)) as program:
        play([look_at_all], program)


def everywhere():
    failed = 0
    for choice in itertools.product(SIZES, SCALES, PALETTES):
        command = [PROJECT / "tools" / "display.sh", sys.executable, __file__, *choice]
        failed += subprocess.run(command, env={**os.environ, "DISPLAY_SIZE": choice[0]}).returncode != 0
    sys.exit(f"{failed} tours FAILED" if failed else 0)


if __name__ == "__main__":
    tour(*sys.argv[1:]) if sys.argv[1:] else everywhere()
