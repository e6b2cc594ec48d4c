"""A program as a blind player uses it: by what the accessibility bus reports, through the actions
that it offers, and by keys."""

import os
import re
import subprocess
import sys
import time

import pyatspi
from gi.repository import GLib

PATIENCE = 60  # seconds: cards fly slowly on a busy machine
TRIES = 120  # at least, on a machine that was suspended in between
CARD = re.compile(r"Card (\d): (Ace|Two|Three|Four|Five|Six|Seven|Eight|Nine|Ten|Jack|Queen|King) "
                  r"of (clubs|diamonds|hearts|spades)(, held)?$")
EVENTS = ("object:state-changed:checked", "object:state-changed:focused",
          "object:property-change:accessible-name", "window:activate")
heard = []  # (kind, name) of every event of the program, while no card flies
sources = []  # of all of them


def listen(event):
    sources.append(event.source)
    try:
        heard.append((event.type, event.source.name))
    except GLib.Error:
        pass  # the widget has gone


def turn():
    while GLib.MainContext.default().iteration(False):
        pass


def fail(what):
    """Ends the play; the trace shows the lines that led here."""
    subprocess.run("xdotool search --onlyvisible --name . getwindowname %@ >&2;"
                   f"ps -L -o pid,tid,stat,wchan:24,time,comm --ppid {os.getpid()} >&2",
                   shell=True, check=False)
    raise AssertionError(f"{what}; last heard {heard[-12:]}")


def wait_for(what, question):
    deadline = time.monotonic() + PATIENCE
    tries = 0
    while tries < TRIES or time.monotonic() < deadline:
        tries += 1
        turn()
        try:
            answer = question()
        except GLib.Error:
            answer = None
        if answer:
            return answer
        time.sleep(0.05)
    return fail(f"waited in vain for {what}")


def check(condition, what):
    if not condition:
        fail(what)


def descendants(node):
    for child in node:
        if child is not None:
            yield child
            yield from descendants(child)


def start(*more_events):
    """The program that the command line names."""
    pyatspi.Registry.registerEventListener(listen, *EVENTS, *more_events)
    started = subprocess.Popen([sys.argv[1]], stderr=subprocess.DEVNULL)
    wait_for("the program", program)
    return started


def program():
    return next((app for app in pyatspi.Registry.getDesktop(0) if app.name.startswith("Quillet")),
                None)


def window(title):
    return wait_for(title, lambda: next((w for w in program() if w.name == title), None))


def role_of(node):
    """Its role; what was a push button once is called a button by later versions of the bus."""
    return re.sub("^button$", "push button", node.getRoleName())


def find(root, role, name):
    """The one with this role and a name that matches."""
    return next((node for node in descendants(root)
                 if role_of(node) == role and re.fullmatch(name, node.name)), None)


def act(node, action):
    actions = node.queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    check(action in names, f"{node.name} offers {names}, not {action}")
    actions.doAction(names.index(action))


def cards(root):
    return [node for node in descendants(root)
            if role_of(node) == "check box" and CARD.match(node.name)]


def key(*names):
    subprocess.run(["xdotool", "key", "--delay", "60", *names], check=True)


def is_checked(node):
    return node.getState().contains(pyatspi.STATE_CHECKED)


def everything_is_named(root):
    for node in descendants(root):
        state = node.getState()
        if state.contains(pyatspi.STATE_FOCUSABLE) and state.contains(pyatspi.STATE_SHOWING):
            check(node.name or role_of(node) in ("filler", "panel", "page tab list", "document web",
                                                      "text", "scroll bar", "tool bar", "menu bar"),
                  f"a {role_of(node)} of {root.name} has no name")
        check(role_of(node) != "push button" or node.name,
              f"{root.name} has a button without a name")
