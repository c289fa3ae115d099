"""What a screen reader does: it asks the program over the accessibility bus what stands on the screen, and
listens to what changes.
"""

import os
import subprocess
import time

from gi.repository import GLib

from window import Failure, wait_for


def wait(what, condition, seconds=20):
    """As wait_for, where objects may go while they are asked: then all is asked again."""
    def answer():
        try:
            return condition()
        except GLib.Error:
            return None
    return wait_for(what, answer, seconds)


class Bus:
    """A session bus of its own, on which the accessibility bus starts by itself; all end with the test."""

    def __init__(self, screen):
        self.daemon = subprocess.Popen(
            ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1"], text=True,
            env=dict(screen.environment, GSETTINGS_BACKEND="memory"), stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL)
        self.address = self.daemon.stdout.readline().strip()
        if not self.address:
            raise Failure("the session bus did not start")
        screen.environment["DBUS_SESSION_BUS_ADDRESS"] = self.address
        screen.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"] = "1"
        os.environ.update(screen.environment)  # this process is a client too

    def started(self):
        """The processes that the bus started, which are no children of this one."""
        found = []
        for process in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{process}/environ", "rb") as file:
                    if f"={self.address}\0".encode() in file.read() and int(process) != os.getpid():
                        found.append(process)
            except OSError:
                pass  # ended in the meantime
        return found

    def close(self):
        self.daemon.terminate()
        self.daemon.wait()
        wait_for("the end of what the session bus started", lambda: not self.started())


class Reader:
    """The client. Every object it hands out is an Atspi.Accessible."""

    def __init__(self):
        # Only now, when the bus is there.
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self.atspi = Atspi
        self.context = GLib.MainContext.default()
        self.events = []
        # An event is gone when the call ends: what matters of it is kept.
        self.listener = Atspi.EventListener.new(
            lambda event: self.events.append((event.type, event.source, event.detail1)))
        for kind in ("object:children-changed", "object:property-change:accessible-name",
                     "object:state-changed:focused", "object:state-changed:showing", "object:announcement"):
            self.listener.register(kind)

    def program(self, name):
        return next((child for child in children(self.atspi.get_desktop(0)) if child.get_name() == name), None)

    def states(self, thing):
        return {state.value_nick for state in thing.get_state_set().get_states()}

    def is_usable(self, thing):
        return {"showing", "enabled", "focusable"} <= self.states(thing)

    def place(self, thing):
        extents = thing.get_extents(self.atspi.CoordType.SCREEN)
        return extents.x, extents.y, extents.width, extents.height

    def middle(self, thing):
        x, y, width, height = self.place(thing)
        return x + width // 2, y + height // 2

    def actions(self, thing):
        return [thing.get_action_name(i) for i in range(thing.get_n_actions())]

    def labels(self, thing):
        """The names of what labels a control."""
        labelled = self.atspi.RelationType.LABELLED_BY
        return [relation.get_target(i).get_name() for relation in thing.get_relation_set()
                if relation.get_relation_type() == labelled for i in range(relation.get_n_targets())]

    def heard(self, seconds=0.0):
        """What was told since the last call, at least for so long: (kind, object, detail)."""
        end = time.monotonic() + seconds
        while self.context.iteration(False) or time.monotonic() < end:
            if not self.context.pending():
                time.sleep(0.01)
        told, self.events[:] = list(self.events), []
        return told

    def focused(self, seconds):
        """The objects that the keyboard comes to in that time."""
        return [thing for kind, thing, on in self.heard(seconds)
                if kind.startswith("object:state-changed:focused") and on]


def role_of(thing):
    """The role by its older name: what newer libraries call a button was a push button before."""
    role = thing.get_role_name()
    return "push button" if role == "button" else role


def children(thing):
    found = (thing.get_child_at_index(i) for i in range(thing.get_child_count()))
    return [child for child in found if child]


def all_below(thing, deepest=("tree", "tree table", "table", "list", "combo box")):
    """The thing and all that it holds, without the rows of lists."""
    yield thing
    if role_of(thing) not in deepest:
        for child in children(thing):
            yield from all_below(child, deepest)


def named(thing, name, role=None):
    """The first object of that name below another; None where there is none."""
    return next((found for found in all_below(thing)
                 if found.get_name() == name and role in (None, role_of(found))), None)
