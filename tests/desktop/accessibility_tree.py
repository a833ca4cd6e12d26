#!/usr/bin/python3
"""Reads the settings window as a screen reader does: over D-Bus, from outside.

    accessibility_tree.py SOURCES BUNDLE     (on a display)
"""
import os
import pathlib
import plistlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

sources, bundle = map(pathlib.Path, sys.argv[1:3])
keys = re.findall(r'"(\w+) ",\s*"[^"]*",\s*"\w',
                  (sources / "document/key_table.h").read_text())
faults = []


def start_again_on_a_bus_of_its_own():
    with tempfile.TemporaryDirectory() as home:
        variables = {"PATH": os.environ["PATH"], "DISPLAY": os.environ["DISPLAY"], "HOME": home,
                     "XDG_RUNTIME_DIR": home, "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                     "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        shutil.copytree(bundle, f"{home}/QuillonSettings.app")
        shutil.copy(sources / "demo/quillon_prefs", f"{home}/.quillon_prefs")
        settings = pathlib.Path(home, "QuillonSettings.app/Contents/Resources/Prefs.plist")
        settings.write_bytes(plistlib.dumps(
            plistlib.loads((sources / "resources/Prefs.plist").read_bytes()) | {"SCSI Tab": True}))
        return subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv, "walk"],
                              env=variables, timeout=90).returncode


def wait_for(what, find):
    for _ in range(300):
        if found := find():
            return found
        time.sleep(0.1)
    sys.exit(f"There is no {what}.")


def below(item, depth=99):
    """All that is to be seen below an object."""
    for child in map(item.get_child_at_index, range(item.get_child_count())):
        if child and (depth < 3 or child.get_state_set().contains(Atspi.StateType.SHOWING)):
            yield child
            yield from below(child, depth - 1) if depth > 1 else ()


def check(place, item):
    name, role, text = item.get_name(), item.get_role_name(), item.get_description()
    if role == "combo box":  # it is called by its value: what it is, only its label tells
        name = " ".join(relation.get_target(0).get_name() for relation in item.get_relation_set()
                        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY)
    if not name or role in ("", "invalid", "unknown"):
        faults.append(f"{place}: a {role} is called '{name}'. {text}")


def walk(frame):
    roles, helps = [], []
    bar = next(item for item in below(frame) if item.get_role() == Atspi.Role.PAGE_TAB_LIST)
    tabs = [item for item in below(bar) if item.get_role() == Atspi.Role.PAGE_TAB]
    for tab in tabs:
        tab.do_action(0)
        wait_for(f"page of {tab.get_name()}", lambda: tab.get_name().startswith(bar.get_name()))
        for item in list(below(frame)):
            if item.get_state_set().contains(Atspi.StateType.FOCUSABLE):
                check(tab.get_name(), item)
                helps.append(item.get_description())
                roles.append(item.get_role_name())
    for key in keys:
        if not any(re.search(f'Writes .*"{key}"', text) for text in helps):
            faults.append(f"Nothing tells that it writes {key}.")
    cells = roles.count("table cell")
    found = f"{len(roles)} objects, {len(tabs)} tabs, {len(keys)} settings, {cells} cells"
    if len(roles) < 160 or len(tabs) != 7 or len(keys) < 25 or cells != 9:
        faults.append(f"There are only {found}.")
    print(found)


if sys.argv[3:] != ["walk"]:
    sys.exit(start_again_on_a_bus_of_its_own())
import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi
program = os.environ["HOME"] + "/QuillonSettings.app/Contents/MacOS/quillon-settings"
with subprocess.Popen([program], stdout=subprocess.DEVNULL) as process:
    try:
        walk(wait_for("window", lambda: next(
            (item for item in below(Atspi.get_desktop(0), 2)
             if item.get_role() == Atspi.Role.FRAME and item.get_child_count() > 0), None)))
    finally:
        process.terminate()
sys.exit("\n".join(faults) or 0)
