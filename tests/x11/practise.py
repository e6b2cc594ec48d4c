#!/usr/bin/python3
"""Practises as a blind player does. Usage: by_screen_reader.sh practise PROGRAM"""

import os
import re

from reader import (CARD, PATIENCE, act, cards, check, everything_is_named, find,
                    heard, is_checked, key, start, wait_for, window)

FOCUSED = "object:state-changed:focused"
SHOWN = "object:state-changed:showing"


def said(kind, pattern):
    """The name with which an event of this kind came."""
    return next((name for event, name in heard if event == kind and re.fullmatch(pattern, name)),
                None)


def wait_to_hear(kind, pattern):
    name = wait_for(pattern, lambda: said(kind, pattern))
    heard.clear()
    print(name)
    return name


def a_question_is_answered(frame):
    question = wait_to_hear(FOCUSED, r"Which cards do you hold\? .*")
    names = [card.name for card in cards(frame)]
    check(len(names) == 5 and all(CARD.match(name)[2] in question for name in names),
          f"{question} does not name {names}")
    key("1")
    first = cards(frame)[0]
    wait_to_hear("object:state-changed:checked", re.escape(names[0]) + ", held")
    act(first, "Toggle")
    wait_for("a card let go", lambda: not is_checked(first))
    heard.clear()
    key("1", "2", "3", "4", "5", "Return")  # five cards at once are seldom right
    wait_to_hear(FOCUSED, r"(Right|Wrong: this costs [\d.]+ credits)\. .*Rule to remember: .*")
    check(find(frame, "filler", r"Best: .* credits(; Yours: .* credits)?(; .*)?"),
          "the bars have no name")
    everything_is_named(frame)
    key("Return")


def main():
    settings = os.environ["XDG_CONFIG_HOME"] + "/Quillet/settings.ini"
    os.makedirs(os.path.dirname(settings))
    with open(settings, "w", encoding="utf-8") as file:
        file.write("[Practice]\npays=5/5\n")
    started = start(SHOWN)
    frame = window("Quillet Practice")
    wait_to_hear(SHOWN, r'"5/5" makes no sense for pays in .*')
    wait_for("the decisions", lambda: find(frame, "table cell", "high pair over .*"))
    heard.clear()
    key("Return", "Return")
    a_question_is_answered(frame)
    a_question_is_answered(frame)
    key("F1", "ctrl+f", "z", "z")
    wait_to_hear(SHOWN, '"zz" does not occur in the help.')
    key("Escape")
    wait_for("the window again", lambda: find(frame, "push button", "Answer"))
    key("ctrl+q")
    check(started.wait(PATIENCE) == 0, "the program ends badly")


if __name__ == "__main__":
    main()
