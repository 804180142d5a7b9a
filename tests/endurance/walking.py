"""What commands and touches do to the files, and a random walk of both over one root."""

import re
import statistics
import time

from programs import SEED, Window, check

DRIVE = ["route", "on", "--from", "57.70,11.97", "--to", "57.71,11.96", "--start", "now", "--end", "+30m"]


def texts(place):
    latitude, longitude = place.split(",")
    return {"latitude": f"{float(latitude):f}", "longitude": f"{float(longitude):f}"}


def first_chosen(state):
    first = state["favorites"][0]
    return {"enable": "1", "latitude": first["latitude"], "longitude": first["longitude"]}


def after(state, words):
    """What the files hold when a command is done, of those that it may change; of a drive some entries."""
    location, favorites = dict(state["location"] or {}), list(state["favorites"] or [])
    ticks = dict(state["whitelist"] or {})
    match words:
        case ["favorites", "add", name, place]:
            return {"favorites": favorites + [{"name": name, **texts(place)}]}
        case ["favorites", "remove", "1"]:
            return {"favorites": favorites[1:]}
        case ["whitelist", "toggle", name]:
            return {"whitelist": {**ticks, name: not ticks.get(name, False)}}
        case ["fixed", "on", place]:
            return {"master": {"mode": "1"}, "location": {**location, "enable": "1", **texts(place)}}
        case ["fixed", "off"]:
            return {"location": {**location, "enable": "0"}}
        case ["fixed", "drift", "on", "--speed", speed]:
            return {"location": {**location, "a": "1", "s": f"{float(speed):f}"}}
        case ["mode", mode]:
            return {"master": {"mode": "1" if mode == "fixed" else "0"}}
        case ["route", "on", *_]:
            return {"master": {"mode": "0"}, "route": {"enable": "1"}}
        case ["route", "off"]:
            return {"route": {"enable": "0"}} if state["route"] else {}
        case ["favorites", "choose", "1"]:
            return {"master": {"mode": "1"}, "location": first_chosen(state)}
        case ["fixed", "move", place]:
            return {"location": texts(place)}
    return {}


def random_command(chance, number):
    place = f"{chance.randrange(-80, 80)},{chance.randrange(-170, 170)}"
    return chance.choice([
        ["favorites", "add", f"place {number}", place], ["favorites", "remove", "1"],
        ["whitelist", "toggle", f"app{chance.randrange(9)}"], ["fixed", "on", place], ["fixed", "off"],
        ["fixed", "drift", "on", "--speed", f"0.{chance.randrange(1, 9)}"]])


def touched(state, touch, screen, switch):
    """Some of that for a touch on a screen, whose switch then shows `switch`."""
    match touch.split(" ", 1):
        case ["enable"]:
            return {"location" if screen == "fixed" else "route": {"enable": switch}}
        case ["drift"]:
            return {"location": {"a": switch}}
        case ["exchange"]:
            return {"master": {"mode": "1" if screen == "route" else "0"}}
        case ["find", place]:
            return {"location": texts(place)}
        case ["choose"]:
            return {"location": first_chosen(state)}
        case ["remove"]:
            return {"favorites": state["favorites"][1:]}
    return {}


def random_touch(chance, number, is_modal):
    if is_modal:
        return chance.choice(["choose", "remove", "close", "close"])
    place = f"{chance.randrange(-80, 80)},{chance.randrange(-170, 170)}"
    return chance.choice(["enable", "enable", "enable", "drift", "exchange", "exchange", "find " + place,
                          "favorites", "info"])


def kind(words):
    """What a status line says, without what only one of the two programs knows."""
    own = ("Drive:", "No roads", "Touch again", "Nothing found")
    return "Off" if words.startswith(own) else re.match(r"On at|[A-Za-z ]*", words)[0].strip()


def follow(root, window):
    """Seconds until the window shows what the files say; none while a list is open."""
    begin, said = time.monotonic(), root.run("status").stdout.split("\n")[0][10:]
    state = root.state()
    mode = "fixed" if state["master"]["mode"] == "1" else "route"
    enable = (state["location" if mode == "fixed" else "route"] or {}).get("enable", "0")
    while True:
        screen, switch, words = window.shown()
        seconds = time.monotonic() - begin
        if screen == "modal":
            return None
        if (screen, switch, kind(words)) == (mode, enable, kind(said)):
            return seconds
        check(seconds < 5, f"the files say {mode} {enable} {said}, the window {screen} {switch} {words}")


def follow_list(root, window):
    """Who touches a row means what stands there; so the walk waits until that is what the file says."""
    begin = time.monotonic()
    while window.do("rows") != str(len(root.read("favorites"))):
        check(time.monotonic() - begin < 5, "the list does not follow its file")


def walk(count, chance, root):
    for words in (["favorites", "add", "first", "3,4"], ["whitelist", "toggle", "app1"], ["fixed", "on", "1,2"]):
        check(root.run(*words).returncode == 0, f"{words} failed")
    window, done, waits = Window(root), 0, []
    for number in range(count):
        before = root.state()
        if chance.random() < 0.5:
            place = f"{chance.randrange(-80, 80)},{chance.randrange(-170, 170)}"
            step = chance.choice([
                random_command(chance, number), ["mode", "fixed"], ["mode", "route"], DRIVE, DRIVE, ["route", "off"],
                ["favorites", "choose", "1"], ["fixed", "move", place], ["fixed", "on", place]])
            is_done = root.run(*step).returncode == 0
            wanted = after(before, step) if is_done else {}
        else:
            step = random_touch(chance, number, window.shown()[0] == "modal")
            if step in ("choose", "remove") and window.do("rows") != "0":
                follow_list(root, window)
            answer = window.do(step).split(" ")
            check(answer != [""], f"the window ended at step {number}, {step}")
            is_done = answer[0] == "done"
            wanted = touched(before, step, answer[1], answer[-1]) if is_done else {}
        now, done = root.state(), done + is_done
        where = f"step {number}, {step}"
        check(not root.are_both_on(), f"{where}: both are on")
        for name, value in now.items():
            whole = wanted.get(name)
            if isinstance(whole, dict):
                check(value and whole.items() <= value.items(), f"{where}: {name} is {value}, not {whole}")
            elif name != "master" or "route" not in wanted:
                check(value == (before[name] if whole is None else whole), f"{where}: {name} is {value}")
        if chance.random() < 0.3:
            waits.append(follow(root, window))
    window.end()
    waits = sorted(seconds for seconds in waits if seconds is not None)
    print(f"{count} steps with seed {SEED}, {done} done, the others refused; the window followed within "
          f"{1000 * statistics.median(waits):.0f} ms, at most {1000 * waits[-1]:.0f}")
