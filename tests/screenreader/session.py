"""A screen of its own, a session bus, an accessibility bus, a window manager, and programs on them.

Nothing of it is shared with the user's session or with another run: the display's number is chosen by
the server, and home and runtime folders are temporary. All programs end with the session.
"""

import contextlib
import ctypes
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from pathlib import Path

SCREEN = "1024x900x24"
LIBC = ctypes.CDLL(None)
PR_SET_PDEATHSIG = 1


class TimedOut(AssertionError):
    """A condition that did not become true in time."""


def wait_until(condition, what, seconds=20.0, step=0.02):
    """Returns the first true value of `condition`, which is queried until then."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise TimedOut(f"waited {seconds:g} s for: {what}")
        time.sleep(step)


def threads_of(sessions):
    """The folders of all threads of these process sessions."""
    for entry in Path("/proc").iterdir():
        if not entry.name.isdigit():
            continue
        with contextlib.suppress(OSError, IndexError, ValueError):
            if int((entry / "stat").read_text().rpartition(")")[2].split()[3]) in sessions:
                yield from (entry / "task").iterdir()


def work_done(sessions):
    """What each thread has done: how long it has run and waited for a processor."""
    done = {}
    for thread in threads_of(sessions):
        with contextlib.suppress(OSError):
            is_running = (thread / "stat").read_text().rpartition(")")[2].split()[0] == "R"
            name = f"{thread.name} {(thread / 'comm').read_text().strip()}"
            # What is about to run counts as another one each time.
            done[name] = object() if is_running else (thread / "schedstat").read_text()
    return done


class Session:
    """The programs of one session. Use it with `with`."""

    def __init__(self, folder):
        self.folder = Path(folder).resolve()
        self.programs = []
        self.environment = {}

    def __enter__(self):
        signal.signal(signal.SIGTERM, lambda number, _: sys.exit(128 + number))
        try:
            self._start()
        except BaseException:
            self._end()
            raise
        return self

    def __exit__(self, *_):
        self._end()

    def start(self, name, command, **more):
        """Starts a program that ends with the session; what it prints goes to NAME.log."""
        log = open(self.folder / f"{name}.log", "wb")
        environment = {**self.environment, **more.pop("environment", {})}
        program = subprocess.Popen(command, stdout=log, stderr=log, stdin=subprocess.DEVNULL,
                                   start_new_session=True, env=environment, cwd=self.folder / "home",
                                   preexec_fn=end_with_parent, **more)
        log.close()
        self.programs.append((name, program))
        return program

    def stop(self, program):
        self.programs = [entry for entry in self.programs if entry[1] is not program]
        end_program(program)

    def wait_until_idle(self, quiet=0.12, seconds=60.0):
        """Waits until no program of the session has run for `quiet` seconds.

        A program that waits for a processor counts as running, so a busy machine only takes longer.
        """
        sessions = {program.pid for _, program in self.programs}
        end = time.monotonic() + seconds
        before = {}
        while True:
            now = work_done(sessions)
            busy = {name for name in now.keys() | before.keys() if now.get(name) != before.get(name)}
            if not busy:
                return
            if time.monotonic() > end:
                raise TimedOut(f"still running after {seconds:g} s: {sorted(busy)}")
            before = now
            time.sleep(quiet)

    def log(self, name):
        with contextlib.suppress(OSError):
            return (self.folder / f"{name}.log").read_text(errors="replace")
        return ""

    def _start(self):
        self.folder.mkdir(parents=True, exist_ok=True)
        # Paths of sockets are short, those of build folders need not be.
        self.runtime = Path(tempfile.mkdtemp(prefix="gx-session-"))
        self.runtime.chmod(0o700)
        home = self.folder / "home"
        shutil.rmtree(home, ignore_errors=True)
        home.mkdir()
        keep = ("PATH", "LD_LIBRARY_PATH", "ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS", "TMPDIR")
        self.environment = {name: os.environ[name] for name in keep if name in os.environ}
        self.environment |= {"HOME": str(home), "XDG_RUNTIME_DIR": str(self.runtime), "LC_ALL": "C.UTF-8",
                             "GTK_A11Y": "none", "NO_AT_BRIDGE": "1", "GIO_USE_VFS": "local",
                             "GSETTINGS_BACKEND": "memory", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                             "QT_QPA_PLATFORM": "xcb"}
        self._start_display()
        self._start_bus()
        self._start_accessibility()
        self.start("openbox", ["openbox", "--sm-disable"])
        wait_until(self._has_window_manager, "the window manager")

    def _start_display(self):
        reading, writing = os.pipe()
        self.start("xvfb", ["Xvfb", "-displayfd", str(writing), "-screen", "0", SCREEN, "-nolisten", "tcp", "-noreset"],
                   pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start:\n" + self.log("xvfb"))
        self.environment["DISPLAY"] = ":" + number

    def _start_bus(self):
        address = self.runtime / "bus"
        self.start("dbus", ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--address=unix:path={address}"])
        wait_until(address.exists, "the session bus")
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = f"unix:path={address}"

    def _start_accessibility(self):
        self.start("at-spi", ["/usr/libexec/at-spi-bus-launcher", "--launch-immediately"])
        wait_until(lambda: list((self.runtime / "at-spi").glob("bus*")), "the accessibility bus")

    def _has_window_manager(self):
        found = subprocess.run(["xdotool", "get_desktop"], env=self.environment, capture_output=True, check=False)
        return found.returncode == 0

    def _end(self):
        for _, program in reversed(self.programs):
            end_program(program)
        self.programs = []
        if hasattr(self, "runtime"):
            shutil.rmtree(self.runtime, ignore_errors=True)


def end_with_parent():
    """Has the kernel end this process if the test is killed."""
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


def end_program(program):
    """Ends a program and all that it has started, which share its process group."""
    for number, seconds in ((signal.SIGTERM, 2), (signal.SIGKILL, 2)):
        with contextlib.suppress(ProcessLookupError):
            os.killpg(program.pid, number)
        with contextlib.suppress(subprocess.TimeoutExpired):
            program.wait(seconds)
            break
    with contextlib.suppress(ProcessLookupError):
        os.killpg(program.pid, signal.SIGKILL)
