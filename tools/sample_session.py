#!/usr/bin/python3
"""Takes the built program through a whole sample birth with pointer and keys, as a person would.

Every step says what it does, checks what comes of it, and leaves a picture where a new window is seen.
usage: sample_session.py FOLDER [PROGRAM]   where FOLDER is for the pictures
"""

import sys
import unicodedata

from driver import (ABOUT, ANALYSIS, CHART, GENERATE, MESSAGE, OPEN, TITLE, Program, expect, play, press, run, type_text,
                    wait_until)


def expect_message(program, text, picture):
    """Reads the message, takes its picture and closes it with Enter."""
    message = program.message()
    told = message.find("label").name
    expect(told == text, f"the message says '{told}', not '{text}'")
    program.picture(MESSAGE, picture)
    press("Return")
    message.wait_closed()


def choose_file(program, title, path):
    """Types the whole path into a file dialog."""
    box = program.window(title).find("text", "File name:")
    box.wait_focus()
    press("ctrl+a")
    type_text(str(path))
    press("Return")
    box.wait_closed()


def wait_picked(choice, entry):
    wait_until(lambda: choice.name == entry, f"'{entry}' in '{choice.caption}'")


def pick_by_mouse(program, caption, entry):
    """Opens the list, turns the wheel until the entry is in sight, and clicks it."""
    choice = program.find("combo box", caption)
    choice.click()
    choice.find("list item")
    entries = [item.name for item in choice.all("list item", hidden=True)]
    for _ in entries:
        shown = choice.all("list item")
        names = [item.name for item in shown]
        if entry in names:
            break
        upwards = entries.index(entry) < entries.index(names[0])
        shown[len(shown) // 2].click(4 if upwards else 5)
    choice.find("list item", entry).click()
    wait_picked(choice, entry)


def pick_by_keys(program, caption, entry):
    """Moves the focus on to the list and types the entry's beginning."""
    choice = program.find("combo box", caption)
    press("Tab")
    choice.wait_focus()
    type_text(entry)
    wait_picked(choice, entry)


def type_name_with_a_digit(program):
    """A name is typed; its digit is refused with a message, and its letters enter as capitals"""
    name = program.find("text", "Name")
    name.click()
    type_text("mei ling7")
    expect_message(program, "Please Enter Only Letters", "message")
    name.wait_text("MEI LING")


def pick_an_impossible_date(program):
    """30 February is picked from the lists by mouse and by keys, and refused"""
    pick_by_mouse(program, "Year", "1988")
    pick_by_mouse(program, "Date", "30")
    pick_by_keys(program, "Month", "February")
    program.find("push button", GENERATE).click()
    expect_message(program, "Please Enter Correct Date Of Birth !", "message-date")
    program.find("combo box", "Date").wait_focus()


def pick_date_and_time(program):
    """14 February 1988, 9:30 is picked"""
    type_text("14")
    wait_picked(program.find("combo box", "Date"), "14")
    pick_by_mouse(program, "Hour", "9")
    pick_by_keys(program, "Minutes", "30")
    program.picture(TITLE, "input")


def generate_by_enter(program):
    """Enter in the name box casts the chart"""
    program.find("text", "Name").click()
    press("Return")
    labels = [label.name for label in program.find("frame", CHART).all("label")]
    for text in ("MEI LING", "February/14/1988", "9:30"):
        expect(text in labels, f"the chart does not show '{text}': {labels}")
    program.palaces()
    run("xdotool", "mousemove", 2, 200)
    program.picture(f"{TITLE} - MEI LING", "chart")


def open_palace_by_click(program):
    """A click on the Wealth palace explains it"""
    wealth = next(palace for palace in program.palaces() if palace.name.startswith("Wealth palace"))
    wealth.click()
    analysis = program.window(ANALYSIS)
    expect("Wealth" in analysis.find("text", "Analysis").text, "the analysis does not speak of the palace")
    expect([b.name for b in analysis.all("push button")] == ["OK"], "one palace offers other buttons than OK")
    program.picture(ANALYSIS, "analysis")
    press("Escape")
    analysis.wait_closed()
    wealth.wait_focus()


def open_palace_by_keys(program):
    """An arrow key and Enter explain its neighbour"""
    press("Down")
    focused = wait_until(lambda: [p for p in program.palaces() if p.has("FOCUSED")], "a palace in focus")
    expect(not focused[0].name.startswith("Wealth"), "the arrow key does not move the focus")
    press("Return")
    analysis = program.window(ANALYSIS)
    expect(focused[0].name.split(" palace")[0] in analysis.find("text", "Analysis").text, "another palace is explained")
    press("Return")
    analysis.wait_closed()


def show_all_and_save(program):
    """Show All explains all twelve, and the chart is saved as a file"""
    program.find("push button", "Show All").click()
    analysis = program.window(ANALYSIS)
    length = len(analysis.find("text", "Analysis").text)
    expect(length > 5000, f"the whole analysis is only {length} characters long")
    program.picture(ANALYSIS, "show-all")
    analysis.find("push button", "Save").click()
    path = program.home / "mei-ling.plf"
    choose_file(program, TITLE, path)
    wait_until(path.exists, "the chart file")
    expect(path.read_bytes().count(b"\n") >= 4, "the chart file has fewer than four lines")


def print_to_pdf(program):
    """The analysis is printed to a PDF file"""
    analysis = program.window(ANALYSIS)
    analysis.find("push button", "Print").click()
    dialog = program.window("Print")
    pick_by_mouse(program, "Name:", "Print to File (PDF)")  # where there are printers, one of them comes first
    program.picture("Print", "print")
    target = program.home / "analysis.pdf"
    box = dialog.find("text", "Output file:")
    box.click()
    box.wait_focus()
    press("ctrl+a")
    type_text(str(target))
    box.wait_text(str(target))
    dialog.find("push button", "Print").click()
    dialog.wait_closed()
    wait_until(lambda: target.exists() and target.read_bytes().rstrip().endswith(b"%%EOF"), "the whole PDF file")
    printed = unicodedata.normalize("NFKC", run("pdftotext", target, "-").decode())  # takes ligatures apart
    missing = [word for word in analysis.find("text", "Analysis").text.split() if word not in printed]
    expect(not missing, f"the PDF file lacks {len(missing)} of the analysis's words: {missing[:10]}")
    press("Escape")
    analysis.wait_closed()


def save_picture(program):
    """The chart is saved as a JPEG picture, pixel for pixel as large as on screen"""
    path = program.home / "mei-ling.jpg"
    program.find("push button", "Save as JPG").click()
    choose_file(program, "Save as JPG", path)
    wait_until(path.exists, "the picture")
    frame = program.find("frame", CHART)
    _, _, width, height = frame.find("filler").rectangle
    height -= frame.find("menu bar").rectangle[3]
    told = run("identify", "-format", "%m %w %h", path).decode()
    expect(told == f"JPEG {width} {height}", f"the picture is {told}, not JPEG {width} {height}")


def go_back(program):
    """Back empties the input form"""
    program.find("push button", "Back").click()
    program.find("text", "Name").wait_text("")
    wait_picked(program.find("combo box", "Year"), "1970")


def open_chart_file(program):
    """The chart file, which keeps no time of birth, is opened again and its chart cast"""
    pick_by_mouse(program, "Hour", "9")
    program.find("push button", OPEN).click()
    choose_file(program, "Select the source file", program.home / "mei-ling.plf")
    for text in ("MEI LING", "February/14/1988"):
        program.find("frame", CHART).find("label", text)


def read_about(program):
    """The about box names the program"""
    program.find("menu item", "Help").click()
    program.find("menu item", "About Software").click()
    about = program.window(ABOUT)
    about.find("label", TITLE)
    program.picture(ABOUT, "about")
    press("Escape")
    about.wait_closed()


def leave_by_menu(program):
    """Exit in the menu ends the program"""
    program.find("menu item", "File").click()
    program.find("menu item", "File").find("menu item", "Exit").click()
    program.wait_end()


STEPS = [type_name_with_a_digit, pick_an_impossible_date, pick_date_and_time, generate_by_enter, open_palace_by_click,
         open_palace_by_keys, show_all_and_save, print_to_pdf, save_picture, go_back, open_chart_file,
         read_about, leave_by_menu]

if __name__ == "__main__":
    with Program(*sys.argv[2:], pictures=sys.argv[1]) as sample:
        play(STEPS, sample)
