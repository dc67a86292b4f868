#!/usr/bin/env python3
"""read_window.py FOLDER: what a screen reader is told of the running window, by way of AT-SPI.

Writes FOLDER/tree.txt, a line for each control: role, name, description, states (S shown, E enabled, C checked, F with
the focus), and the text where it has one. Then chooses connectors, as a screen reader does, and a bolt that they do not
fit, and writes what the marks announce meanwhile to FOLDER/events.txt. Run by read_window.sh.
"""
import pathlib
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

STATES = {"S": Atspi.StateType.SHOWING, "E": Atspi.StateType.ENABLED, "C": Atspi.StateType.CHECKED,
          "F": Atspi.StateType.FOCUSED}


def program():
    """The running program, waited for up to 20 s."""
    for _ in range(100):
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            found = desktop.get_child_at_index(i)
            if found and found.get_name() == "Tarn-Vik":
                return found
        time.sleep(0.2)
    sys.exit("read_window.py: the program does not show itself to screen readers")


def controls(control, depth=0):
    """The control and all below it, with their depth."""
    yield depth, control
    for i in range(control.get_child_count()):
        child = control.get_child_at_index(i)
        if child:
            yield from controls(child, depth + 1)


def line_of(depth, control):
    states = "".join(letter for letter, state in STATES.items() if control.get_state_set().contains(state))
    words = [control.get_role_name(), repr(control.get_name()), repr(control.get_description()), states]
    if "Text" in control.get_interfaces():
        words.append(repr(Atspi.Text.get_text(control, 0, -1)))
    return "  " * depth + " | ".join(words) + "\n"


def listen(seconds):
    """Lets what is announced come in."""
    loop = GLib.MainLoop()
    GLib.timeout_add(int(seconds * 1000), loop.quit)
    loop.run()


def main():
    folder = pathlib.Path(sys.argv[1])
    tree = list(controls(program()))
    with open(folder / "tree.txt", "w", encoding="utf-8") as out:
        out.writelines(line_of(depth, control) for depth, control in tree)

    events = []

    def note(event):
        source = event.source
        if source and source.get_role() == Atspi.Role.ALERT:
            events.append(f"{event.type} {event.detail1} {source.get_name()!r}\n")

    listener = Atspi.EventListener.new(note)
    for kind in ("object:property-change:accessible-name", "object:state-changed:showing", "object:announcement"):
        listener.register(kind)
    connectors = [control for _, control in tree if control.get_role() == Atspi.Role.RADIO_BUTTON][1]
    bolts = next(control for _, control in tree if control.get_role() == Atspi.Role.COMBO_BOX)
    events.append(f"press {connectors.get_name()!r}\n")
    Atspi.Action.do_action(connectors, 0)
    listen(1.0)
    events.append(f"the next row of {bolts.get_name()!r}, which the connector does not fit\n")
    Atspi.Component.grab_focus(bolts)
    listen(0.5)
    subprocess.run(["xdotool", "key", "Down"], check=True)
    listen(1.0)
    (folder / "events.txt").write_text("".join(events), encoding="utf-8")


if __name__ == "__main__":
    main()
