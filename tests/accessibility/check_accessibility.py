#!/usr/bin/env python3
"""Starts the window and reads it back from the accessibility bus (AT-SPI).

Run inside a session bus and an X server, as ctest does:
    dbus-run-session -- xvfb-run -a -s "-noreset -screen 0 1280x1024x24" \
        python3 check_accessibility.py path/to/orrery path/to/earth-and-moon.kvx

The program starts with a fresh settings folder. Once it is on the bus, the check:
  - finds the main window's controls by role and accessible name (menus, document size
    fields, title-bar buttons, scene and backdrop views);
  - switches the introduction tour's "don't show" box through its accessible toggle action,
    as a screen reader or voice control does, and finds the switch stored;
  - opens the style library and the find window from the Window menu and finds their lists;
  - opens the Preferences sheet and a question, and finds every top-level window announced
    as a window, dialog or alert with a name;
  - walks every window's whole tree and names each control whose accessible name is empty,
    with its role and its path from the application;
  - starts the program again with a system, selects a planet's row, presses Ctrl+E and
    finds the export question.
Screen readers see only roles and accessible names, never object names, so every check
goes by those.
"""

import os
import signal
import sqlite3
import subprocess
import sys
import tempfile
import time

REGISTER_TIMEOUT = 30.0  # seconds for the program to appear on the bus
TREE_TIMEOUT = 20.0      # seconds for an expected part of the tree to appear
POLL = 0.2

MENUS = ["File", "Edit", "Planet", "Scene", "Window", "Help"]
TITLE_BUTTONS = ["Close", "Minimize", "Zoom", "Full screen"]
SIZE_FIELDS = ["Document width", "Document height"]
VIEWS = ["Scene", "Document area"]  # the live scene and the backdrop behind it
SECONDARY = ["Style Library", "Find Planet"]  # Window menu items and their windows' titles
TOUR = "Introduction"
EXPORT_QUESTION = "Choose the format of the exported picture."
KEYCODE_CONTROL, KEYCODE_E = 37, 26  # Control_L and e in the X server's standard keymap
SHEETS = [("Preferences…", "Preferences"),  # menu item, and the sheet it opens
          ("User Guide…", None)]  # a question: any name will do, but one there must be


def fail(message):
    print(f"AccessibilityBus: {message}", file=sys.stderr)
    sys.exit(1)


try:
    import gi
    gi.require_version("Gio", "2.0")
    from gi.repository import Gio, GLib
    import pyatspi
except (ImportError, ValueError) as error:
    fail(f"{sys.executable} cannot load pyatspi ({error}); install python3-pyatspi")

# Roles a person operates or reads as a control; each needs a name of its own.
CONTROL_ROLES = {
    pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_TOGGLE_BUTTON, pyatspi.ROLE_CHECK_BOX,
    pyatspi.ROLE_RADIO_BUTTON, pyatspi.ROLE_TEXT, pyatspi.ROLE_ENTRY,
    pyatspi.ROLE_PASSWORD_TEXT, pyatspi.ROLE_SPIN_BUTTON, pyatspi.ROLE_COMBO_BOX,
    pyatspi.ROLE_SLIDER, pyatspi.ROLE_MENU, pyatspi.ROLE_POPUP_MENU, pyatspi.ROLE_MENU_ITEM,
    pyatspi.ROLE_CHECK_MENU_ITEM, pyatspi.ROLE_RADIO_MENU_ITEM, pyatspi.ROLE_LIST,
    pyatspi.ROLE_LIST_BOX, pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_TABLE,
    pyatspi.ROLE_TREE_TABLE, pyatspi.ROLE_TREE, pyatspi.ROLE_PAGE_TAB, pyatspi.ROLE_CANVAS,
}


def children(node):
    try:
        return [child for child in node if child is not None]
    except GLib.Error:
        return []


def step(node, index):
    """One step of a path: the role and the name, or the index among siblings when unnamed."""
    name = node.name
    return f"{node.getRoleName()} '{name}'" if name else f"{node.getRoleName()} #{index}"


def walk(node, path=()):
    """Every node under node, with the path of steps that leads to it."""
    for index, child in enumerate(children(node)):
        here = path + (step(child, index),)
        yield child, here
        yield from walk(child, here)


def find(root, role, name):
    return [node for node, _ in walk(root) if node.getRole() == role and node.name == name]


def wait_until(problems_of, timeout):
    """Polls until problems_of() returns none; returns the last problems at the deadline."""
    deadline = time.monotonic() + timeout
    while True:
        try:
            problems = problems_of()
        except GLib.Error as error:  # the tree changed under us: read it again
            problems = [f"the bus answered with an error: {error.message}"]
        if not problems or time.monotonic() > deadline:
            return problems
        time.sleep(POLL)


