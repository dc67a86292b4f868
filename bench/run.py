#!/usr/bin/env python3
"""run.py: what the programs take, measured on the real ones: processes with files and pipes, not calls within one.

    bench/run.py                        the programs of build/release/bin
    bench/run.py --programs DIR         those of another folder
    bench/run.py --against DIR          beside those of DIR, one run of each in turn
    bench/run.py --runs 21 --lines 100000

Prints the machine and a table: the least, the median and the worst wall time of the runs, the least processor time, and
the most memory that a run has held (with the Debian package time). The runs of all rows are taken in turn. On a machine
that others use too the least time is what compares; a wall time is an upper bound. Below it, what more threads bring.
The benchmarks of one process (build/bench/bin/tarnvik-bench*) run at the end where they are built, as the README tells.
"""
import argparse
import datetime
import os
import pathlib
import platform
import statistics
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parent.parent
THREE = ["--batch", "--fields", "uf,Tverr_kontroll,Rd_bolt"]
HOLDS_OR_NOT = (0, 1, 3)  # all calculated, some not holding or stopped
PROJECTS = 500
TIME = "/usr/bin/time"


def line(i):
    """Loads, angles, bolts and connection types in turn; two of three with connectors."""
    kind = 1 + i % 5
    fasteners = '"Kun_bolt":true,"Med_bulldog":false' if i % 3 == 0 else '"Kun_bolt":false,"Med_bulldog":true'
    return (f'{{"P":{i % 200 - 100}.5,"Con_type":{kind},"alp":{15 + i % 70 if kind < 4 else 90},'
            f'"Bolt_index":{i % 8},"Ant_index":{i % 4},{fasteners}}}\n')


class Measured:
    """Times of one row, wall and processor seconds, and its memory in MB."""

    def __init__(self):
        self.wall, self.cpu, self.memory = [], [], None

    def add(self, wall, usage):
        self.wall.append(wall)
        self.cpu.append(usage.ru_utime + usage.ru_stime)


