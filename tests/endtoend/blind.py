"""A game won without seeing the table, twice: by keys, led by what is heard, and by the actions that cards and
piles offer.

    blind.py PROGRAM TEXT-DRIVER MOVES

The moves are commands of the text driver, which plays the same deal and says which cards lie where. What the
program says is all that this player knows of the window.
"""

import re
import sys
from contextlib import closing

from gi.repository import GLib

from play import Driver, commands_of, expect, records
from reader import Bus, Reader, children, named, role_of, wait
from window import Failure, Game, run, wait_for

ARROWS = {"Left": (-1, 0), "Right": (1, 0), "Up": (0, -1), "Down": (0, 1)}
MARKS = ("home", "stock", "waste", "goal", "res")
GROUPS = ("tableau", "stock", "waste", "foundation", "reserve")


def where(state, card):
    """(group, pile, card from the bottom), counted from 0."""
    for group, piles in enumerate(state["cells"]):
        for pile, cards in enumerate(piles):
            for at, (picture, *_) in enumerate(cards):
                if picture == card:
                    return group, pile, at
    raise Failure(f"card {card} is not on the table")


def takers(sentence):
    """The piles of "Six of Clubs lifted, tableau piles 2 and 4 and foundation pile 1 take it"."""
    found = re.findall(rf"({'|'.join(GROUPS)})(?: piles? ((?:\d+(?:, | and )?)+))?", sentence.split(", ", 1)[1])
    return [(GROUPS.index(group), int(number) - 1) for group, numbers in found
            for number in re.findall(r"\d+", numbers or "1")]


def place_in(text):
    """(group, pile, card from the bottom) of "tableau pile 3, card 4 of 6"; without a card its number is None."""
    place = re.search(rf"({'|'.join(GROUPS)})(?: piles? (\d+))?(?:, card (\d+) of)?", text)
    if not place:
        raise Failure(f"no place: {text!r}")
    group, pile, card = place.groups()
    return GROUPS.index(group), int(pile or 1) - 1, int(card) - 1 if card else None


def corner(state, group, pile, card=None):
    """Where a card, the top card of a pile, or its mark lies."""
    cards = state["cells"][group][pile]
    if cards:
        return cards[len(cards) - 1 if card is None else min(card, len(cards) - 1)][3:]
    mark = state["markers"][MARKS[group]]
    return (mark if group in (1, 2) else mark[pile])[1:]


class Player:
    """Hears where the frame is and what happens."""

    def __init__(self, reader, game, program):
        self.reader, self.game, self.program = reader, game, program
        self.place = ""
        self.said = []

    def listen(self):
        for kind, thing, on in self.reader.heard():
            try:
                # Newer versions of Qt announce a sentence, older ones show a notification.
                spoken = kind.startswith(("object:announcement", "object:state-changed:showing"))
                if spoken and role_of(thing) == "notification":
                    self.said.append(thing.get_name())
                elif kind.startswith("object:state-changed:focused") and on:
                    self.place = f"{thing.get_name()}, {thing.get_description()}".lower()
            except GLib.Error:
                pass  # of a window that has closed

    def told(self, pattern):
        """Waits for a sentence; what was said before it is forgotten."""
        def found():
            self.listen()
            return next((said for said in self.said if re.search(pattern, said)), None)
        try:
            sentence = wait(f"a sentence like {pattern!r}", found, 5)
        except Failure as failure:
            raise Failure(f"{failure}; heard {self.said!r}, the frame at {self.place!r}") from failure
        self.said.clear()
        return sentence

    def press(self, key, stays=False):
        """Presses a key that moves the frame; one that may also leave it where it is gets less time."""
        self.listen()
        before, self.place = self.place, ""
        self.game.screen.xdotool("key", key)

        def moved():
            self.listen()
            return self.place
        try:
            wait(f"another place after {key}", moved, 0.4 if stays else 5)
        except Failure as failure:
            if not stays:
                raise Failure(f"{failure}; the frame was at {before!r}") from failure
            self.place = before

    def taker(self, state, target):
        """Of the piles that are said to take the lifted card the one at that place."""
        def away(pile):
            x, y = corner(state, *pile)
            return abs(x - target[0]) + abs(y - target[1])
        return min(takers(self.told("lifted, (?!no pile)")), key=away)

    def at(self):
        return place_in(self.place)

    def go(self, state, group, pile, card=None):
        """Leads the frame to a pile, or to a card of it, by arrows that point to where it is seen."""
        for _ in GROUPS:
            if self.at()[0] == group:
                break
            self.press("Tab")
        tried = set()
        for _ in range(200):
            here = self.at()
            if here[:2] == (group, pile) and card in (None, here[2]):
                return
            (x, y), (to_x, to_y) = corner(state, *here), corner(state, group, pile, card)
            # Past the piles first: a long pile lies between the ends of its neighbours.
            keys = sorted(ARROWS, key=lambda key: -4 * ARROWS[key][0] * (to_x - x) - ARROWS[key][1] * (to_y - y))
            key = next((key for key in keys if (here, key) not in tried), None)
            if not key:
                break
            tried.add((here, key))
            self.press(key, stays=True)
        raise Failure(f"arrows do not lead to {GROUPS[group]} pile {pile + 1}, card {card}; at {self.place!r}")


