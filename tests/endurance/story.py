"""A story that two programs act out on one root, line by line. Of a line, "shell" must be done, "window"
too, and with "!" refused; "see" waits for a screen, its switch and the status line's beginning, "reads" for
a property of a control; "file" compares entries, "put" writes them; "same" waits until the window and the
shell say the same of what is on."""

import json
import plistlib
import shlex
import time
from datetime import datetime, timedelta, timezone

from programs import ENVIRONMENT, Window, check
from walking import DRIVE

PATIENCE = 30


def night_of_two_clocks():
    """A time zone whose clocks go back an hour tomorrow at three."""
    tomorrow = datetime.now(timezone.utc) + timedelta(hours=2 + 24)
    end = int(tomorrow.strftime("%j")) - (tomorrow.year % 4 == 0 and tomorrow.month > 2)
    return f"CET-1CEST,J{(end + 150) % 365 + 1},J{end}/3"


class Story:
    def __init__(self, root):
        self.root, self.window, self.result = root, None, None
        self.environment = dict(ENVIRONMENT)

    def end(self):
        if self.window:
            self.window.end()
        ENVIRONMENT.clear()
        ENVIRONMENT.update(self.environment)

    def set(self, pair):
        name, value = pair.split("=")
        ENVIRONMENT[name] = night_of_two_clocks() if value == "night" else value

    def start(self):
        self.window = Window(self.root)

    def kill(self):
        self.window.end()

    def wait(self):
        end = time.monotonic() + 0.3
        while time.monotonic() < end:
            self.window.shown()

    def until(self, is_so, what):
        """Waits for what the window comes to by itself; `what` is said of it if it does not."""
        end = time.monotonic() + PATIENCE
        while not is_so():
            check(time.monotonic() < end, what())

    # Files

    def path(self, name):
        self.root.files.mkdir(parents=True, exist_ok=True)
        return self.root.files / f"com.quorvil.wl.{name}.plist"

    def put(self, name, *pairs):
        values = dict(pair.split("=") for pair in pairs)
        if "points" in values:
            values["points"] = [{"lat": 57.7 + 1e-6 * at, "lng": 11.97} for at in range(int(values["points"]))]
        new = self.path(name).with_suffix(".new")
        new.write_bytes(plistlib.dumps(values))
        if self.path(name).is_dir():
            self.path(name).rmdir()
        new.rename(self.path(name))

    def tear(self, name):
        self.path(name).write_text("<plist><dict>")

    def bar(self, name):
        """What stands there cannot be read."""
        self.path(name).mkdir()

    def block(self):
        (self.root.root / "var").write_text("a file where a folder belongs")

    def file(self, name, *pairs):
        value = self.root.read(name)
        check(all(value.get(key) == text for key, text in (pair.split("=") for pair in pairs)), f"{name} is {value}")

    def not_file(self, name, pair):
        key, text = pair.split("=")
        check(self.root.read(name).get(key) != text, f"{name} still has {pair}")

    def names(self, *names):
        value = [entry["name"] for entry in self.root.read("favorites")]
        check(value == list(names), f"the favourites are {value}")

    def lasts(self, seconds, clock):
        """How long the drive in the file is, and when it starts in universal time."""
        start, end = (float(self.root.read("route")[key]) for key in ("start", "end"))
        begin = datetime.fromtimestamp(start, timezone.utc).strftime("%H:%M:%S")
        check((end - start, begin) == (float(seconds), clock), f"it lasts {end - start}, from {begin}")

    def leads(self, begin, end):
        """The drive in the file leads where the shell plans it."""
        plan = json.loads(self.root.run("route", "plan", "--from", begin, "--to", end, "--json").stdout)["points"]
        points = self.root.read("route")["points"]
        for at in (0, -1):
            far = max(abs(float(points[at]["lat"]) - plan[at]["latitude"]),
                      abs(float(points[at]["lng"]) - plan[at]["longitude"]))
            check(far < 2e-6, f"it leads to {points[at]}, the plan to {plan[at]}")

    # The window

    def see(self, *wanted):
        wanted, seen = " ".join(wanted), [""]

        def is_seen():
            seen[0] = " ".join(self.window.shown())
            return seen[0].startswith(wanted)
        self.until(is_seen, lambda: f"the window shows '{seen[0]}', not '{wanted}'")

    def says(self, label, *wanted):
        text = self.window.do("say " + label)
        check(text == " ".join(wanted), f"{label} says '{text}'")

    def reads(self, name, property, wanted):
        """At once, without waiting for it."""
        value = self.window.do(f"value {name} {property}")
        check(value == wanted, f"{property} of {name} is {value}")

    def metres(self, wanted):
        seen = lambda: int(self.window.do("metres"))
        self.until(lambda: abs(seen() - int(wanted)) < 20, lambda: f"the map shows {seen()} m")

    def zooms(self, *touches):
        for touch in touches:
            before = self.window.do("metres")
            answer = self.window.do(touch.replace("_", " "))
            check(self.window.do("rest").startswith("done"), "the map does not come to rest")
            check(self.window.do("metres") != before, f"{touch} does not zoom: {answer}")

    # Both

    def said(self):
        """The shell's status line."""
        return self.root.run("status").stdout.split("\n")[0][10:]

    def same(self, *wanted):
        pair = ["", ""]

        def is_same():
            pair[:] = self.said(), self.window.shown()[2].strip()
            return pair[0] == pair[1]
        self.until(is_same, lambda: f"the shell says '{pair[0]}', the window '{pair[1]}'")
        check(pair[0].startswith(" ".join(wanted)), f"both say '{pair[0]}'")

    def plans(self, begin, end):
        """The window says of the chosen drive what the shell says when it plans it."""
        plan = self.root.run("route", "plan", "--from", begin, "--to", end).stdout.split("\n")[0]
        said = self.window.shown()[2].strip()
        check(plan.rsplit(", ", 1)[0] == said.split(";")[0], f"the shell plans '{plan}', the window '{said}'")

    # The shell

    def shell(self, *words):
        if words[0] == "drive":
            words = [*DRIVE[:7], words[1], "--end", words[2]] if words[1:] else DRIVE
        self.result = self.root.run(*words)
        return self.result.returncode == 0, self.result.stderr

    def warns(self, count, text):
        found = self.result.stderr.count(text)
        check(found == int(count), f"{found} times '{text}' in '{self.result.stderr}'")

    def answers(self):
        """The last command answered as status does."""
        line = self.result.stdout.split("\n")[0][10:]
        check(line == self.said(), f"it answered '{line}', status '{self.said()}'")

    def touch(self, *words):
        answer = self.window.do(" ".join(words))
        return answer.startswith("done"), answer

    def tell(self, line):
        word, *rest = shlex.split(line)
        name = word.rstrip("!?")
        if name not in ("shell", "window"):
            return getattr(self, name)(*rest)
        is_done, answer = (self.shell if name == "shell" else self.touch)(*rest)
        check(word.endswith("?") or is_done == (not word.endswith("!")), f"'{line}' ended with '{answer}'")
