#!/usr/bin/env python3
"""same_results.py TOOL RUNNER WINDOWS_TOOL [N] [SEED]: the headless tool for Windows against that of this machine.

N random batch lines (20,000 without) with edge values among them, in one thread and in three, a table, and a project that is saved
in a folder with letters of Norwegian and opened on the other side: what both write has to be the same, byte for byte. RUNNER
starts a program for Windows (packaging/windows/wine.sh). Exit status 1 where something differs, or where the program has not
run: a start that fails writes nothing, and two nothings are equal.
"""
import json
import pathlib
import random
import subprocess
import sys
import tempfile
import time

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "reference"))
sys.dont_write_bytecode = True
import inputs  # noqa: E402


class Failure(Exception):
    pass


def run(command, text="", folder=None):
    done = subprocess.run(command, input=text.encode(), capture_output=True, cwd=folder, timeout=500, check=False)
    return done.returncode, done.stdout, done.stderr.decode(errors="replace")


def both(here, there, arguments, text="", lines=None):
    """The same call on both sides; what it printed."""
    status, out, err = run(here + arguments, text)
    began = time.monotonic()
    other_status, other_out, other_err = run(there + arguments, text)
    seconds = time.monotonic() - began
    name = " ".join(arguments)
    written = out.count(b"\n")
    if not out or (lines and written != lines):
        raise Failure(f"{name}: {written} lines here: {err[:500]}")
    if (status, err) != (other_status, other_err):
        raise Failure(f"{name}: status {status} here, {other_status} there: {err[:300]!r}, {other_err[:300]!r}")
    if out != other_out:
        differing = sum(a != b for a, b in zip(out.splitlines(), other_out.splitlines()))
        raise Failure(f"{name}: {len(out)} bytes here, {len(other_out)} there, {differing} lines differ")
    print(f"{name}: the same {len(out)} bytes, status {status}, {seconds:.1f} s")
    return out


def project_goes_over(here, there, folder):
    (folder / "bjørk").mkdir()
    arguments = ["--set", "P=21.5", "--set", "Prosjekt=Høyde på ås", "--save"]
    for tool, name in ((here, "nå.tnvik"), (there, "der.tnvik")):
        status, _, err = run(tool + arguments + [f"bjørk/{name}"], folder=folder)
        if status not in (0, 1):
            raise Failure(f"saving {name}: status {status}: {err}")
    saved = (folder / "bjørk/nå.tnvik").read_bytes()
    if not saved or saved != (folder / "bjørk/der.tnvik").read_bytes():
        raise Failure("the saved projects differ")
    results = [run(tool + ["--json", f"bjørk/{name}"], folder=folder) for tool, name in ((here, "der.tnvik"), (there, "nå.tnvik"))]
    if results[0][0] not in (0, 1) or json.loads(results[0][1]) != json.loads(results[1][1].replace("nå.tnvik".encode(), b"der.tnvik")):
        raise Failure("a project of one side is not the same on the other")
    print(f"a project with {len(saved)} bytes goes over")


def main():
    tool, *other = [str(pathlib.Path(argument).resolve()) for argument in sys.argv[1:4]]
    here, there = [tool], other
    count = int(sys.argv[4]) if len(sys.argv) > 4 else 20000
    rng = random.Random(int(sys.argv[5]) if len(sys.argv) > 5 else 1)
    text = "".join(json.dumps(line, ensure_ascii=False) + "\n" for line in [{}] + [inputs.line(rng, 0.25) for _ in range(count - 1)])
    try:
        for jobs in ("1", "3"):
            both(here, there, ["--batch", "--json", "--jobs", jobs], text, count)
        both(here, there, ["--batch"], "Id;P;alp\nÅ1;12,5;30\nÅ2;8;45\nÅ3;x;0\n", 4)
        both(here, there, ["--list", "bolts"])
        with tempfile.TemporaryDirectory() as folder:
            project_goes_over(here, there, pathlib.Path(folder))
    except Failure as failure:
        sys.exit(f"{sys.argv[0]}: {failure}")


if __name__ == "__main__":
    main()
