"""The program as a screen reader hears it: the table before and after moves, and all dialogs.

    access.py PROGRAM TEXT-DRIVER MOVES

The moves are commands of the text driver, which plays the same deal and says which cards lie where.
"""

import sys
from contextlib import closing

from gi.repository import GLib

from play import Driver, commands_of, deal, expect, make
from reader import Bus, Reader, all_below, children, named, role_of, wait
from window import Failure, Game, run

RANKS = "Ace Two Three Four Five Six Seven Eight Nine Ten Jack Queen King".split()
SUITS = "Hearts Spades Diamonds Clubs".split()
GROUPS = ("Tableau", "Stock", "Waste", "Foundation", "Reserve")
MARKS = ("home", "stock", "waste", "goal", "res")
PILES = 13  # of Klondike
MOVES = 16  # of the whole game: with runs, cards that turn, and autoplay among them

# The menus' entries that open nothing.
COMMANDS = {"New Game", "Restart Game", "Close Game", "Recent Games", "Exit", "Undo", "Redo", "Autoplay",
            "Undo All", "Redo All", "View Toolbar", "Forward", "Back", "Replay All", "Stop"}
CONTROLS = {"push button", "check box", "combo box", "text", "slider", "spin button", "tree",
            "tree table", "table", "list", "page tab list", "label"}


def card_name(value, face):
    return "Face-down card" if face == 1 else f"{RANKS[value % 13]} of {SUITS[value % 52 // 13]}"


def wanted_table(state):
    """What is to be read, as (pile, [(card, left, top), …])."""
    piles = []
    for group, (name, mark) in enumerate(zip(GROUPS, MARKS)):
        marks = state["markers"][mark]
        marks = [marks] if group in (1, 2) else marks
        here = sum(found is not None for found in marks)
        for number, cards in enumerate(state["cells"][group]):
            shown = marks[number] if number < len(marks) else None
            if not cards and not shown:
                continue
            text = f"{name} pile {number + 1}, " if here > 1 else f"{name}, "
            text += "1 card" if len(cards) == 1 else f"{len(cards)} cards" if cards else "empty"
            if not cards and shown[0] <= 12:
                text += f", takes an {RANKS[shown[0]]}" if shown[0] in (0, 7) else f", takes a {RANKS[shown[0]]}"
            if not cards and shown[0] in (15, 16):
                text += ", no redeal" if shown[0] == 15 else ", a redeal is possible"
            piles.append((text, [(card_name(value, face), left, top) for _, value, face, left, top in cards]))
    return piles


class Mirror:
    """The table as a client knows it that reads something again only when it hears of a change."""

    def __init__(self, reader, table):
        self.reader = reader
        self.table = table
        self.piles = []
        self.names = {}
        self.cards = {}
        self.read_piles()

    def read_piles(self):
        self.piles = children(self.table)
        for pile in self.piles:
            if pile not in self.cards:
                self.names[pile] = pile.get_name()
                self.read_cards(pile)

    def read_cards(self, pile):
        self.cards[pile] = children(pile)
        for card in self.cards[pile]:
            if card not in self.names:
                self.names[card] = card.get_name()

    def follow(self):
        for kind, thing, _ in self.reader.heard(0.05):
            try:
                if kind.startswith("object:property-change") and thing in self.names:
                    self.names[thing] = thing.get_name()
                elif kind.startswith("object:children-changed") and thing == self.table:
                    self.read_piles()
                elif kind.startswith("object:children-changed") and thing in self.cards:
                    self.read_cards(thing)
            except GLib.Error:
                pass  # gone since: that is told too

    def heard(self):
        self.follow()
        return [(self.names[pile], [self.names[card] for card in self.cards[pile]]) for pile in self.piles]


def read_table(table):
    return [(pile.get_name(), [card.get_name() for card in children(pile)]) for pile in children(table)]


def check_table(reader, game, mirror, state, when):
    wanted = wanted_table(state)
    names = [(pile, [card for card, _, _ in cards]) for pile, cards in wanted]
    try:
        wait("the table as the driver has it", lambda: mirror.heard() == names)
    except Failure as failure:
        raise Failure(f"{when}: heard {mirror.heard()!r} instead of {names!r}") from failure
    if not state["running"]:
        return
    expect(f"{when}: all that is read anew", read_table(mirror.table), names)
    for pile, (_, places) in zip(children(mirror.table), wanted):
        for card, (name, left, top) in zip(children(pile), places):
            x, y, width, height = reader.place(card)
            at = game.at(left, top)
            if abs(x - at[0]) > 1 or abs(y - at[1]) > 1 or (width, height) != (71, 96):
                raise Failure(f"{when}: {name} is said to lie at {x},{y} {width}x{height} instead of {at}")


def play_and_read(reader, game, program, driver, moves):
    state = driver.do(moves[0])
    mirror = Mirror(reader, named(program, "Table"))
    check_table(reader, game, mirror, state, "at the deal")
    for command in moves[1:MOVES]:
        state = make(game, driver, state, command)
        check_table(reader, game, mirror, state, command)
    status = wait("the status texts", lambda: named(program, "Status"))
    moves_made = driver.do("tick 0")["status"][2]
    wait("the number of moves", lambda: [label.get_name() for label in children(status)][2] == moves_made)
    for keys, command in (("ctrl+z", "undo"), ("ctrl+x", "redo"), ("ctrl+c", "undoall"), ("F12", "close")):
        game.keys(keys)
        state = driver.do(command)
        check_table(reader, game, mirror, state, command)
    wait("status texts without a game", lambda: [label.get_name() for label in children(status)] == ["", "", ""])
    game.keys("F2")
    wait("a new game", lambda: len(mirror.heard()) == PILES)
    expect("the new game, followed and read anew", mirror.heard(), read_table(mirror.table))
    game.leave()


