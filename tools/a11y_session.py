#!/usr/bin/python3
"""Goes through a whole session on the accessibility bus alone, without pointer or display, as a screen reader's user
may, and checks what the bus tells of every window on the way.

usage: a11y_session.py [PROGRAM]
"""

import pathlib
import re
import sys
import tempfile

from gi.repository import GLib

from driver import PROGRAM, Failure, Program, expect, wait_until

INTERACTIVE = {"push button", "combo box", "text", "menu item", "check box", "radio button", "link"}
LISTS = ("Date", "Month", "Year", "Hour", "Minutes")
CELL = re.compile(
    r"(Life Palace|[A-Z][a-z]+ palace), [A-Z][a-z]+, stem [A-Z][a-z]+(, element [A-Z][a-z]+)?"
    r": (no stars|[A-Z][A-Za-z]+ [A-Za-z]+(, [A-Z][A-Za-z]+ [A-Za-z]+)*)(; Body Palace)?")


def check_names(window):
    """Every control that can be used has a name and is distinct by role and name."""
    controls = [c for c in window.descendants() if c.role in INTERACTIVE or c.has("FOCUSABLE")]
    nameless = [c.role for c in controls if not c.name.strip()]
    expect(not nameless, f"'{window.name}' has controls without a name: {nameless}")
    spoken = [(c.role, c.name) for c in controls]
    twice = {pair for pair in spoken if spoken.count(pair) > 1}
    expect(not twice, f"'{window.name}' has controls that can't be told apart: {twice}")


def form(program):
    return program.window("Palace Lantern")


def pick(choice, entry):
    """Presses the entry of the list, which then is the one that is selected."""
    item = next((item for item in choice.children() if item.name == entry), None)
    expect(item is not None, f"'{choice.name}' has no entry '{entry}'")
    item.do("Press")
    expect(choice.selected == entry, f"'{choice.name}' shows '{choice.selected}', not '{entry}'")


def answer_message(program, text):
    message = program.message()
    expect(message.role == "alert" and message.node.get_description() == text, f"'{text}' is not announced")
    wait_until(lambda: "window:activate" in program.heard(message), "the announcement of the message")
    expect(text in [label.name for label in message.all("label")], f"the message does not say '{text}'")
    check_names(message)
    message.find("push button", "OK").do("Press")
    program.wait_closed(message)


def ask_what_it_is(program):
    """The about box, from the menu, which answers before the box opens"""
    items = form(program).all("menu item", hidden=True)
    next(item for item in items if item.name == "About Software").do("Press")
    about = program.window("About Palace Lantern")
    check_names(about)
    about.find("push button", "OK").do("Press")
    program.wait_closed(about)


def fill_in(program):
    """The input form: its controls, their names, what they are set to"""
    window = form(program)
    expect(window.role in ("frame", "dialog", "window"), f"the input form has the role '{window.role}'")
    check_names(window)
    expect([c.name for c in window.all("combo box")] == list(LISTS), "the lists' names are not as they should be")
    window.find("push button", "Get My Palace Lantern Interpretation").do("Press")
    answer_message(program, "Please Enter Your Name !")
    wait_until(window.find("text", "Name").has_focus, "the focus on the name")
    window.find("text", "Name").set_text("MEI LING")
    for name, entry in zip(LISTS, ("14", "February", "1988", "9", "30")):
        pick(window.find("combo box", name), entry)
    window.find("push button", "Get My Palace Lantern Interpretation").do("Press")


def read_chart(program):
    """The chart: twelve palaces, each a button with a sentence for a name"""
    chart = program.find("frame", "Palace Lantern Chart")
    window = form(program)
    expect(window.role in ("frame", "window"), f"the frame has the role '{window.role}'")
    check_names(window)
    cells = chart.all("push button")
    expect(len(cells) == 12, f"the chart has {len(cells)} palaces")
    for cell in cells:
        expect(CELL.fullmatch(cell.name), f"this is no sentence about a palace: '{cell.name}'")
    stars = {star for cell in cells for star in stars_in(cell)}
    bare = [label.name for label in chart.descendants(hidden=True) if label.role == "label" and label.name in stars]
    expect(stars and not bare, f"bare labels of cells can be reached: {bare}")


def stars_in(cell):
    return cell.name.split("; ")[0].partition(": ")[2].split(", ")


def open_palace(program):
    """One palace: pressed, read, closed; the focus comes back to it"""
    cells = program.find("frame", "Palace Lantern Chart").all("push button")
    cell = next(cell for cell in cells if cell.name.startswith("Wealth palace"))
    cell.do("SetFocus")
    cell.do("Press")
    analysis = program.window("Palace Lantern Analysis")
    check_names(analysis)
    expect("Wealth" in analysis.find("text", "Analysis").text, "the analysis can't be read")
    analysis.find("push button", "OK").do("Press")
    program.wait_closed(analysis)
    wait_until(cell.has_focus, "the focus back on the palace")


def save_all(program, path):
    """Show All, and the chart saved from there"""
    program.find("push button", "Show All").do("Press")
    analysis = program.window("Palace Lantern Analysis")
    check_names(analysis)
    expect(len(analysis.find("text", "Analysis").text) > 5000, "the whole analysis can't be read")
    analysis.find("push button", "Save").do("Press")
    box = program.find("text", "File name:")
    box.set_text(str(path))
    program.find("push button", "Save").do("Press")
    program.wait_closed(box)
    wait_until(lambda: path.exists() and path.stat().st_size, "the chart file")
    analysis.find("push button", "OK").do("Press")
    program.wait_closed(analysis)


def go_back(program):
    """Back to the input form"""
    program.find("push button", "Back").do("Press")
    wait_until(lambda: program.find("text", "Name").text == "", "the empty input form")


def leave(program):
    """Exit"""
    program.find("push button", "Exit").do("Press")
    code = program.wait_end()
    expect(code == 0, f"the program ended with code {code}")


def main(path=PROGRAM):
    with Program(path) as program, tempfile.TemporaryDirectory() as files:
        steps = [(ask_what_it_is,), (fill_in,), (read_chart,), (open_palace,), (save_all, pathlib.Path(files) / "chart.plf"),
                 (go_back,), (leave,)]
        for step, *arguments in steps:
            print(f"  {step.__doc__}", flush=True)
            try:
                step(program, *arguments)
            except (Failure, GLib.Error) as failure:
                sys.exit(f"FAILED: {failure}; {program.end_so_far()}")


if __name__ == "__main__":
    main(*sys.argv[1:])
