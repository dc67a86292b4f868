#!/usr/bin/env python3
"""same_report.py TOOL RUNNER WINDOWS_TOOL: reports and pictures of the tool for Windows against those of this machine.
same_report.py REPORT.pdf REPORT.pdf: two reports alone.

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
    """Words of a report with page and places in points, from top to bottom."""
    found = []
    pages = 0
    own_line = None
    for left, top, right, text, page in WORD.findall(run(["pdftotext", "-bbox", report, "-"], report.parent)):
        if page:
            pages += 1
        elif top != own_line:
            found.append((text, pages, float(top), float(left), float(right)))
            own_line = top if text in THEIR_OWN else None
    return sorted(found, key=lambda word: (word[1], round(word[2], 1), round(word[3], 1)))


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


def compare_reports(here, there):
    """How many words they have, and how far the farthest two of them stand from each other, in points."""
    name, (words_here, words_there) = here.name, map(words, (here, there))
    compare(f"words of {name}", [word[0] for word in words_here], [word[0] for word in words_there])
    farthest = max(abs(one - other) for word, twin in zip(words_here, words_there) for one, other in zip(word[1:], twin[1:]))
    if farthest > 0.005:
        sys.exit(f"same_report.py: a word of {name} stands {farthest:.3f} points away")
    compare(f"faces of {name}", faces_and_form(here), faces_and_form(there))
    return len(words_here), farthest


def main():
    if len(sys.argv) == 3:
        count, farthest = compare_reports(*(pathlib.Path(argument).resolve() for argument in sys.argv[1:]))
        print(f"{count} words in the same places (to {farthest:.2f} points) and faces")
    else:
        compare_tools()


def compare_tools():
    tool, *other = [str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:4]]
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        for side, start in (("here", [tool]), ("there", other)):
            (folder / side).mkdir()
            for project in sorted(EXAMPLES.glob("*.tnvik")):
                (folder / side / project.name).write_bytes(project.read_bytes())
                run(start + ["--report", f"{project.stem}.pdf", project.name], folder / side, (0, 1, 3))
            run(start + ["--pictures", "pictures"], folder / side)
        reports = sorted((folder / "here").glob("*.pdf"))
        results = [compare_reports(report, folder / "there" / report.name) for report in reports]
        pictures = {side: {path.relative_to(folder / side).as_posix(): path.read_bytes() for path in (folder / side).rglob("*.svg")}
                    for side in ("here", "there")}
        compare("names of pictures", sorted(pictures["here"]), sorted(pictures["there"]))
        for picture, content in pictures["here"].items():
            compare(picture, [content], [pictures["there"][picture]])
        print(f"{len(reports)} reports with {sum(count for count, _ in results)} words in the same places "
              f"(to {max(farthest for _, farthest in results):.2f} points) and faces, {len(pictures['here'])} pictures the same")


if __name__ == "__main__":
    main()
