#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The PrintPanels developers
# SPDX-License-Identifier: MIT
#
# Operates the panels of panelhost as assistive technology does: over an AT-SPI bus of its own, beside
# an X server of its own. Exits with 77 where these are not installed, unless CI is set.
#   drivepanels.py PANELHOST
import importlib.util
import os
import shutil
import subprocess
import sys
import tempfile
import time

SECONDS = 60  # for one step, on a machine with much else to do


def why_unavailable():
    for program in ("Xvfb", "dbus-run-session"):
        if not shutil.which(program):
            return f"{program} is not installed"
    if not os.path.exists("/usr/share/dbus-1/services/org.a11y.Bus.service"):
        return "at-spi2-core is not installed"
    if not importlib.util.find_spec("pyatspi"):
        return "python3-pyatspi is not installed"
    return ""


def run_in_session(host):
    """Runs this script again with an X server, a session bus and folders that go afterwards."""
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as folder:
        read_end, write_end = os.pipe()
        server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24",
             "-nolisten", "tcp"],
            pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        try:
            with os.fdopen(read_end) as display:
                number = display.readline().strip()
            if not number:
                sys.exit("Xvfb does not start")
            environment = dict(
                os.environ, DISPLAY=":" + number, HOME=folder, XDG_RUNTIME_DIR=folder,
                GSETTINGS_BACKEND="memory", QT_QPA_PLATFORM="xcb",
                QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", NO_AT_BRIDGE="0")
            environment.pop("WAYLAND_DISPLAY", None)
            return subprocess.run(
                ["dbus-run-session", "--", sys.executable, __file__, "--in-session", host],
                env=environment).returncode
        finally:
            server.terminate()
            server.wait()


class Host:
    """The program with the panels, and what it writes."""

    def __init__(self, program):
        self.process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        os.set_blocking(self.process.stdout.fileno(), False)
        self.written = ""

    def wrote(self, line):
        text = self.process.stdout.read()
        self.written += text.decode() if text else ""
        if self.process.poll() is not None:
            sys.exit(f"The host has ended with {self.process.returncode}")
        return line in self.written.splitlines()

    def end(self):
        self.process.stdin.close()
        self.process.wait(SECONDS)


class Driver:
    def __init__(self, host):
        import pyatspi
        from gi.repository import GLib
        self.pyatspi = pyatspi
        self.host = host
        self.context = GLib.MainContext.default()
        self.errors = (GLib.Error, LookupError, NotImplementedError, AttributeError)
        self.events = []
        # Qt takes no notice of who wants only some of the properties.
        pyatspi.Registry.registerEventListener(
            self.keep, "object:property-change", "object:value-changed")

    def keep(self, event):
        self.events.append((str(event.type), event.source.name))

    def until(self, what, probe):
        """Waits until probe() is true, and returns its result."""
        deadline = time.monotonic() + SECONDS
        problem = ""
        while time.monotonic() < deadline:
            while self.context.iteration(False):
                pass
            try:
                result = probe()
                if result:
                    return result
            except self.errors as error:  # the tree changes while it is read
                problem = f" ({error})"
            time.sleep(0.02)
        print("Events:", self.events, "\nThe host wrote:", self.host.written)
        sys.exit(f"Not within {SECONDS} s: {what}{problem}")

    def elements(self, root):
        root.clear_cache()
        for child in (root.getChildAtIndex(i) for i in range(root.childCount)):
            if child:
                yield child
                yield from self.elements(child)

    def application(self):
        desktop = self.pyatspi.Registry.getDesktop(0)
        return self.until("the host is on the bus", lambda: next(
            (child for child in desktop if child and child.name == "panelhost"), None))

    def label(self, element):
        for relation in element.getRelationSet():
            if relation.getRelationType() == self.pyatspi.RELATION_LABELLED_BY:
                return relation.getTarget(0).name
        return ""

    def find(self, role, name):
        """The element with this role that has this name or label."""
        application = self.application()
        wanted = getattr(self.pyatspi, "ROLE_" + role)
        return self.until(f"{role} '{name}'", lambda: next(
            (element for element in self.elements(application) if element.getRole() == wanted
             and name in (element.name, self.label(element))), None))

    def has_state(self, element, state):
        element.clear_cache()
        return element.getState().contains(getattr(self.pyatspi, "STATE_" + state))

    def description(self, element):
        element.clear_cache()
        return element.description

    def act(self, element, action):
        actions = element.queryAction()
        names = [actions.getName(i) for i in range(actions.nActions)]
        if action not in names or not actions.doAction(names.index(action)):
            sys.exit(f"{element.name} cannot {action}, only {names}")

    def sees(self, events, seconds):
        """Whether these events arrive in time."""
        deadline = time.monotonic() + seconds
        while not events <= set(self.events) and time.monotonic() < deadline:
            self.context.iteration(False)
            time.sleep(0.01)
        return events <= set(self.events)

    def expect_event(self, kind, name):
        wanted = ("object:property-change:accessible-" + kind, name)
        self.until(f"the event {wanted}", lambda: wanted in self.events)
        self.events.clear()

    def expect_description(self, element, text):
        self.until(f"{element.name} is described by '{text}'",
                   lambda: self.description(element) == text)

    def expect_report(self, line):
        self.until(f"the host writes '{line}'", lambda: self.host.wrote(line))


def every_control_has_a_name(driver):
    roles = {getattr(driver.pyatspi, "ROLE_" + name) for name in (
        "PUSH_BUTTON", "RADIO_BUTTON", "CHECK_BOX", "COMBO_BOX", "SPIN_BUTTON", "TEXT", "ENTRY",
        "PAGE_TAB", "TOGGLE_BUTTON", "IMAGE", "LIST")}
    found = 0
    for element in driver.elements(driver.application()):
        if element.getRole() in roles:
            found += 1
            if not (element.name or driver.label(element)).strip():
                sys.exit(f"No name: {element.getRoleName()} in {element.parent}")
    if found < 30:
        sys.exit(f"Only {found} controls on the bus")


def copies_are_stepped(driver):
    spin_box = driver.find("SPIN_BUTTON", "Copies:")
    plus = driver.find("PUSH_BUTTON", "More Copies")
    step = {("object:property-change:accessible-value", "Copies:"),
            ("object:property-change:accessible-description", "More Copies")}
    copies = 1
    seen = False
    # Who listens to values is told to the host in a message that may be later than the first step.
    while not seen and copies < 10:
        driver.events.clear()
        driver.act(plus, "Press")
        copies += 1
        driver.until(f"{copies} copies", lambda: spin_box.queryValue().currentValue == copies)
        driver.expect_description(plus, str(copies))
        seen = driver.sees(step, 5)
    if not seen:
        sys.exit(f"The events of a step do not arrive, only {driver.events}")
    while copies > 2:
        driver.act(driver.find("PUSH_BUTTON", "Fewer Copies"), "Press")
        copies -= 1
    driver.until("2 copies", lambda: spin_box.queryValue().currentValue == 2)


def list_is_chosen_and_typed(driver):
    radio = driver.find("RADIO_BUTTON", "Range or List of Records:")
    edit = driver.find("TEXT", "List of Records")
    assert not driver.has_state(edit, "ENABLED")
    driver.act(radio, "Toggle")
    driver.until("the list is chosen", lambda: driver.has_state(radio, "CHECKED"))
    assert not driver.has_state(driver.find("RADIO_BUTTON", "Current Record"), "CHECKED")
    assert driver.has_state(edit, "ENABLED")
    for text, state in (("1,", "The list is not complete yet."), ("1,4-5", "The list is complete.")):
        driver.events.clear()
        edit.queryEditableText().setTextContents(text)
        driver.expect_description(edit, state)
        driver.expect_event("description", "List of Records")


def printer_has_a_label(driver):
    printer = driver.find("COMBO_BOX", "Printer:")
    assert printer.name == "Alpha", printer.name


def width_has_a_unit(driver):
    driver.expect_description(driver.find("TEXT", "Tape Width:"), "Inches")


def ladder_is_reported(driver):
    driver.act(driver.find("CHECK_BOX", "0.2\" Ladder Shrink Tube"), "Toggle")
    driver.expect_report("ladder 1")


def print_is_reported(driver):
    driver.act(driver.find("PUSH_BUTTON", " Print "), "Press")
    driver.expect_report("print 0 0 '1,4-5' copies 2")


def orientation_is_a_choice(driver):
    portrait = driver.find("RADIO_BUTTON", "Portrait")
    landscape = driver.find("RADIO_BUTTON", "Landscape")
    assert driver.has_state(portrait, "CHECKED") and not driver.has_state(landscape, "CHECKED")
    driver.act(landscape, "Toggle")
    driver.expect_report("orientation 0")
    driver.until("landscape", lambda: driver.has_state(landscape, "CHECKED"))
    assert not driver.has_state(portrait, "CHECKED")


def zoom_is_described(driver):
    view = driver.find("IMAGE", "Preview")
    before = driver.description(view)
    assert before.startswith("300 x 100 pixels, shown at "), before
    driver.events.clear()
    driver.act(driver.find("PUSH_BUTTON", "Zoom In"), "Press")
    driver.expect_event("description", "Preview")
    driver.until("another scale", lambda: driver.description(view) != before)


def drive(program):
    host = Host(program)
    driver = Driver(host)
    for step in (every_control_has_a_name, copies_are_stepped, list_is_chosen_and_typed,
                 printer_has_a_label, width_has_a_unit, ladder_is_reported, print_is_reported,
                 orientation_is_a_choice, zoom_is_described):
        started = time.monotonic()
        step(driver)
        print(f"{step.__name__}: {time.monotonic() - started:.1f} s", flush=True)
    host.end()


if sys.argv[1] == "--in-session":
    drive(sys.argv[2])
else:
    reason = why_unavailable()
    if reason:
        print("No panel can be operated over the bus:", reason)
        sys.exit(1 if os.environ.get("CI") else 77)
    sys.exit(run_in_session(sys.argv[1]))
