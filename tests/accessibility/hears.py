#!/usr/bin/python3 -W ignore
"""Listens to the print dialog on a real accessibility bus: at-spi-run hears.py PROGRAM PPD

Plays a dialog script in the program and checks what a screen reader is told: roles, names, labels by relation, items,
changes of a value, an alert's texts. The script waits for no one, so the program is asked while an alert is open.
"""
import os
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

TIMEOUT = 40  # seconds for everything
failures = []
heard = []


def check(what, *why):
    if not what:
        failures.append(" ".join(str(one) for one in why))


def note(event):
    try:
        heard.append((event.type, event.source.get_role_name(), event.source.get_name(), str(event.any_data)))
    except GLib.Error:
        pass  # gone already


def pump(seconds):
    context = GLib.MainContext.default()
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        if not context.iteration(False):
            time.sleep(0.01)


def children(node):
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child is not None:
            yield child


def walk(node, depth=0):
    yield node
    if depth < 30:
        for child in children(node):
            yield from walk(child, depth + 1)


def application():
    desktop = Atspi.get_desktop(0)
    return next((one for one in children(desktop) if one.get_name() == "kesta-print"), None)


def wait_for(find):
    end = time.monotonic() + TIMEOUT
    while time.monotonic() < end:
        pump(0.1)
        try:
            found = find()
        except GLib.Error:
            found = None
        if found:
            return found
    return None


def labels(node):
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            for i in range(relation.get_n_targets()):
                yield relation.get_target(i).get_name()


def window(role):
    found = application()
    return found and next((one for one in children(found) if one.get_role_name() == role), None)


def named(root, role, label):
    return next((one for one in walk(root) if one.get_role_name() == role and label in labels(one)), None)


def check_dialog(dialog):
    check("Print" in dialog.get_name(), "the window is called", dialog.get_name())
    job_type = named(dialog, "combo box", "Job type")
    check(job_type, "no combo box is labelled by Job type")
    if not job_type:
        return
    check(job_type.get_name() == "Normal Print", "its name is its value:", job_type.get_name())
    items = [one.get_name() for one in children(next(children(job_type)))]
    check("Secure Print" in items and "Normal Print" in items, "items:", items)
    menu = next((one for one in walk(dialog) if one.get_role_name() == "push button menu"
                 or one.get_name() == "Choose Paper"), None)
    check(menu, "no menu button says what is written on it")
    # A pick through the bus, as by a screen reader: the value changes and is told.
    del heard[:]
    for one in children(next(children(job_type))):
        if one.get_name() == "Sample Set":
            check(one.get_action_iface() and one.get_action_iface().do_action(0), "Sample Set can't be chosen")
    check(wait_for(lambda: job_type.get_name() == "Sample Set"), "the value is", job_type.get_name())
    pump(0.3)
    check(any(kind.startswith("object:property-change:accessible-name") and "combo box" == role and name == "Sample Set"
              for kind, role, name, _ in heard), "the change was not told:", heard)


def check_alert(dialog):
    pages = named(dialog, "combo box", "Pages")
    check(pages, "no field is labelled by Pages")
    text = next((one for one in walk(pages) if one.get_editable_text_iface()), None)
    check(text, "Pages can't be typed into")
    text.get_editable_text_iface().set_text_contents("7-3")
    button = next(one for one in walk(dialog) if one.get_role_name() == "push button" and one.get_name() == "Save")
    button.get_action_iface().do_action(0)
    alert = wait_for(lambda: window("alert"))
    check(alert, "no alert")
    if not alert:
        return
    check("backwards" in alert.get_name(), "the alert is called", alert.get_name())
    texts = [one.get_name() for one in walk(alert) if one.get_role_name() == "label"]
    check(any("3-7" in one or "smaller" in one for one in texts), "the alert says", texts)
    ok = next(one for one in walk(alert) if one.get_role_name() == "push button")
    ok.get_action_iface().do_action(0)
    check(wait_for(lambda: "backwards" in pages.get_description()), "the field says", pages.get_description())


def main():
    program, ppd = sys.argv[1:3]
    for kind in ("object:property-change:accessible-name", "object:selection-changed"):
        Atspi.EventListener.new(note).register(kind)
    folder = tempfile.mkdtemp()
    with subprocess.Popen([program, "--ppd", ppd, "--save-settings", os.path.join(folder, "saved.plist")]) as dialog:
        try:
            main_window = wait_for(lambda: window("dialog"))
            check(main_window, "no dialog on the bus")
            if main_window:
                check(wait_for(lambda: named(main_window, "combo box", "Job type")), "no pane")
                check_dialog(main_window)
                check_alert(main_window)
        finally:
            dialog.terminate()
    for failure in failures:
        print("not so:", failure)
    print("heard" if not failures else "%d faults" % len(failures))
    return 1 if failures else 0


sys.exit(main())
