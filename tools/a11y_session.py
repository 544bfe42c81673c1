#!/usr/bin/python3
"""Goes through a whole session on the accessibility bus, without the pointer, as a screen reader's user may, and
checks what the bus tells of every window on the way. Only the lists' entries are typed with real keys: the toolkit
opens a list over the bus, but offers no action there that picks an entry.

usage: a11y_session.py [PROGRAM]
"""

import re
import shutil
import subprocess
import sys

from driver import ABOUT, ANALYSIS, CHART, GENERATE, TITLE, Program, expect, play, press, type_text, wait_until

INTERACTIVE = {"push button", "combo box", "text", "menu item", "check box", "radio button", "link"}
BIRTH = {"Date": "14", "Month": "February", "Year": "1988", "Hour": "9", "Minutes": "30"}
CELL = re.compile(
    r"(Life Palace|[A-Z][a-z]+ palace), [A-Z][a-z]+, stem [A-Z][a-z]+(, element [A-Z][a-z]+)?"
    r": (no stars|(?P<stars>[A-Z][A-Za-z]+ [A-Za-z]+(, [A-Z][A-Za-z]+ [A-Za-z]+)*))(; Body Palace)?")


def check_names(window):
    """Every control that can be used has a name and is distinct by role and name."""
    controls = [c for c in window.descendants() if c.role in INTERACTIVE or c.has("FOCUSABLE")]
    spoken = [(c.role, c.caption.strip()) for c in controls]
    expect(all(name for _, name in spoken), f"'{window.name}' has controls without a name: {spoken}")
    twice = {pair for pair in spoken if spoken.count(pair) > 1}
    expect(not twice, f"'{window.name}' has controls that can't be told apart: {twice}")


def pick(program, choice, entry):
    choice.do("ShowMenu")
    choice.find("list").wait_focus()
    type_text(entry)
    press("Return")
    wait_until(lambda: choice.name == entry, f"'{entry}' in '{choice.caption}'")
    program.wait_event("object:property-change:accessible-name", choice)


def open_analysis(program, button, word, length):
    button.do("Press")
    analysis = program.window(ANALYSIS)
    check_names(analysis)
    text = analysis.find("text", "Analysis").text
    expect(word in text and len(text) > length, f"the analysis can't be read: '{text[:200]}'")
    return analysis


def ask_what_it_is(program):
    """The about box, from the menu, which answers before the box opens"""
    program.window().find("menu item", "About Software", hidden=True).do("Press")
    about = program.window(ABOUT)
    check_names(about)
    about.press_ok()


def start_beside(program):
    """A second start, which says that the program runs, and ends"""
    with Program(program.process.args[0], environment={"XDG_RUNTIME_DIR": str(program.home)}) as second:
        message = second.message()
        message.find("label", "Application is already running")
        message.press_ok()
        second.wait_end()


def start_incomplete(program):
    """A start with no converter but a folder of that name, which says what is missing, and ends"""
    path = shutil.copy(program.process.args[0], program.home)
    program.home.joinpath("Bmp2Jpeg.dll").mkdir()
    with Program(path) as incomplete:
        message = incomplete.message()
        message.find("label", "Required File Is Missing\nPlease Reinstall Software")
        message.press_ok()
        wait_until(lambda: incomplete.process.poll() == 1, "the program to end with code 1")


def start_wrongly(program):
    """Starts with arguments that make no sense, which end at once"""
    for wrong in ("--shout",), ("one.plf", "other.plf"):
        code = subprocess.run([program.process.args[0], *wrong], timeout=9).returncode
        expect(code == 1, f"a start with {wrong} ends with {code}")


def be_refused(program):
    """A message, which is announced, and the focus after it"""
    window = program.window()
    check_names(window)
    window.find("push button", GENERATE).do("Press")
    message = program.message()
    text = "Please Enter Your Name !"
    expect(message.node.get_description() == text, f"'{text}' is not announced")
    program.wait_event("window:activate", message)
    message.find("label", text)
    check_names(message)
    message.press_ok()
    window.find("text", "Name").wait_focus()


def fill_in(program):
    """The input form: its lists, their captions, what they are set to"""
    window = program.window()
    window.find("text", "Name").set_text("MEI LING")
    lists = window.all("combo box")
    expect([c.caption for c in lists] == list(BIRTH), "the lists' captions are not as they should be")
    for choice in lists:
        pick(program, choice, BIRTH[choice.caption])
    window.find("push button", GENERATE).do("Press")


def read_chart(program):
    """The chart: twelve palaces, each a button with a sentence for a name"""
    cells = [(cell.name, CELL.fullmatch(cell.name)) for cell in program.palaces()]
    check_names(program.window(f"{TITLE} - MEI LING"))
    for name, sentence in cells:
        expect(sentence, f"this is no sentence about a palace: '{name}'")
    stars = {star for _, sentence in cells for star in (sentence["stars"] or "").split(", ") if star}
    labels = {label.name for label in program.find("frame", CHART).all("label", hidden=True)}
    expect(stars and not stars & labels, f"bare labels of cells can be reached: {stars & labels}")


def open_palace(program):
    """One palace: pressed, read, closed; the focus comes back to it"""
    wealth = next(cell for cell in program.palaces() if cell.name.startswith("Wealth palace"))
    wealth.do("SetFocus")
    open_analysis(program, wealth, "Wealth", 100).press_ok()
    wealth.wait_focus()


def save_all(program):
    """Show All, and the chart saved from there"""
    analysis = open_analysis(program, program.find("push button", "Show All"), "Wealth", 5000)
    analysis.find("push button", "Save").do("Press")
    box = program.find("text", "File name:")
    path = program.home / "chart.plf"
    box.set_text(str(path))
    program.find("push button", "Save").do("Press")
    box.wait_closed()
    wait_until(lambda: path.exists() and path.stat().st_size, "the chart file")
    analysis.press_ok()


def go_back_and_leave(program):
    """Back to the empty input form, and Exit"""
    program.find("push button", "Back").do("Press")
    program.find("text", "Name").wait_text("")
    program.find("push button", "Exit").do("Press")
    program.wait_end()


if __name__ == "__main__":
    with Program(*sys.argv[1:]) as session:
        play([ask_what_it_is, start_beside, start_incomplete, start_wrongly, be_refused, fill_in, read_chart,
              open_palace, save_all, go_back_and_leave], session)
