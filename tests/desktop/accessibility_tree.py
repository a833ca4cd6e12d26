#!/usr/bin/python3
"""Reads the settings window as a screen reader does: over D-Bus, from outside.

    accessibility_tree.py SOURCES BUNDLE
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
INTERACTIVE = ["check box", "combo box", "push button", "spin button", "table", "text"]
faults = []


def start_again_on_a_bus_of_its_own():
    with tempfile.TemporaryDirectory() as home:
        variables = {"PATH": os.environ["PATH"], "HOME": home, "XDG_RUNTIME_DIR": home,
                     "LC_ALL": "C.UTF-8", "QT_QPA_PLATFORM": "xcb",
                     "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}
        shutil.copytree(bundle, f"{home}/QuillonSettings.app")
        shutil.copy(sources / "demo/quillon_prefs", f"{home}/.quillon_prefs")
        settings = (sources / "resources/Prefs.plist").read_bytes()
        pathlib.Path(home, "QuillonSettings.app/Contents/Resources/Prefs.plist").write_bytes(
            plistlib.dumps(plistlib.loads(settings) | {"SCSI Tab": True}))
        return subprocess.run(["dbus-run-session", "--", sys.executable, *sys.argv, "walk"],
                              env=variables, timeout=90).returncode


def wait_for(what, find):
    for _ in range(300):
        if found := find():
            return found
        time.sleep(0.1)
    sys.exit(f"There is no {what}.")


def showing(item):
    """All that is to be seen below an object."""
    for index in range(item.get_child_count()):
        child = item.get_child_at_index(index)
        if child and child.get_state_set().contains(Atspi.StateType.SHOWING):
            yield child
            yield from showing(child)


def name_of(item):
    """A combo box is called by its value: what it is, only its label tells."""
    if item.get_role() != Atspi.Role.COMBO_BOX:
        return item.get_name()
    return " ".join(relation.get_target(0).get_name() for relation in item.get_relation_set()
                    if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY)


def check(place, item):
    name, role, text = name_of(item), item.get_role_name(), item.get_description()
    if not name or role in ("", "invalid", "unknown"):
        faults.append(f"{place}: a {role} is called '{name}'. {text}")
    if role in INTERACTIVE and not text:
        faults.append(f"{place}: the {role} '{name}' has no description")


def walk(frame):
    roles, helps = [], []
    bar = next(item for item in showing(frame) if item.get_role() == Atspi.Role.PAGE_TAB_LIST)
    tabs = [item for item in showing(bar) if item.get_role() == Atspi.Role.PAGE_TAB]
    for tab in tabs:
        tab.do_action(0)
        wait_for(f"page of {tab.get_name()}", lambda: tab.get_name().startswith(bar.get_name()))
        for item in list(showing(frame)):
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
reading, writing = os.pipe()
server = ["Xvfb", "-noreset", "-displayfd", str(writing)]
with subprocess.Popen(server, pass_fds=[writing]) as display:
    os.environ["DISPLAY"] = ":" + os.read(reading, 16).decode().strip()
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    program = os.environ["HOME"] + "/QuillonSettings.app/Contents/MacOS/quillon-settings"
    with subprocess.Popen([program], stdout=subprocess.DEVNULL) as process:
        try:
            desktop = Atspi.get_desktop(0)
            walk(wait_for("window", lambda: next(
                (frame for app in map(desktop.get_child_at_index, range(desktop.get_child_count()))
                 for frame in map(app.get_child_at_index, range(app.get_child_count()))
                 if frame.get_role() == Atspi.Role.FRAME and frame.get_child_count() > 0), None)))
        finally:
            process.terminate()
            process.wait()
            display.terminate()
sys.exit("\n".join(faults) or 0)