def window_in_front(reader, program):
    return next((window for window in children(program) if "active" in reader.states(window)), None)


def control_of(thing):
    """A row that has the focus stands for its list."""
    while thing and role_of(thing) in ("table cell", "list item", "page tab", "table column header"):
        thing = thing.get_parent()
    return thing


def reach(reader, game, window):
    """Goes through a window with the Tab key: every control must come."""
    wanted = [thing for thing in all_below(window)
              if role_of(thing) in CONTROLS - {"label"} and reader.is_usable(thing)]
    visited = []
    if len(wanted) < 2:
        return  # it has the focus and keeps it
    reader.heard()
    for _ in range(12):  # a page of the help has dozens of links
        game.screen.xdotool("key", "--delay", 20, *["Tab"] * 10)
        visited += [control_of(thing) for thing in reader.focused(0.4)]
        if set(wanted) <= set(visited):
            return
    lost = [thing.get_name() for thing in wanted if thing not in visited]
    raise Failure(f"Tab comes to {[each.get_name() for each in visited]} and never to {lost}")


def check_window(reader, window):
    if not window.get_name() or role_of(window) not in ("dialog", "frame", "alert"):
        raise Failure(f"a window says {role_of(window)} {window.get_name()!r}")
    for thing in all_below(window):
        role = role_of(thing)
        if role not in CONTROLS | {"filler", "chart"} or "showing" not in reader.states(thing):
            continue
        if role == "chart" and not (thing.get_name() and thing.get_description()):
            raise Failure(f"a chart says only {thing.get_name()!r}")
        if role == "combo box" and not reader.labels(thing):
            raise Failure(f"a list to choose from says only {thing.get_name()!r}")
        if reader.is_usable(thing) and not thing.get_name() and not reader.labels(thing):
            raise Failure(f"a {role} at {reader.place(thing)} has no name")


def check_pages(reader, game, window):
    check_window(reader, window)
    reach(reader, game, window)
    for tab in [thing for thing in all_below(window) if role_of(thing) == "page tab"][1:]:
        game.screen.xdotool("mousemove", *reader.middle(tab), "click", 1)
        wait(f"the tab {tab.get_name()}", lambda tab=tab: {"selected", "focused"} & reader.states(tab))
        check_window(reader, window)
        reach(reader, game, window)


def point_at(reader, game, menu, entry):
    """Opens the menu and brings the pointer to its entry, which lies still only once the menu is drawn."""
    game.screen.xdotool("mousemove", *reader.middle(menu), "click", 1)
    wait(f"the menu with {entry.get_name()}", lambda: "showing" in reader.states(entry))

    def lit():
        game.screen.xdotool("mousemove", *reader.middle(entry))
        game.screen.settle(0.1)
        return "focused" in reader.states(entry)
    wait(f"{entry.get_name()} under the pointer", lit)


def open_window(reader, game, program, thing):
    """Clicks on something that opens a window, or where the pointer is; the window, active."""
    before = window_in_front(reader, program)
    place = ("mousemove", *reader.middle(thing)) if role_of(thing) == "push button" else ()
    game.screen.xdotool(*place, "click", 1)

    def opened():
        window = window_in_front(reader, program)
        return window if window and window != before else None
    return wait(f"the window of {thing.get_name()}", opened)


def leave(reader, game, back):
    game.screen.xdotool("key", "Escape")
    wait("the window behind", lambda: "active" in reader.states(back))


def read_dialogs(reader, game, program):
    seen = []

    def main_window():
        window = window_in_front(reader, program)
        return window if window and named(window, "Table") else None
    main = wait("the main window in front", main_window)
    bar = next(thing for thing in all_below(program) if role_of(thing) == "menu bar")
    for menu in children(bar):
        for entry in [entry for popup in children(menu) for entry in children(popup)]:
            if entry.get_name() in COMMANDS or "enabled" not in reader.states(entry) or not entry.get_name():
                continue
            try:
                point_at(reader, game, menu, entry)
                window = open_window(reader, game, program, entry)
                check_pages(reader, game, window)
                if entry.get_name() == "Players":
                    check_pages(reader, game, open_window(reader, game, program, named(window, "New")))
                    leave(reader, game, window)
                leave(reader, game, main)
            except Failure as failure:
                raise Failure(f"{menu.get_name()}, {entry.get_name()}: {failure}") from failure
            seen.append(entry.get_name())
    return seen


def listen(screen, program_file, lab, moves_file):
    moves = commands_of(moves_file)
    with closing(Bus(screen)):
        reader = Reader()  # it listens before the program begins
        with Game(screen, program_file) as game, closing(Driver(lab)) as driver:
            program = wait("the program on the accessibility bus", lambda: reader.program("Tarnival"))
            splash = wait("the splash", lambda: window_in_front(reader, program))
            check_window(reader, splash)
            game.choose("Klondike")
            screen.settle()
            screen.xdotool("key", "ctrl+0")  # the actual size: the driver's places are those of the screen then
            screen.settle()
            read = read_dialogs(reader, game, program)
            print("access.py: read and closed " + ", ".join(read))
            if len(read) < 10:
                raise Failure("too few dialogs opened")
            toolbar = named(program, "Toolbar", "tool bar")
            entry = named(program, "View Toolbar")
            point_at(reader, game, entry.get_parent().get_parent(), entry)
            screen.xdotool("click", 1)
            wait("no toolbar", lambda: "showing" not in reader.states(toolbar))
            deal(game, moves[0].split()[-1])
            play_and_read(reader, game, program, driver, moves)
    return "the table was read before and after moves"


if __name__ == "__main__":
    run(listen, *sys.argv[1:])
