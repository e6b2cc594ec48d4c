#!/usr/bin/python3
"""Plays the trainer as a blind player does. Usage: by_screen_reader.sh play PROGRAM"""

import itertools
import re

import pyatspi

from reader import (PATIENCE, act, cards, check, descendants, everything_is_named, find, heard,
                    is_checked, key, program, role_of, sources, start, turn, wait_for, window)


class Table:
    def __init__(self):
        self.frame = window("Jacks or Better Quillet")
        wait_for("five cards", lambda: len(self.cards()) == 5)
        self.deck = find(self.frame, "push button", "Deck")
        self.chart = find(self.frame, "filler", "Strategy chart")

    def cards(self):
        return cards(self.frame)

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
    game = start()
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
