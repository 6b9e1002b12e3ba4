# SPDX-FileCopyrightText: 2026 Kavenda team
# SPDX-License-Identifier: GPL-3.0-or-later
"""Drives the running program through the accessibility tree as a screen reader would: opens
the options, the sound tab, presses the row "اذان مدینه" by its action and saves."""
import sys
import time

import pyatspi


def wait_for(what, find, seconds=15):
    for _ in range(seconds * 10):
        found = find()
        if found is not None:
            return found
        time.sleep(0.1)
    sys.exit(f"FAIL: no {what} in the accessibility tree")


def program():
    desktop = pyatspi.Registry.getDesktop(0)
    for app in desktop:
        if app is not None and app.name == "kavenda":
            return app
    return None


def node(role, name, enabled=False):
    def find():
        app = program()
        if app is None:
            return None
        for found in pyatspi.findAllDescendants(app, lambda n: n.getRoleName() == role and n.name == name):
            states = found.getState()
            if states.contains(pyatspi.STATE_SHOWING) and (not enabled or states.contains(pyatspi.STATE_ENABLED)):
                return found
        return None
    return find


def actions(accessible):
    action = accessible.queryAction()
    return [action.getName(i) for i in range(action.nActions)]


def press(accessible, name):
    action = accessible.queryAction()
    names = actions(accessible)
    if name not in names:
        sys.exit(f"FAIL: {accessible.name!r} offers {names}, not {name!r}")
    action.doAction(names.index(name))


press(wait_for("options button", node("push button", "گزینه ها")), "Press")
press(wait_for("sound tab", node("page tab", "اذان")), "Press")
row = wait_for("row اذان مدینه", node("list item", "اذان مدینه"))
print(f"row {row.name}: role {row.getRoleName()}, actions {actions(row)}")
press(row, "Press")
time.sleep(0.5)
states = row.getState()
print(f"after the press: checked={states.contains(pyatspi.STATE_CHECKED)} "
      f"selected={states.contains(pyatspi.STATE_SELECTED)}")
press(wait_for("enabled save", node("push button", "ذخیره", enabled=True)), "Press")
