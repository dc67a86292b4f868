#!/usr/bin/env python3
"""check_includes.py: checks that the folders include one way, and that the core includes no toolkit.

Prints every include that breaks a rule; exit status 1 when there is one.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# The folders that the files of a folder may include.
ALLOWED = {
    "calc": {"calc"},
    "data": {"calc", "data"},
    "spacing": {"calc", "spacing"},
    "report": {"calc", "data", "spacing", "report"},
    "detail": {"calc", "data", "spacing", "report", "detail"},
    "check": {"calc", "data", "spacing", "report", "detail", "check"},
    "frontend": {"calc", "data", "spacing", "report", "detail", "frontend"},
    "app": {"calc", "data", "spacing", "report", "detail", "check", "frontend"},
}
# The files that look up: the pass calls the spacing stage, the painter implements what the headless tool asks for.
ALSO = {
    "calc/Main_beregn.cpp": {"spacing"},
    "frontend/QtRendering.h": {"check"},  # the painter that the headless tool is given
}

# Folders that get by with the standard library and, in data, the calls of the system that saving needs.
CORE = {"calc", "data", "spacing", "report", "detail"}
NO_QT = CORE | {"check"}
SYSTEM = {"fcntl.h", "sys/stat.h", "sys/types.h", "unistd.h"}

INCLUDE = re.compile(r'^\s*#\s*include\s*([<"])([^>"]+)[>"]')


def main():
    wrong = []
    files = 0
    for folder, allowed in ALLOWED.items():
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".cpp", ".h"):
                continue
            files += 1
            name = path.relative_to(ROOT).as_posix()
            for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                if not match:
                    continue
                own, included = match.group(1) == '"', match.group(2)
                if own:
                    to = included.split("/")[0]
                    broken = to in ALLOWED and to not in allowed | ALSO.get(name, set())
                    broken = broken or ("/" not in included and folder in CORE)
                else:
                    standard = re.fullmatch(r"[a-z0-9_]+", included)
                    broken = (folder in CORE and not standard and not (folder == "data" and included in SYSTEM)) or (
                        folder in NO_QT and re.match(r"Q[A-Z]|Qt", included))
                if broken:
                    wrong.append(f"{name}:{number}: {line.strip()}")
    for line in wrong:
        print(line)
    print(f"includes: {files} files, {len(wrong)} against the rules")
    return 1 if wrong or not files else 0


if __name__ == "__main__":
    sys.exit(main())