def run(command, lines=None, piped=False):
    """One run with its output thrown away: wall time and what the process used; None where it could not do it."""
    feeder = subprocess.Popen(["cat", lines], stdout=subprocess.PIPE) if piped else None
    stdin = feeder.stdout if piped else open(lines or os.devnull, "rb")
    begun = time.perf_counter()
    process = subprocess.Popen(command, stdin=stdin, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    stdin.close()
    _, status, usage = os.wait4(process.pid, 0)
    wall = time.perf_counter() - begun
    process.returncode = os.waitstatus_to_exitcode(status)
    if feeder:
        feeder.wait()
    return (wall, usage) if process.returncode in HOLDS_OR_NOT else None


def run_apart(command, parts):
    """As many programs at once as there are parts of the lines, one each: what the cores give at most. Wall time."""
    begun = time.perf_counter()
    processes = []
    for part in parts:
        with open(part, "rb") as stdin:
            processes.append(subprocess.Popen(command, stdin=stdin, stdout=subprocess.DEVNULL,
                                              stderr=subprocess.DEVNULL))
    done = [process.wait() in HOLDS_OR_NOT for process in processes]
    return time.perf_counter() - begun if all(done) else None


def memory(command, lines, folder):
    """The most memory of a run in MB. What the system tells of a process includes the one that started it, here Python,
    which is larger: one that is small stands in between."""
    if not pathlib.Path(TIME).exists():
        return None
    told = folder / "memory"
    with open(lines or os.devnull, "rb") as stdin:
        subprocess.run([TIME, "-q", "-f", "%M", "-o", told, *command], stdin=stdin, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=False)
    return int(told.read_text().split()[-1]) / 1024


def parts_of(folder, count):
    """The lines of the batches in as many files as there are cores."""
    cores = os.cpu_count()
    files = [folder / f"lines-{i}.jsonl" for i in range(cores)]
    for i, file in enumerate(files):
        file.write_text("".join(line(j) for j in range(i * count // cores, (i + 1) * count // cores)), encoding="ascii")
    return files


def rows(folder, count):
    """What is measured: name, arguments of the tool, lines or None, piped, items in a run or 0."""
    lines = str(folder / "lines.jsonl")
    pathlib.Path(lines).write_text("".join(line(i) for i in range(count)), encoding="ascii")
    projects = [str(folder / f"{i % 10}.tnvik") for i in range(PROJECTS)]
    cores = str(os.cpu_count())
    return [
        ("start: --version", ["--version"], None, False, 0),
        ("start: one check", ["--json"], None, False, 0),
        ("start: one check with its report as PDF", ["--json", "--report", str(folder / "report.pdf")], None, False, 0),
        ("batch of three fields, file", THREE, lines, False, count),
        ("batch of three fields, pipe", THREE, lines, True, count),
        (f"batch of three fields, file, --jobs {cores}", [*THREE, "--jobs", cores], lines, False, count),
        (f"batch of three fields, pipe, --jobs {cores}", [*THREE, "--jobs", cores], lines, True, count),
        ("batch of all fields, file", ["--batch"], lines, False, count),
        ("batch of all fields and screen, file", ["--batch", "--with", "screen"], lines, False, count),
        (f"{PROJECTS} projects in one call", ["--fields", "uf", *projects], None, False, PROJECTS),
    ]


def make_projects(tool, folder):
    for i in range(10):
        subprocess.run([tool, "--set", f"P={i + 1}", "--save", folder / f"{i}.tnvik"], stdout=subprocess.DEVNULL, check=False)


def per_item(seconds, items):
    return f"{seconds / items * 1e6:.2f} us" if items else f"{seconds * 1e3:.2f} ms"


def machine():
    cpu = next((l.split(":")[1].strip() for l in pathlib.Path("/proc/cpuinfo").read_text().splitlines()
                if l.startswith("model name")), platform.machine())
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    commit = subprocess.run(["git", "-C", ROOT, "describe", "--always", "--dirty"], capture_output=True, text=True,
                            check=False).stdout.strip()
    return (f"{datetime.date.today()}, {cpu}, {os.cpu_count()} cores, {memory:.0f} GiB, {platform.release()}, "
            f"load {os.getloadavg()[0]:.1f}, commit {commit}")


def print_table(programs, measured, wanted):
    print(machine())
    print()
    print("| what | programs | wall: least | median | worst | processor: least | memory |")
    print("| --- | --- | --- | --- | --- | --- | --- |")
    for name, _, _, _, items in wanted:
        for program in programs:
            one = measured[name, program]
            if one.wall:
                times = [min(one.wall), statistics.median(one.wall), max(one.wall), min(one.cpu)]
                held = f"{one.memory:.1f} MB" if one.memory else ""
                print(f"| {name} | {program} | {' | '.join(per_item(value, items) for value in times)} | {held} |")
            else:
                print(f"| {name} | {program} | cannot do it | | | | |")


def print_threads(programs, measured, wanted, apart):
    """A row with --jobs beside the same one without, and beside programs apart, with nothing in common."""
    for name, arguments, _, _, _ in wanted:
        if "--jobs" in arguments:
            for program in programs:
                alone, more = measured[name.split(", --jobs")[0], program], measured[name, program]
                if alone.wall and more.wall:
                    print(f"{name}, {program}: {min(alone.wall) / min(more.wall):.2f} x as fast, with "
                          f"{min(more.cpu) / min(alone.cpu):.2f} x the processor time")
    for program, walls in apart.items():
        alone = measured["batch of three fields, file", program]
        if alone.wall and walls:
            print(f"the machine itself, a program of one thread for each core with its part of the lines, {program}: "
                  f"{min(alone.wall) / min(walls):.2f} x as fast")


def run_benchmarks():
    for bench in sorted((ROOT / "build/bench/bin").glob("tarnvik-bench*")):
        arguments = [] if bench.name.endswith("window") else ["--benchmark_repetitions=5",
                                                              "--benchmark_report_aggregates_only=true"]
        print(f"\n{bench.name}", flush=True)
        if subprocess.run([bench, *arguments], check=False).returncode != 0:
            sys.exit(f"{bench.name} failed")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--programs", default=ROOT / "build/release/bin", type=pathlib.Path)
    parser.add_argument("--against", type=pathlib.Path)
    parser.add_argument("--runs", type=int, default=11)
    parser.add_argument("--lines", type=int, default=100_000)
    options = parser.parse_args()
    programs = [options.programs] + ([options.against] if options.against else [])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        make_projects(options.programs / "tarnvik-check", folder)
        wanted = rows(folder, options.lines)
        measured = {(row[0], program): Measured() for row in wanted for program in programs}
        parts = parts_of(folder, options.lines)
        apart = {program: [] for program in programs}
        for _ in range(options.runs):
            for program in programs:
                wall = run_apart([str(program / "tarnvik-check"), *THREE], parts)
                if wall:
                    apart[program].append(wall)
            for what, arguments, lines, piped, _ in wanted:
                for program in programs:
                    once = run([str(program / "tarnvik-check"), *arguments], lines, piped)
                    if once:
                        measured[what, program].add(*once)
        for what, arguments, lines, _, _ in wanted:
            for program in programs:
                measured[what, program].memory = memory([str(program / "tarnvik-check"), *arguments], lines, folder)
        print_table(programs, measured, wanted)
        print()
        print_threads(programs, measured, wanted, apart)
    run_benchmarks()


if __name__ == "__main__":
    main()
