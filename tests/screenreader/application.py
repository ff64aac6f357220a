"""The gallery as a client of the desktop's accessibility bus finds it."""

import os
import time
from pathlib import Path

from gi.repository import GLib

from session import TimedOut, wait_until

# The bus is found by the environment when pyatspi is imported, so that is done in a session only.
pyatspi = None


def connect(session):
    """Has this process be a client of the session's accessibility bus."""
    global pyatspi
    os.environ.update(session.environment)
    import pyatspi as module
    pyatspi = module


class Element:
    """One thing on the screen. It is queried again each time."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def accessible(self):
        """Every query goes to the application: a cache would hide what it forgets to tell."""
        self._accessible.clearCache()
        return self._accessible

    def __eq__(self, other):
        return isinstance(other, Element) and self._accessible == other._accessible

    def __hash__(self):
        return hash(self._accessible)

    def __str__(self):
        return f"{self.role} '{self.name}'"

    @property
    def name(self):
        return self.accessible.name

    @property
    def role(self):
        return self.accessible.getRoleName()

    @property
    def states(self):
        return {pyatspi.stateToString(state) for state in self.accessible.getState().getStates()}

    @property
    def place(self):
        box = self.accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height

    @property
    def children(self):
        return [Element(child) for child in self.accessible if child is not None]

    @property
    def parent(self):
        return Element(self.accessible.parent)

    @property
    def text(self):
        """Empty for what has no text interface."""
        try:
            return self.accessible.queryText().getText(0, -1)
        except NotImplementedError:
            return ""

    def write(self, text):
        self.accessible.queryEditableText().setTextContents(text)

    @property
    def value(self):
        return self.accessible.queryValue().currentValue

    @value.setter
    def value(self, value):
        self.accessible.queryValue().currentValue = value

    @property
    def bounds(self):
        """The least value, the greatest, and the step between two."""
        value = self.accessible.queryValue()
        return value.minimumValue, value.maximumValue, value.minimumIncrement

    @property
    def actions(self):
        actions = self.accessible.queryAction()
        return [actions.getName(index) for index in range(actions.nActions)]

    def act(self, name):
        actions = self.accessible.queryAction()
        index = [actions.getName(index) for index in range(actions.nActions)].index(name)
        actions.doAction(index)

    def grab_focus(self):
        return self.accessible.queryComponent().grabFocus()

    def tree(self):
        """It and all below it, in reading order."""
        yield self
        for child in self.children:
            yield from child.tree()


class Event:
    def __init__(self, event):
        self.type = str(event.type).rstrip(":")
        self.source = Element(event.source)
        self.detail = event.detail1
        try:
            self.role, self.name = self.source.role, self.source.name
        except GLib.GError:
            self.role, self.name = "", ""  # It is gone already.

    def __str__(self):
        return f"{self.type} {self.detail} of {self.role} '{self.name}'"


class Application:
    """A running gallery and the events that it sends."""

    # Qt sends what somebody listens to, each kind by its full name. It sends changes of children in
    # a form that the bus's clients drop, with a warning.
    kinds = (*("object:state-changed:" + state for state in ("focused", "checked", "expanded", "showing", "selected")),
             *("object:property-change:accessible-" + part for part in ("name", "value", "description")),
             "object:text-changed:insert", "object:text-changed:delete")

    def __init__(self, session, gallery, *options):
        self.session = session
        self.events = []
        self._loop = GLib.MainContext.default()
        self._listen = lambda event: self._take(event)
        for kind in self.kinds:
            pyatspi.Registry.registerEventListener(self._listen, kind)
        self.program = session.start("gallery", [str(Path(gallery).resolve()), *options])
        self.window = wait_until(self._find, "the gallery on the accessibility bus")
        self.settle()

    def end(self):
        for kind in self.kinds:
            pyatspi.Registry.deregisterEventListener(self._listen, kind)
        self.session.stop(self.program)

    def _find(self):
        for application in pyatspi.Registry.getDesktop(0):
            if application is not None and application.get_process_id() == self.program.pid and len(application) > 0:
                return Element(application[0])
        return None

    def _take(self, event):
        if event.host_application is not None and event.host_application.get_process_id() == self.program.pid:
            self.events.append(Event(event))

    def settle(self):
        """Waits until the gallery is idle, and returns the events since the last call."""
        self.session.wait_until_idle()
        return self.take_events()

    def take_events(self):
        while self._loop.pending():
            self._loop.iteration(False)
        events, self.events = self.events, []
        return events

    def wait_for(self, is_wanted, what, seconds=10):
        """Waits for an event; earlier ones stay in the list, too."""
        end = time.monotonic() + seconds
        while True:
            while self._loop.pending():
                self._loop.iteration(False)
            if any(is_wanted(event) for event in self.events):
                return
            if time.monotonic() > end:
                raise TimedOut(f"no {what} within {seconds} s, but: " + "; ".join(map(str, self.events)))
            time.sleep(0.002)

    def dialog(self):
        """The window that is open besides the gallery's; None without one."""
        windows = [Element(window) for window in self.window.accessible.parent if window is not None]
        return next((window for window in windows if window != self.window), None)

    def elements(self):
        return list(self.window.tree())[1:]

    def find(self, role, name, window=None):
        """The first element with that role and a name that begins so."""
        elements = list((window or self.window).tree())
        for element in elements:
            if element.role == role and element.name.startswith(name):
                return element
        raise AssertionError(f"no {role} '{name}' among: " + ", ".join(map(str, elements)))
