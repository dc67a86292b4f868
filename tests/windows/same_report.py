#!/usr/bin/env python3
"""same_report.py TOOL RUNNER WINDOWS_TOOL: reports and pictures of the tool for Windows against those of this machine.

Of every project of examples/ whose check is not stopped: the same words in the same places of the same pages, in the same faces,
but for date, time and the file's path; of the pictures the SVG files byte for byte. Needs poppler-utils.
Exit status 1 where something differs.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

EXAMPLES = pathlib.Path(__file__).resolve().parents[2] / "examples"
WORD = re.compile(r'<word xMin="([\d.]+)" yMin="([\d.]+)" xMax="([\d.]+)" yMax="[\d.]+">(.*?)</word>|<(page) ')
THEIR_OWN = ("Date:", "Time:", "File:", "Dato:", "Tid:", "Fil:")  # what follows on the line is of the machine, or of the moment


def run(command, folder, statuses=(0,)):
    done = subprocess.run(command, capture_output=True, cwd=folder, timeout=300, check=False, text=True)
    if done.returncode not in statuses:
        sys.exit(f"same_report.py: {command}: status {done.returncode}: {done.stderr[:500]}")
    return done.stdout


def words(report):
    """Words of a report with their places in points; the beginnings of pages are told like words."""
    found = []
    own_line = None
    for left, top, right, text, page in WORD.findall(run(["pdftotext", "-bbox", report, "-"], report.parent)):
        if page or top != own_line:
            found.append((text or page, *(float(place or 0) for place in (left, right, top))))
            own_line = top if text in THEIR_OWN else None
    return found


def faces_and_form(report):
    """The faces; title, pages, their size and what else a file says of itself."""
    faces = [line.split()[0] for line in run(["pdffonts", report], report.parent).splitlines()[2:]]
    form = [line for line in run(["pdfinfo", report], report.parent).splitlines() if not line.startswith(("CreationDate:", "File size:"))]
    return faces + form


def compare(what, here, there):
    if not here:
        sys.exit(f"same_report.py: {what}: nothing here")
    if here != there:
        first = next(((a, b) for a, b in zip(here, there) if a != b), (len(here), len(there)))
        sys.exit(f"same_report.py: {what} differ: {first[0]} here, {first[1]} there")


def compare_words(name, here, there):
    compare(f"words of {name}", [word[0] for word in here], [word[0] for word in there])
    farthest = max(abs(one - other) for word, twin in zip(here, there) for one, other in zip(word[1:], twin[1:]))
    if farthest > 0.005:
        sys.exit(f"same_report.py: a word of {name} stands {farthest:.3f} points away")
    return farthest


def main():
    tool, *other = [str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:4]]
    count, farthest = 0, []
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for side, start in (("here", [tool]), ("there", other)):
            (folder / side).mkdir()
            for project in sorted(EXAMPLES.glob("*.tnvik")):
                (folder / side / project.name).write_bytes(project.read_bytes())
                run(start + ["--report", f"{project.stem}.pdf", project.name], folder / side, (0, 1, 3))
            run(start + ["--pictures", "pictures"], folder / side)
        reports = sorted((folder / "here").glob("*.pdf"))
        for report in reports:
            farthest.append(compare_words(report.name, words(report), words(folder / "there" / report.name)))
            compare(f"faces of {report.name}", faces_and_form(report), faces_and_form(folder / "there" / report.name))
            count += len(words(report))
        pictures = {side: {path.relative_to(folder / side).as_posix(): path.read_bytes() for path in (folder / side).rglob("*.svg")}
                    for side in ("here", "there")}
        compare("names of pictures", sorted(pictures["here"]), sorted(pictures["there"]))
        for picture, content in pictures["here"].items():
            compare(picture, [content], [pictures["there"][picture]])
        print(f"{len(reports)} reports with {count} words in the same places (to {max(farthest):.2f} points) and faces, "
              f"{len(pictures['here'])} pictures the same")


if __name__ == "__main__":
    main()