def start_bus(runtime):
    """Starts the accessibility bus with its socket in runtime.

    The bus launcher is started by the session bus, with the session bus's environment:
    without this, its socket would be ~/.cache/at-spi/bus for every test that runs at the
    same time, each new bus taking the socket from the one before.
    """
    if not os.environ.get("DBUS_SESSION_BUS_ADDRESS"):
        fail("no session bus; run inside dbus-run-session")
    if not os.environ.get("DISPLAY"):
        fail("no X display; run inside xvfb-run -a")
    try:
        bus = Gio.bus_get_sync(Gio.BusType.SESSION, None)
        # The registry presses keys for the check on this display.
        private = {"XDG_RUNTIME_DIR": runtime, "DISPLAY": os.environ["DISPLAY"],
                   "XAUTHORITY": os.environ.get("XAUTHORITY", "")}
        bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                      "UpdateActivationEnvironment", GLib.Variant("(a{ss})", (private,)),
                      None, Gio.DBusCallFlags.NONE, 10000, None)
        bus.call_sync("org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None,
                      GLib.VariantType("(s)"), Gio.DBusCallFlags.NONE, 10000, None)
    except GLib.Error as error:
        fail(f"the accessibility bus does not start ({error.message}); "
             "install at-spi2-core")


def find_application(program):
    deadline = time.monotonic() + REGISTER_TIMEOUT
    while time.monotonic() < deadline:
        if program.poll() is not None:
            fail(f"the program ended with status {program.returncode} before it reached the bus")
        for app in children(pyatspi.Registry.getDesktop(0)):
            try:
                if app.get_process_id() == program.pid:
                    return app
            except GLib.Error:
                pass  # an application that just left the bus
        time.sleep(POLL)
    fail(f"the program did not appear on the accessibility bus within {REGISTER_TIMEOUT:.0f} s "
         "(is QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 honoured?)")


def main_window_problems(app):
    problems = []
    bars = [node for node, _ in walk(app) if node.getRole() == pyatspi.ROLE_MENU_BAR]
    if len(bars) != 1:
        problems.append(f"expected one menu bar, found {len(bars)}")
    else:
        menus = [child.name for child in children(bars[0])]
        if menus != MENUS:
            problems.append(f"the menu bar lists {menus}, expected {MENUS}")
    wanted = [(pyatspi.ROLE_TEXT, "text field", name) for name in SIZE_FIELDS]
    wanted += [(pyatspi.ROLE_PUSH_BUTTON, "push button", name) for name in TITLE_BUTTONS]
    wanted += [(pyatspi.ROLE_FILLER, "view", name) for name in VIEWS]
    for role, kind, name in wanted:
        found = len(find(app, role, name))
        if found != 1:
            problems.append(f"expected one {kind} named '{name}', found {found}")
    return problems


def secondary_window_problems(app):
    problems = []
    for title in SECONDARY:
        windows = [child for child in children(app) if child.name == title]
        if len(windows) != 1 or not find(windows[0], pyatspi.ROLE_LIST, title):
            problems.append(f"no window '{title}' with a list named '{title}'")
    return problems


def open_secondary_windows(app):
    for title in SECONDARY:
        items = find(app, pyatspi.ROLE_MENU_ITEM, title)
        if len(items) != 1 or not items[0].queryAction().doAction(0):
            return [f"cannot choose the menu item '{title}' (found {len(items)})"]
    return wait_until(lambda: secondary_window_problems(app), TREE_TIMEOUT)


def top_level_problems(app):
    """Every window of the program announced as a window, a dialog or an alert, with a name."""
    announced = {pyatspi.ROLE_FRAME, pyatspi.ROLE_WINDOW, pyatspi.ROLE_DIALOG,
                 pyatspi.ROLE_ALERT}
    problems = []
    for window in children(app):
        if window.getRole() not in announced or not window.name.strip():
            problems.append(f"top-level window announced as {window.getRoleName()} "
                            f"'{window.name}'")
    return problems


def tour_box_problems(app, data_home):
    """Toggles the tour's box by its action; the General table's Value02 must become "1"."""
    tours = [child for child in children(app) if child.name == TOUR]
    boxes = [node for node, _ in walk(tours[0])
             if node.getRole() == pyatspi.ROLE_CHECK_BOX] if len(tours) == 1 else []
    if len(boxes) != 1:
        return [f"no tour window '{TOUR}' with one check box (found {len(tours)} windows)"]
    actions = boxes[0].queryAction()
    names = [actions.getName(i) for i in range(actions.nActions)]
    if "Toggle" not in names or not actions.doAction(names.index("Toggle")):
        return [f"the tour's box offers no toggle action (it offers {names})"]
    database = os.path.join(data_home, "orrery", "Data2.data")

    def stored():
        try:
            with sqlite3.connect(f"file:{database}?mode=ro", uri=True) as db:
                row = db.execute("SELECT value FROM General WHERE field='Value02'").fetchone()
        except sqlite3.Error as error:
            return [f"cannot read {database}: {error}"]
        return [] if row and row[0] == "1" else [f"General Value02 is {row}, not '1'"]
    return wait_until(stored, TREE_TIMEOUT)


