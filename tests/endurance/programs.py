"""Both programs, run on one root of settings files. WAYLOOMCTL and WINDOW name them, REGIONS the folder
of the regions; SEED makes a run repeatable."""

import os
import pathlib
import plistlib
import random
import subprocess
import sys

CTL = os.environ["WAYLOOMCTL"]
WINDOW = os.environ.get("WINDOW", "")
SEED = int(os.environ.get("SEED", random.randrange(1 << 30)))
ENVIRONMENT = {**os.environ, "DBUS_SESSION_BUS_ADDRESS": "unix:path=/nonexistent"}


def check(condition, what):
    if not condition:
        sys.exit(f"seed {SEED}: {what}")


class Root:
    """The settings files below a folder, as another program reads them."""

    def __init__(self, folder):
        self.root = pathlib.Path(folder)
        self.files = self.root / "var/mobile/Library/Preferences"
        self.regions = os.environ.get("REGIONS", str(self.root / "none"))

    def read(self, name):
        try:
            bytes = (self.files / f"com.quorvil.wl.{name}.plist").read_bytes()
        except FileNotFoundError:
            return None
        return plistlib.loads(bytes)

    def state(self):
        return {name: self.read(name) for name in ("master", "location", "favorites", "whitelist", "route")}

    def are_both_on(self):
        state = self.state()
        return all((state[name] or {}).get("enable") == "1" for name in ("location", "route"))

    def leftovers(self):
        return list(self.files.glob("*.tmp"))

    def ctl(self, *words):
        return [CTL, "--root", str(self.root), "--regions", self.regions, *words]

    def run(self, *words):
        return subprocess.run(self.ctl(*words), env=ENVIRONMENT, capture_output=True, text=True)


class Window:
    """The application, touched by lines."""

    def __init__(self, root):
        self.process = subprocess.Popen(
            [WINDOW, str(root.root), root.regions], env=ENVIRONMENT, text=True, bufsize=1,
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        self.answer()

    def answer(self):
        return self.process.stdout.readline().strip()

    def do(self, line):
        try:
            self.process.stdin.write(line + "\n")
        except BrokenPipeError:
            return ""
        return self.answer()

    def shown(self):
        """The screen, its switch, and the words of the status line."""
        return (self.do("shown") + " ").split(" ", 2)

    def end(self):
        self.process.kill()
        self.process.communicate()
