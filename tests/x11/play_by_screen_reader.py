#!/usr/bin/python3
"""Plays the real program as a blind player does: by what the accessibility bus tells, through the
actions that it offers, and by keys. Usage: play_by_screen_reader.sh PROGRAM"""

import itertools
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


def program():
    return next((app for app in pyatspi.Registry.getDesktop(0) if app.name == "Quillet"), None)


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


def key(*names):
    subprocess.run(["xdotool", "key", "--delay", "60", *names], check=True)


def is_checked(node):
    return node.getState().contains(pyatspi.STATE_CHECKED)


class Table:
    def __init__(self):
        self.frame = window("Jacks or Better Quillet")
        wait_for("five cards", lambda: len(self.cards()) == 5)
        self.deck = find(self.frame, "push button", "Deck")
        self.chart = find(self.frame, "filler", "Strategy chart")

    def cards(self):
        return [node for node in descendants(self.frame)
                if role_of(node) == "check box" and CARD.match(node.name)]

    def names(self):
        return [card.name for card in self.cards()]

    # While a card flies the program answers nobody.
    def counter(self, caption):
        label = find(self.chart, "label", caption + r" -?\d+")
        value = re.search(r"-?\d+$", label.name if label else "")
        return value and int(value[0])

    def hold_only(self, slots):
        for slot, card in enumerate(self.cards()):
            if is_checked(card) != (slot in slots):
                act(card, "Toggle")
                wait_for("the hold", lambda: is_checked(card) == (slot in slots))

    def draw(self, slots):
        """Whether the coach lets the hold pass."""
        before = self.names()
        self.hold_only(slots)
        act(self.deck, "Press")
        wait_for("the coach", lambda: not any(map(is_checked, self.cards())))
        turn()
        return self.chart.description.split(", ")[-1] != "missed best play" or self.names() != before


def everything_is_named(root):
    for node in descendants(root):
        state = node.getState()
        if state.contains(pyatspi.STATE_FOCUSABLE) and state.contains(pyatspi.STATE_SHOWING):
            check(node.name or role_of(node) in ("filler", "panel", "page tab list", "document web",
                                                      "text", "scroll bar", "tool bar", "menu bar"),
                  f"a {role_of(node)} of {root.name} has no name")
        check(role_of(node) != "push button" or node.name,
              f"{root.name} has a button without a name")


def holding_is_told(table):
    first = table.cards()[0]
    act(first, "Toggle")
    wait_for("a held card", lambda: is_checked(first) and first.name.endswith(", held"))
    wait_for("the news of it", lambda: ("object:state-changed:checked", first.name) in heard)
    key("1")
    wait_for("a card let go by its key", lambda: not is_checked(first))


def a_hand_is_played(table):
    check(table.counter("Hands") == 1 and table.counter("Total") == -5, "the counters are wrong")
    check(table.chart.description.endswith(", best play"), "the best play is not told")
    for caption in ("Hands", "Won", "Total"):
        told = [node for node in descendants(table.chart) if node.name.startswith(caption)
                and node.getState().contains(pyatspi.STATE_VISIBLE)]
        check(len(told) == 1, f"{caption} is read {len(told)} times")
        check(caption != "Won" or told[0] not in sources, "an unchanged counter is told again")
    check(find(table.frame, "link", "Status bar, .*"), "the status bar is no link")
    holding_is_told(table)

    dealt = table.names()
    refused = 0
    holds = itertools.chain.from_iterable(
        itertools.combinations(range(5), size) for size in (5, 4, 3, 2, 1, 0))
    while not table.draw(next(holds)):
        refused += 1
        lit = table.chart.description
        check(find(table.chart, "label", re.escape(lit)), "the refused row is not told")
        check(table.names() == dealt, "a refused hold changes no card")
    if refused:
        check(any(kind.startswith("object:property-change:accessible-name")
                  and name.endswith("missed best play") for kind, name in heard),
              "nobody was told of the refusal")
    key("F1")
    asked = len(sources)
    wait_for("the next hand", lambda: table.counter("Hands") == 2 and len(table.cards()) == 5)
    wait_for("its best play", lambda: table.chart.description.endswith(", best play"))
    hands = find(table.chart, "label", "Hands 2")
    check(sources.index(window("Quillet Help"), asked) < sources.index(hands, asked),
          "a key is heard only after the pause")
    key("Escape")
    wait_for("the help to close", lambda: all(w.name != "Quillet Help" for w in program()))


def tab_reaches(table):
    for wanted in ["Deck"] + table.names():
        key("Tab")
        wait_for("the focus on " + wanted,
                 lambda: ("object:state-changed:focused", wanted) in heard)


def dialogs_are_named(table):
    for keys, title in ((("alt+g", "Down", "Return"), "Preferences"),
                        (("alt+h", "Up", "Return"), "About Quillet"), (("F1",), "Quillet Help")):
        key(*keys)
        shown = window(title)
        wait_for("its controls", lambda: sum(1 for _ in descendants(shown)) > 4)
        everything_is_named(shown)
        key("Escape")
        wait_for(title + " to close", lambda: all(w.name != title for w in program()))
    everything_is_named(table.frame)


def main():
    pyatspi.Registry.registerEventListener(
        listen, "object:state-changed:checked", "object:state-changed:focused",
        "object:property-change:accessible-name", "window:activate")
    game = subprocess.Popen([sys.argv[1]], stderr=subprocess.DEVNULL)
    wait_for("the program", program)
    table = Table()
    a_hand_is_played(table)
    tab_reaches(table)
    dialogs_are_named(table)
    key("alt+g", "x")
    farewell = window("More Texas Hold'em Resources..")
    everything_is_named(farewell)
    act(find(farewell, "push button", "Exit"), "Press")
    check(game.wait(PATIENCE) == 0, "the program ends badly")


if __name__ == "__main__":
    main()
