#!/usr/bin/python3
"""Takes the built program through a whole sample birth with pointer and keys, as a person would.

Every step says what it does, checks what comes of it, and leaves a picture where a new window is seen.
usage: sample_session.py FOLDER [PROGRAM]   where FOLDER is for the pictures
"""

import pathlib
import sys
import tempfile
import unicodedata

from gi.repository import GLib

from driver import PROGRAM, Failure, Program, click, expect, press, run, type_text, wait_until

GENERATE = "Get My Palace Lantern Interpretation"
OPEN = "Click Here To Open Previously Saved Palace Lantern Interpretation"
CHART = "Palace Lantern Chart"
ANALYSIS = "Palace Lantern Analysis"


class Session:
    """What the steps have in hand: the program, a folder for its files and one for the pictures."""

    def __init__(self, program, files, pictures):
        self.program = program
        self.files = pathlib.Path(files)
        self.pictures = pathlib.Path(pictures)

    def analysis(self):
        return self.program.window(ANALYSIS)

    def list_named(self, name):
        return self.program.find("combo box", name)

    def picture(self, title, name):
        self.program.picture(title, self.pictures / f"{name}.png")

    def expect_message(self, text, picture):
        """Reads the message, takes its picture and closes it with Enter."""
        message = self.program.message()
        told = message.find("label").name
        expect(told == text, f"the message says '{told}', not '{text}'")
        self.picture("Palace Lantern", picture)
        press("Return")
        self.program.wait_closed(message)

    def choose_file(self, title, path):
        """Types the whole path into a file dialog."""
        box = self.program.find("text", "File name:")
        self.program.window(title)
        wait_until(lambda: box.has("FOCUSED"), "the file's name box in focus")
        press("ctrl+a")
        type_text(str(path))
        press("Return")
        self.program.wait_closed(box)


def wait_text(control, text):
    wait_until(lambda: control.text == text, f"'{text}' in '{control.name}'")


def wait_selected(choice, entry):
    wait_until(lambda: choice.selected == entry, f"'{entry}' in '{choice.name}'")


