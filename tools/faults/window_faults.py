#!/usr/bin/python3
"""Tries the faults that need the real program and a person at its windows, and prints a line for each.

usage: window_faults.py APPLICATION_FOLDER   on a display, with the accessibility bus
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

from driver import Control, Failure, Program, click, expect, press, type_text, wait_until
from gi.repository import Atspi, GLib

OPEN = "Click Here To Open Previously Saved Palace Lantern Interpretation"
GENERATE = "Get My Palace Lantern Interpretation"
RUNNING = "Application is already running"
ROUNDS = 10
STARTS = 20


def chart_file(*lines):
    """The bytes of a chart file: each character's code plus 85, each line ended by CR LF."""
    return b"".join(bytes(ord(c) + 85 for c in line) + b"\r\n" for line in lines)


OLD = chart_file("OLD", "1", "January", "1971")
NEW = chart_file("NEW", "9", "September", "2001")


def type_path(program, title, path):
    dialog = program.window(title)
    name = dialog.find("text", "File name:")
    wait_until(lambda: name.has("FOCUSED"), "the file's name box in focus")
    press("ctrl+a")
    type_text(str(path))
    wait_until(lambda: name.text == str(path), "the whole path in the name box")
    return dialog


def replaced_chart_file(application, folder):
    """a chart file replaced while the dialog is open: the new one is opened, and is left as it is"""
    path = folder / "chart.plf"
    path.write_bytes(OLD)
    with Program(application / "palace-lantern") as program:
        click(program.find("push button", OPEN))
        dialog = type_path(program, "Select the source file", path)
        (folder / "other").write_bytes(NEW)
        (folder / "other").rename(path)
        press("Return")
        program.wait_closed(dialog)
        chart = program.find("frame", "Palace Lantern Chart")
        chart.find("label", "NEW")
        chart.find("label", "September/10/2001")  # born at 0:00, which counts as the day after
    expect([file.read_bytes() for file in folder.iterdir()] == [NEW], "the folder is not as it was")


def deleted_chart_file(application, folder):
    """a chart file deleted while the dialog is open: no chart is shown, and the form is as it was"""
    path = folder / "chart.plf"
    path.write_bytes(OLD)
    with Program(application / "palace-lantern") as program:
        name = program.find("text", "Name")
        click(name)
        type_text("KEPT")
        click(program.find("push button", OPEN))
        dialog = type_path(program, "Select the source file", path)
        path.unlink()
        press("Return")
        notice = wait_until(lambda: [w for w in program.windows() if w.role == "alert"], "a notice")[0]
        press("Return")
        program.wait_closed(notice)
        press("Escape")
        program.wait_closed(dialog)
        expect(name.text == "KEPT", f"the name is '{name.text}'")
        click(program.find("push button", GENERATE))
        program.find("frame", "Palace Lantern Chart").find("label", "KEPT")
    expect(not list(folder.iterdir()), "the folder is not empty")


def removed_converter(application, folder):
    """the converter removed after start: the picture is not saved, nothing is left and nothing said"""
    copy = folder / "application"
    copy.mkdir()
    for name in ("palace-lantern", "Bmp2Jpeg.dll"):
        shutil.copy(application / name, copy)
    pictures = folder / "pictures"
    pictures.mkdir()
    (pictures / "chart.bmp").write_text("a person's own")
    with Program(copy / "palace-lantern") as program:
        click(program.find("text", "Name"))
        type_text("ANN")
        click(program.find("push button", GENERATE))
        program.find("frame", "Palace Lantern Chart")
        (copy / "Bmp2Jpeg.dll").unlink()
        click(program.find("push button", "Save as JPG"))
        dialog = type_path(program, "Save as JPG", pictures / "chart.jpg")
        press("Return")
        program.wait_closed(dialog)
        click(program.find("push button", "Show All"))  # answers only when the save has ended
        program.window("Palace Lantern Analysis")
        titles = sorted(window.name for window in program.windows())
        expect(titles == ["Palace Lantern", "Palace Lantern Analysis"], f"something is said: {titles}")
    files = {file.name: file.read_text() for file in pictures.iterdir()}
    expect(files == {"chart.bmp": "a person's own"}, f"the folder holds {files}")


def seen_of(processes):
    """What each process shows, by its number: the message, the input form, or nothing yet."""
    seen = {}
    desktop = Atspi.get_desktop(0)
    for node in filter(None, map(desktop.get_child_at_index, range(desktop.get_child_count()))):
        if node.get_process_id() in processes:
            node.set_cache_mask(Atspi.Cache.NONE)
            shown = Control(node, 1.0)
            message, form = shown.find_now("label", RUNNING), shown.find_now("push button", GENERATE)
            if message or form:
                seen[node.get_process_id()] = "message" if message else "form"
    return seen


def all_seen_of(processes):
    """What they show, once each shows something."""
    seen = seen_of({process.pid for process in processes})
    return list(seen.values()) if len(seen) == len(processes) else None


def twenty_starts(application, folder):
    """twenty starts at once after a kill, ten rounds: one stays in each, nineteen say that it runs already"""
    folder.chmod(0o700)
    environment = {**os.environ, "HOME": str(folder), "XDG_RUNTIME_DIR": str(folder)}
    lock = folder / "palace-lantern.lock"
    program = application / "palace-lantern"
    wrong = []
    for _ in range(ROUNDS):
        first = subprocess.Popen([program], env=environment)
        wait_until(lambda: seen_of({first.pid}), "the first start's form")
        first.kill()
        first.wait()
        expect(lock.exists(), "there is no lock left to be stale")
        started = [subprocess.Popen([program], env=environment) for _ in range(STARTS)]
        try:
            forms = wait_until(lambda: all_seen_of(started), "twenty windows", 60).count("form")
        finally:
            for process in started:
                process.kill()
                process.wait()
        if forms != 1:
            wrong.append(forms)
    expect(not wrong, f"in {len(wrong)} of {ROUNDS} rounds it was not one that stayed but {wrong}")


def try_fault(fault, application):
    with tempfile.TemporaryDirectory() as folder:
        try:
            fault(application, pathlib.Path(folder))
        except (Failure, GLib.Error) as failure:
            print(f"{fault.__name__:34} FAILED: {failure}", flush=True)
            return False
    print(f"{fault.__name__:34} held: {fault.__doc__}", flush=True)
    return True


def main(application):
    faults = [replaced_chart_file, deleted_chart_file, removed_converter, twenty_starts]
    sys.exit(0 if all([try_fault(fault, pathlib.Path(application)) for fault in faults]) else 1)


if __name__ == "__main__":
    main(*sys.argv[1:])
