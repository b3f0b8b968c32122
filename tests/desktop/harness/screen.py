"""The screen as assistive technology reads it: a tree of nodes with names, roles, places, texts.

Read straight from the accessibility bus, without the usual library, which remembers what it has
read: a test must see what is there now."""
import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

from harness.waiting import Gone  # noqa: E402

_ATSPI = "org.a11y.atspi."
_ROOT = "/org/a11y/atspi/accessible/root"
_PATIENCE = 10000  # milliseconds for one answer

# Bits of the state set.
ACTIVE, CHECKED, ENABLED, FOCUSED, SHOWING, EDITABLE = 1, 4, 8, 12, 25, 7
MODAL, READ_ONLY = 16, 43


class Eyes:
    def __init__(self, machine):
        flags = (Gio.DBusConnectionFlags.AUTHENTICATION_CLIENT |
                 Gio.DBusConnectionFlags.MESSAGE_BUS_CONNECTION)
        self._session = Gio.DBusConnection.new_for_address_sync(
            machine.environment["DBUS_SESSION_BUS_ADDRESS"], flags, None, None)
        answer = self._session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
            Gio.DBusCallFlags.NONE, _PATIENCE, None)
        self._bus = Gio.DBusConnection.new_for_address_sync(answer.unpack()[0], flags, None, None)
        self._bus.set_exit_on_close(False)
        # The registry starts when it is first asked, and before the program looks for it.
        self.desktop = Node(self._bus, _ATSPI + "Registry", _ROOT)
        self.desktop.children()

    def ears(self):
        return Ears(self._bus)

    def switch_on(self):
        """Tells every program that assistive technology is in use; the tests' programs expect it
        without being told."""
        self._tell_of_use(True)

    def switch_off(self):
        self._tell_of_use(False)

    def _tell_of_use(self, used):
        self._session.call_sync(
            "org.a11y.Bus", "/org/a11y/bus", "org.freedesktop.DBus.Properties", "Set",
            GLib.Variant("(ssv)", ("org.a11y.Status", "IsEnabled", GLib.Variant("b", used))), None,
            Gio.DBusCallFlags.NONE, _PATIENCE, None)

    def program(self, process):
        """The node of a running process, or None as long as it has not told of itself."""
        for node in self.desktop.children():
            try:
                if self._process_of(node.owner) == process:
                    return node
            except Gone:
                pass
        return None

    def _process_of(self, owner):
        return Node(self._bus, "org.freedesktop.DBus", "/org/freedesktop/DBus").ask(
            "org.freedesktop.DBus", "GetConnectionUnixProcessID", GLib.Variant("(s)", (owner,)))


class Ears:
    """What programs tell by themselves from now on: each event as a node and what came about it."""

    _KINDS = ("object:property-change", "object:state-changed")

    def __init__(self, bus):
        self._bus = bus
        self._heard = []
        registry = Node(bus, _ATSPI + "Registry", "/org/a11y/atspi/registry")
        for kind in self._KINDS:  # nothing is told that nobody has asked for
            registry.ask(_ATSPI + "Registry", "RegisterEvent", GLib.Variant("(s)", (kind,)))
        self._subscription = bus.signal_subscribe(
            None, _ATSPI + "Event.Object", None, None, None, Gio.DBusSignalFlags.NONE, self._hear)

    def _hear(self, _bus, owner, path, _interface, kind, arguments):
        what, detail = arguments.unpack()[:2]
        self._heard.append((Node(self._bus, owner, path), kind, what, detail))

    def take(self):
        """Everything that has been told since the last look."""
        while GLib.MainContext.default().iteration(False):
            pass
        heard, self._heard = self._heard, []
        return heard

    def close(self):
        self._bus.signal_unsubscribe(self._subscription)


class Node:
    """One thing on the screen. Every question goes to the program anew."""

    def __init__(self, bus, owner, path):
        self._bus = bus
        self.owner = owner
        self.path = path

    def __eq__(self, other):
        return (self.owner, self.path) == (other.owner, other.path)

    def __hash__(self):
        return hash((self.owner, self.path))

    def __repr__(self):
        try:
            return f"<{self.role} {self.name!r} at {self.place}>"
        except Gone:
            return f"<gone {self.path}>"

    def ask(self, interface, question, arguments=None):
        try:
            answer = self._bus.call_sync(self.owner, self.path, interface, question, arguments,
                                         None, Gio.DBusCallFlags.NONE, _PATIENCE, None)
        except GLib.Error as error:
            raise Gone(f"{question} of {self.path}: {error.message}") from None
        values = answer.unpack()
        return values[0] if len(values) == 1 else values

    def _accessible(self, question, arguments=None):
        return self.ask(_ATSPI + "Accessible", question, arguments)

    def _property(self, interface, name):
        return self.ask("org.freedesktop.DBus.Properties", "Get",
                        GLib.Variant("(ss)", (_ATSPI + interface, name)))

    @property
    def name(self):
        return self._property("Accessible", "Name")

    @property
    def description(self):
        return self._property("Accessible", "Description")

    @property
    def role(self):
        return self._accessible("GetRoleName")

    def has(self, state):
        low, high = self._accessible("GetState")
        return bool((low | high << 32) >> state & 1)

    def children(self):
        return [Node(self._bus, owner, path)
                for owner, path in self._accessible("GetChildren") if owner]

    def all(self):
        """This node and all beneath it."""
        yield self
        for child in self.children():
            yield from child.all()

    @property
    def place(self):
        """left, top, width, height in pixels of the screen."""
        return self.ask(_ATSPI + "Component", "GetExtents", GLib.Variant("(u)", (0,)))

    @property
    def text(self):
        return self.ask(_ATSPI + "Text", "GetText", GLib.Variant("(ii)", (0, -1)))

    @property
    def caret(self):
        return self._property("Text", "CaretOffset")

    @property
    def selection(self):
        """start and end of the selected text, or None."""
        if self.ask(_ATSPI + "Text", "GetNSelections") < 1:
            return None
        return tuple(self.ask(_ATSPI + "Text", "GetSelection", GLib.Variant("(i)", (0,))))

    def place_of_letter(self, position):
        return self.ask(_ATSPI + "Text", "GetCharacterExtents",
                        GLib.Variant("(iu)", (position, 0)))

    @property
    def value(self):
        return self._property("Value", "CurrentValue")

    @property
    def limits(self):
        """The lowest and the highest value."""
        return self._property("Value", "MinimumValue"), self._property("Value", "MaximumValue")

    def do(self):
        """The node's first action: what a click on it does."""
        self.ask(_ATSPI + "Action", "DoAction", GLib.Variant("(i)", (0,)))

    def tell(self, depth=0):
        """Everything beneath, as lines for a report."""
        lines = []
        try:
            lines.append("  " * depth + repr(self))
            for child in self.children():
                lines += child.tell(depth + 1)
        except Gone:
            lines.append("  " * depth + "(gone)")
        return lines
