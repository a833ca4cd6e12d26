#!/usr/bin/python3
"""Reads the settings window as a screen reader does: over D-Bus, from outside.

    accessibility_tree.py PROGRAM     (on a display and a bus)
"""
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


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


def window():
    programs = below(Atspi.get_desktop(0), 2)
    return next((item for item in programs if "Quillon Settings" in item.get_name()), None)


def spoken_name(item):
    if item.get_role() != Atspi.Role.COMBO_BOX:
        return item.get_name()
    # It is called by its value: what it is, only its label tells.
    return " ".join(relation.get_target(0).get_name() for relation in item.get_relation_set()
                    if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY)


def faults_of(frame):
    bar = next(item for item in below(frame) if item.get_role() == Atspi.Role.PAGE_TAB_LIST)
    tabs = [item for item in below(bar) if item.get_role() == Atspi.Role.PAGE_TAB]
    heard = 0
    for tab in tabs:
        tab.do_action(0)
        wait_for(f"page of {tab.get_name()}", lambda: tab.get_name().startswith(bar.get_name()))
        for item in below(frame):
            if item.get_state_set().contains(Atspi.StateType.FOCUSABLE):
                heard += 1
                if not spoken_name(item) or item.get_role_name() in ("", "invalid", "unknown"):
                    yield f"{tab.get_name()}: {item.get_role_name()} '{item.get_description()}'"
    if len(tabs) != 6 or heard < 100:
        yield f"There are only {heard} objects on {len(tabs)} tabs."


with subprocess.Popen(sys.argv[1], stdout=subprocess.DEVNULL) as process:
    try:
        faults = list(faults_of(wait_for("window", window)))
    finally:
        process.terminate()
sys.exit("\n".join(faults) or 0)