def export_key_problems(app):
    """With a planet's row selected, Ctrl+E must bring up the export question."""
    tables = []

    def table_with_rows():
        tables[:] = find(app, pyatspi.ROLE_TABLE, "Planets")
        return [] if len(tables) == 1 and tables[0].queryTable().nRows > 0 else ["no planets"]
    problems = wait_until(table_with_rows, TREE_TIMEOUT)
    if problems or not tables[0].queryTable().addRowSelection(0):
        return problems or ["cannot select the first planet's row"]
    time.sleep(1)  # the window manager hands the keyboard to the window in its own time
    pyatspi.Registry.generateKeyboardEvent(KEYCODE_CONTROL, None, pyatspi.KEY_PRESS)
    pyatspi.Registry.generateKeyboardEvent(KEYCODE_E, None, pyatspi.KEY_PRESSRELEASE)
    pyatspi.Registry.generateKeyboardEvent(KEYCODE_CONTROL, None, pyatspi.KEY_RELEASE)

    def asked():
        for window in children(app):
            if window.getRole() == pyatspi.ROLE_ALERT and window.name == EXPORT_QUESTION:
                return []
        return ["Ctrl+E with a planet's row selected brought no export question"]
    return wait_until(asked, TREE_TIMEOUT)


def sheet_problems(app):
    """Opens each sheet from its menu item, finds it named, and cancels it."""
    problems = []
    for item_name, title in SHEETS:
        items = find(app, pyatspi.ROLE_MENU_ITEM, item_name)
        if len(items) != 1 or not items[0].queryAction().doAction(0):
            problems.append(f"cannot choose the menu item '{item_name}' (found {len(items)})")
            continue

        def opened():
            sheets = [child for child in children(app)
                      if child.getRole() in (pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT)]
            if not sheets:
                return [f"'{item_name}' opened no dialog or alert"]
            if title and sheets[0].name != title:
                return [f"'{item_name}' opened '{sheets[0].name}', not '{title}'"]
            return top_level_problems(app)
        found = wait_until(opened, TREE_TIMEOUT)
        problems += found

        def sheets():
            return [child for child in children(app)
                    if child.getRole() in (pyatspi.ROLE_DIALOG, pyatspi.ROLE_ALERT)]
        # A sheet with a Close button is closed before the next one opens; a question is
        # left for the program's end.
        closers = [button for sheet in sheets()
                   for button in find(sheet, pyatspi.ROLE_PUSH_BUTTON, "Close")]
        for button in closers:
            button.queryAction().doAction(0)
        if closers:
            problems += wait_until(lambda: [f"'{item_name}' stays open"] if sheets() else [],
                                   TREE_TIMEOUT)
    return problems


def unnamed_controls(app):
    problems = []
    for node, path in walk(app):
        role = node.getRole()
        if role in CONTROL_ROLES and not node.name.strip():
            problems.append(f"unnamed {node.getRoleName()}: {' > '.join(path)}")
    return problems


def end(program):
    if program.poll() is None:
        program.terminate()
        try:
            program.wait(timeout=10)
        except subprocess.TimeoutExpired:
            program.kill()
            program.wait()


def main():
    if len(sys.argv) != 3:
        fail("usage: check_accessibility.py PATH_TO_ORRERY PACKAGE_WITH_PLANETS")
    # Ended from outside (SIGTERM), still end the program on the way out.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("AccessibilityBus: terminated"))
    with tempfile.TemporaryDirectory(prefix="orrery-a11y-") as home:
        runtime = os.path.join(home, "runtime")
        os.mkdir(runtime, 0o700)
        start_bus(runtime)
        env = dict(os.environ, QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                   XDG_DATA_HOME=os.path.join(home, "data"), XDG_RUNTIME_DIR=runtime)
        try:
            program = subprocess.Popen([sys.argv[1]], env=env)
        except OSError as error:
            fail(f"cannot start {sys.argv[1]}: {error.strerror}")
        try:
            app = find_application(program)
            problems = wait_until(lambda: main_window_problems(app), TREE_TIMEOUT)
            if not problems:
                problems = tour_box_problems(app, env["XDG_DATA_HOME"])
            if not problems:
                problems = open_secondary_windows(app)
            if not problems:
                problems = top_level_problems(app) + sheet_problems(app)
            problems += unnamed_controls(app)
            if program.poll() is not None:
                problems.append(f"the program ended with status {program.returncode} "
                                "during the check")
        finally:
            end(program)
        # Started again with a system of planets, and the tour switched off above.
        if not problems:
            try:
                program = subprocess.Popen([sys.argv[1], sys.argv[2]], env=env)
            except OSError as error:
                fail(f"cannot start {sys.argv[1]}: {error.strerror}")
            try:
                problems = export_key_problems(find_application(program))
            finally:
                end(program)
    if problems:
        fail(f"{len(problems)} problem(s):\n  " + "\n  ".join(problems))
    print("AccessibilityBus: every window announced by role and name, the tour's box switched "
          "by its action, every control named, Ctrl+E answered")


if __name__ == "__main__":
    main()
