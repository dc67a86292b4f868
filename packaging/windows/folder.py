#!/usr/bin/env python3
"""folder.py FOLDER BUILT: completes the folder of programs for Windows with what they need of Qt, of libcsv and of the compiler;
BUILT has what packaging/windows/libraries.sh and qt.sh left.

The libraries are those that the programs and the plugins import, and theirs in turn; what none of the places has is the
system's own. The licences go to the folder Licences.
"""
import pathlib
import re
import shutil
import subprocess
import sys

TRIPLE = "x86_64-w64-mingw32"
# What the programs use of the plugins: the desktop, painting without one.
PLUGINS = ["platforms/qwindows.dll", "platforms/qoffscreen.dll"]
HERE = pathlib.Path(__file__).resolve().parent
# Debian's notices name every holder and licence of what a library consists of.
NOTICES = {"qt6-base": "libqt6core6", "gcc-mingw-w64": "gcc-mingw-w64-base", "mingw-w64": "mingw-w64-common",
           "libcsv": "libcsv-dev", "nlohmann-json3": "nlohmann-json3-dev", "simdjson": "libsimdjson-dev",
           "xxhash": "libxxhash-dev"}


def imports(file):
    listing = subprocess.run([f"{TRIPLE}-objdump", "-p", file], check=True, capture_output=True, text=True).stdout
    return re.findall(r"DLL Name: (\S+)", listing)


def library_places(built):
    runtime = subprocess.run([f"{TRIPLE}-gcc-posix", "-print-file-name=libgcc_s_seh-1.dll"], check=True,
                             capture_output=True, text=True).stdout.strip()
    return [built / "qt/bin", built / "libraries/bin", pathlib.Path(runtime).resolve().parent, pathlib.Path(f"/usr/{TRIPLE}/lib")]


def add_libraries(folder, places):
    """Copies whatever is imported, until nothing is missing that one of the places has."""
    waiting = [*folder.glob("*.exe"), *folder.rglob("*.dll")]
    while waiting:
        for name in imports(waiting.pop()):
            found = next((place / name for place in places if (place / name).exists()), None)
            if found and not (folder / name).exists():
                shutil.copy(found, folder / name)
                subprocess.run([f"{TRIPLE}-strip", "--strip-unneeded", folder / name], check=True)
                waiting.append(folder / name)


def add_notices(folder):
    licences = folder / "Licences"
    licences.mkdir(exist_ok=True)
    for name, package in NOTICES.items():
        shutil.copy(f"/usr/share/doc/{package}/copyright", licences / f"{name}.txt")
    for name in ("LGPL-3", "GPL-3", "GPL-2", "LGPL-2.1", "Apache-2.0"):
        shutil.copy(f"/usr/share/common-licenses/{name}", licences / f"{name}.txt")
    for name in ("copyright", "LICENSE"):
        if (folder / name).exists():
            (folder / name).rename(licences / ("tarnvik.txt" if name == "copyright" else "tarnvik-licence.txt"))
    shutil.copy(HERE / "licences.txt", licences / "README.txt")


def main():
    folder, built = map(pathlib.Path, sys.argv[1:3])
    for plugin in PLUGINS:
        (folder / "plugins" / plugin).parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(built / "qt/plugins" / plugin, folder / "plugins" / plugin)
    shutil.copy(HERE / "qt.conf", folder / "qt.conf")
    add_libraries(folder, library_places(built))
    add_notices(folder)


if __name__ == "__main__":
    main()