def pick_by_mouse(choice, entry):
    """Opens the list, turns the wheel until the entry is in sight, and clicks it."""
    click(choice)
    wait_until(lambda: choice.all("list item"), f"the entries of '{choice.name}'")
    entries = [item.name for item in choice.children()]
    for _ in range(100):
        shown = choice.all("list item")
        if any(item.name == entry for item in shown):
            break
        upwards = entries.index(entry) < entries.index(shown[0].name)
        run("xdotool", "mousemove", *shown[len(shown) // 2].middle, "click", 4 if upwards else 5)
    click(choice.find("list item", entry))
    wait_selected(choice, entry)


def pick_by_keys(choice, entry):
    """Moves the focus on to the list and types the entry's beginning."""
    press("Tab")
    wait_until(lambda: choice.has("FOCUSED"), f"the focus on the list '{choice.name}'")
    type_text(entry)
    wait_selected(choice, entry)


def type_name_with_a_digit(session):
    """A name is typed; its digit is refused with a message, and its letters enter as capitals"""
    name = session.program.find("text", "Name")
    click(name)
    type_text("mei ling7")
    session.expect_message("Please Enter Only Letters", "message")
    wait_text(name, "MEI LING")


def pick_an_impossible_date(session):
    """30 February is picked from the lists by mouse and by keys, and refused"""
    pick_by_mouse(session.list_named("Year"), "1988")
    pick_by_mouse(session.list_named("Date"), "30")
    pick_by_keys(session.list_named("Month"), "February")
    click(session.program.find("push button", GENERATE))
    session.expect_message("Please Enter Correct Date Of Birth !", "message-date")
    expect(session.list_named("Date").has("FOCUSED"), "the focus is not on the date")


def pick_date_and_time(session):
    """14 February 1988, 9:30 is picked"""
    type_text("14")
    wait_selected(session.list_named("Date"), "14")
    pick_by_mouse(session.list_named("Hour"), "9")
    pick_by_keys(session.list_named("Minutes"), "30")
    session.picture("Palace Lantern", "input")


def generate_by_enter(session):
    """Enter in the name box casts the chart"""
    click(session.program.find("text", "Name"))
    press("Return")
    chart = session.program.find("frame", CHART)
    labels = [label.name for label in chart.all("label")]
    for text in ("MEI LING", "February/14/1988", "9:30"):
        expect(text in labels, f"the chart does not show '{text}': {labels}")
    expect(len(chart.all("push button")) == 12, "the chart does not have twelve palaces")
    run("xdotool", "mousemove", 2, 200)
    session.picture("Palace Lantern", "chart")


def palace(session, name):
    buttons = session.program.find("frame", CHART).all("push button")
    return next(button for button in buttons if button.name.startswith(name))


def open_palace_by_click(session):
    """A click on the Wealth palace explains it"""
    click(palace(session, "Wealth palace"))
    analysis = session.analysis()
    expect("Wealth" in analysis.find("text", "Analysis").text, "the analysis does not speak of the palace")
    expect([b.name for b in analysis.all("push button")] == ["OK"], "one palace offers other buttons than OK")
    session.picture(ANALYSIS, "analysis")
    press("Escape")
    session.program.wait_closed(analysis)
    wait_until(lambda: palace(session, "Wealth palace").has("FOCUSED"), "the focus back on the palace")


def open_palace_by_keys(session):
    """An arrow key and Enter explain its neighbour"""
    press("Down")
    neighbour = wait_until(lambda: next(
        (button for button in session.program.find("frame", CHART).all("push button") if button.has("FOCUSED")), None), "a palace in focus")
    expect(not neighbour.name.startswith("Wealth"), "the arrow key does not move the focus")
    press("Return")
    analysis = session.analysis()
    expect(neighbour.name.split(" palace")[0] in analysis.find("text", "Analysis").text, "another palace is explained")
    press("Return")
    session.program.wait_closed(analysis)


def show_all(session):
    """Show All explains all twelve"""
    click(session.program.find("push button", "Show All"))
    text = session.analysis().find("text", "Analysis").text
    expect(len(text) > 5000, f"the whole analysis is only {len(text)} characters long")
    session.picture(ANALYSIS, "show-all")


def save_chart_file(session):
    """The chart is saved as a file"""
    click(session.analysis().find("push button", "Save"))
    path = session.files / "mei-ling.plf"
    session.choose_file("Palace Lantern", path)
    wait_until(path.exists, "the chart file")
    expect(path.read_bytes().count(b"\n") >= 4, "the chart file has fewer than four lines")


def print_to_pdf(session):
    """The analysis is printed to a PDF file"""
    click(session.analysis().find("push button", "Print"))
    dialog = session.program.window("Print")
    session.picture("Print", "print")
    target = session.files / "analysis.pdf"
    click(dialog.find("text", "Output file:"))
    press("ctrl+a")
    type_text(str(target))
    click(dialog.find("push button", "Print"))
    session.program.wait_closed(dialog)
    wait_until(lambda: target.exists() and target.read_bytes().rstrip().endswith(b"%%EOF"), "the whole PDF file")
    printed = unicodedata.normalize("NFKC", run("pdftotext", target, "-"))  # takes ligatures apart
    analysis = session.analysis().find("text", "Analysis").text
    missing = [word for word in analysis.split() if word not in printed]
    expect(not missing, f"the PDF file lacks {len(missing)} of the analysis's words: {missing[:10]}")
    press("Escape")


def save_picture(session):
    """The chart is saved as a JPEG picture, pixel for pixel as large as on screen"""
    frame = session.program.find("frame", CHART)
    click(session.program.find("push button", "Save as JPG"))
    session.choose_file("Save as JPG", session.files / "mei-ling.jpg")
    path = session.files / "mei-ling.jpg"
    wait_until(path.exists, "the picture")
    _, _, width, height = frame.find("filler").rectangle
    height -= frame.find("menu bar").rectangle[3]
    told = run("identify", "-format", "%m %w %h", path)
    expect(told == f"JPEG {width} {height}", f"the picture is {told}, not JPEG {width} {height}")


def go_back(session):
    """Back empties the input form"""
    click(session.program.find("push button", "Back"))
    name = session.program.find("text", "Name")
    expect(name.text == "" and session.list_named("Year").selected == "1970", "the form is not as at the start")


def open_chart_file(session):
    """The chart file, which keeps no time of birth, is opened again and its chart cast"""
    pick_by_mouse(session.list_named("Hour"), "9")
    click(session.program.find("push button", OPEN))
    session.choose_file("Select the source file", session.files / "mei-ling.plf")
    chart = session.program.find("frame", CHART)
    expect(chart.find("label", "February/14/1988") and chart.find("label", "MEI LING"), "it is another chart")


def read_about(session):
    """The about box names the program"""
    click(session.program.find("menu item", "Help"))
    click(session.program.find("menu item", "About Software"))
    about = session.program.window("About Palace Lantern")
    about.find("label", "Palace Lantern")
    session.picture("About Palace Lantern", "about")
    press("Escape")
    session.program.wait_closed(about)


def leave_by_menu(session):
    """Exit in the menu ends the program"""
    click(session.program.find("menu item", "File"))
    click(session.program.find("menu item", "File").find("menu item", "Exit"))
    code = session.program.wait_end()
    expect(code == 0, f"the program ended with code {code}")


STEPS = [type_name_with_a_digit, pick_an_impossible_date, pick_date_and_time, generate_by_enter, open_palace_by_click,
         open_palace_by_keys, show_all, save_chart_file, print_to_pdf, save_picture, go_back, open_chart_file,
         read_about, leave_by_menu]


def main(pictures, program=PROGRAM):
    pathlib.Path(pictures).mkdir(parents=True, exist_ok=True)
    with Program(program) as running, tempfile.TemporaryDirectory() as files:
        session = Session(running, files, pictures)
        for step in STEPS:
            print(f"  {step.__doc__}", flush=True)
            try:
                step(session)
            except (Failure, GLib.Error) as failure:
                run("import", "-window", "root", pathlib.Path(pictures) / "failure.png")
                sys.exit(f"FAILED: {failure}; {running.end_so_far()}\nThe screen as it was then: {pictures}/failure.png")


if __name__ == "__main__":
    main(*sys.argv[1:])
