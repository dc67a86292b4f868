#!/usr/bin/env python3
"""check_includes.py: checks that the rooms of the program include one way, and that the core includes no toolkit.

A room is a folder named below; a file belongs to the longest of them that holds it. Prints every include that breaks a
rule; exit status 1 when there is one. With --graph it prints the arrows between the rooms instead, each with the number
of its includes.
"""
import collections
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# The rooms, lowest first, and those that each may include beside itself. Nothing named later may stand in a row: that is
# what keeps every arrow pointing down.
ROOMS = {
    "ports": set(),
    "platform": set(),
    "calc": {"ports"},
    "spacing": {"calc"},
    "spacing/sketch": {"calc", "spacing"},
    "calc/pass": {"ports", "calc", "spacing"},
    "data": {"ports", "platform", "calc"},
    "report": {"ports", "calc", "spacing"},
    "detail": {"calc", "spacing", "report"},
    "session": {"ports", "platform", "calc", "calc/pass", "spacing", "data", "report"},
    "sheet": {"ports", "calc", "calc/pass", "spacing", "spacing/sketch", "report", "detail", "session"},
    "check": {"ports", "platform", "calc", "calc/pass", "spacing", "data", "report", "detail", "session", "sheet"},
    "frontend/painting": {"ports", "platform", "calc", "spacing", "spacing/sketch", "data", "report"},
    "frontend/controls": {"calc", "detail", "frontend/painting"},
    "frontend/services": {"ports", "platform", "calc", "spacing/sketch", "session", "frontend/painting"},
    "frontend/dialogs": {"ports", "platform", "calc", "data", "detail", "session", "sheet", "frontend/painting", "frontend/controls"},
    "frontend/main": {"ports", "platform", "calc", "data", "report", "session", "frontend/painting", "frontend/controls",
                      "frontend/dialogs"},
    "app": {"platform", "calc", "data", "session", "check", "frontend/painting", "frontend/controls", "frontend/services", "frontend/main"},
}

# Rooms that get by with the standard library and, in platform, the calls of the system.
CORE = {"ports", "platform", "calc", "calc/pass", "spacing", "spacing/sketch", "data", "report", "detail", "session"}
NO_QT = CORE | {"sheet", "check"}
SYSTEM = {"fcntl.h", "spawn.h", "stdlib.h", "sys/file.h", "sys/socket.h", "sys/stat.h", "sys/wait.h", "sys/xattr.h",
          "unistd.h", "aclapi.h", "io.h", "sddl.h", "shellapi.h", "windows.h"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def room_of(path):
    """The longest room that holds a path of the tree, or nothing."""
    folders = path.split("/")[:-1]
    for length in range(len(folders), 0, -1):
        if "/".join(folders[:length]) in ROOMS:
            return "/".join(folders[:length])
    return None


def rows_point_down():
    seen = set()
    for room, below in ROOMS.items():
        if not below <= seen:
            return False
        seen.add(room)
    return True


def breaks_a_rule(room, own, included):
    if own:
        to = room_of(included)
        return to is None or (to != room and to not in ROOMS[room])
    if room in NO_QT and re.match(r"Q[A-Z]|Qt", included):
        return True
    standard = re.fullmatch(r"[a-z0-9_]+", included)
    return room in CORE and not standard and not (room == "platform" and included in SYSTEM)


def includes():
    """Every include of the program: file, line number, line, room, whether it is quoted, what it names."""
    for top in sorted({room.split("/")[0] for room in ROOMS}):
        for path in sorted((ROOT / top).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            name = path.relative_to(ROOT).as_posix()
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if match:
                    yield name, number, line, room_of(name), match.group(1) == '"', match.group(2)


def main():
    if not rows_point_down():
        print("includes: a room is allowed one that stands after it")
        return 1
    wrong = []
    files = set()
    arrows = collections.Counter()
    for name, number, line, room, own, included in includes():
        files.add(name)
        if breaks_a_rule(room, own, included):
            wrong.append(f"{name}:{number}: {line.strip()}")
        elif own and room_of(included) != room:
            arrows[room, room_of(included)] += 1
    if "--graph" in sys.argv[1:]:
        for (room, to), count in sorted(arrows.items(), key=lambda row: [list(ROOMS).index(r) for r in row[0]]):
            print(f"{room} -> {to}: {count}")
    for line in wrong:
        print(line)
    print(f"includes: {len(files)} files, {len(wrong)} against the rules")
    return 1 if wrong or not files else 0


if __name__ == "__main__":
    sys.exit(main())