class ByKeys(Player):
    def drag(self, state, source, target):
        self.go(state, *source)
        self.game.screen.xdotool("key", "space")
        taker = self.taker(state, target)
        if taker[0] == 3:
            self.game.screen.xdotool("key", "f")
        else:
            self.go(state, *taker)
            self.game.screen.xdotool("key", "Return")

    def stock(self, state, _):
        self.go(state, 1, 0)
        self.game.screen.xdotool("key", "space")


class ByActions(Player):
    def pile(self, group, number):
        name = re.compile(rf"{GROUPS[group]}( pile {number + 1})?,", re.IGNORECASE)
        table = named(self.program, "Table")
        return next((pile for pile in children(table) if name.match(pile.get_name())), None)

    def do(self, action, group, number, card=None):
        """Has a pile or a card do what it offers; it may still be on its way there from the last move."""
        def offering():
            thing = self.pile(group, number)
            if thing and card is not None:
                thing = thing.get_child_at_index(card)
            if not thing:
                return None
            names = self.reader.actions(thing)
            return action in names and (thing, names.index(action))
        thing, index = wait(f"{GROUPS[group]} {number + 1}, card {card}, to offer {action}", offering, 5)
        thing.do_action(index)

    def drag(self, state, source, target):
        self.do("Lift", *source)
        self.do("Drop Here", *self.taker(state, target))

    def stock(self, _, action):
        self.do(action, 1, 0)


def win(player, driver, commands):
    state = driver.do(commands[0])
    for command in commands[1:]:
        word, *rest = command.split()
        before, state = state, driver.do(command)
        if word == "drag":
            card, x, y = map(int, rest)
            player.drag(before, where(before, card), (x, y))
        else:
            player.stock(before, "Deal" if word == "press" else "Redeal")
        player.told(" (to|up|stock|won)\\b" if state["running"] else "game is won")


def play(screen, program_file, lab, moves_file):
    commands = commands_of(moves_file)
    name, number = re.match(r'start "(.*)" (\d+)', commands[0]).groups()
    with closing(Bus(screen)):
        reader = Reader()
        with Game(screen, program_file) as game:
            program = wait("the program on the accessibility bus", lambda: reader.program("Tarnival"))
            game.choose(name)
            for kind in (ByKeys, ByActions):
                screen.settle()
                game.deal(number)
                player = kind(reader, game, program)
                player.told("dealt")
                if kind is ByKeys:
                    player.press("Home")  # shows the frame
                with closing(Driver(lab)) as driver:
                    win(player, driver, commands)
                wait_for("the end-of-game dialog", lambda: screen.in_front("Congrats"))
                game.keys("Escape")
            game.leave()
        expect("the records", [(row[1], row[-1]) for row in records()][1:],
               [(name, "1"), (name, "1")])
    return f"{name} was won by keys and by actions"


if __name__ == "__main__":
    run(play, *sys.argv[1:])
