#!/usr/bin/env python3
"""stops.py: stops a save on its way in every manner, and looks at what is left.

    stops.py TOOL fail [few]      every call of every kind of save fails once, with each error that it may have
    stops.py TOOL kill [few]      the process is killed at every call
    stops.py TOOL kills COUNT     the process is killed at so many random times

"few" takes only two kinds of saves, and one error of each call.

The file has to have its former content or the new one, whole, with its rights; a failure has to be told, by one of the
documented faults; what a killed process left has to be gone after the next save. Exit status 1 where one does not hold,
77 where calls cannot be traced.
"""
import concurrent.futures
import os
import pathlib
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import time

from traced import FEW_SCENARIOS, FORMER, HALF, LONG, SCENARIOS, SHORT, SKIPPED, Place, Scenario, can_trace, trace

# Errors that a call may have beside EIO. An interrupted call is made again.
ERRORS = {
    "openat": ["ENOSPC", "EACCES", "EROFS", "EMFILE", "EINTR"],
    "pwrite64": ["ENOSPC", "EDQUOT", "EFBIG", "EINTR"],
    "fsync": ["ENOSPC", "EDQUOT", "EINVAL", "EINTR"],
    "rename": ["ENOSPC", "EACCES", "EPERM", "EBUSY", "EXDEV"],
    "renameat2": ["ENOSPC", "EACCES", "EINVAL", "ENOSYS"],
    "close": ["EDQUOT", "EINTR"],
    "fchmod": ["EPERM"],
    "fchown": ["EPERM"],
    "fsetxattr": ["EPERM", "ENOSPC", "EOPNOTSUPP"],
    "fgetxattr": ["EACCES"],
    "flock": ["ENOLCK", "EOPNOTSUPP", "EINTR"],
    "unlink": ["EACCES"],
    "mkdir": ["ENOSPC", "EACCES"],
}
NEVER_FAIL = {"brk", "mmap", "munmap", "mremap", "getpid", "geteuid", "getrandom", "futex"}
FAULT = re.compile(r"Run-time error (61|75|76): ")


def complain(scenario, what, trouble):
    print(f"stops: {scenario.name}, {what}: {trouble}")
    return 1


def check_failure(place, rights, what, run):
    """After a call that failed: 0, or 1 with what is wrong printed."""
    scenario = place.scenario
    content = place.content()
    told = run.returncode == 1 and FAULT.match(run.stderr)
    if content not in [scenario.former, *scenario.whole]:
        return complain(scenario, what, "a third state")
    if run.returncode == 0 and content != scenario.expected:
        return complain(scenario, what, "a success without the new content")
    if run.returncode != 0 and not told:
        return complain(scenario, what, f"status {run.returncode}, told: {run.stderr!r}")
    if rights is not None and place.rights() != rights:
        return complain(scenario, what, f"other rights: {place.rights()}")
    if scenario.keeps and content == scenario.expected and scenario.former not in place.kept():
        return complain(scenario, what, "the former content was not kept")
    if scenario.mends and content == FORMER and HALF not in place.kept():
        return complain(scenario, what, "what was there before the mending was not kept")
    if place.left_over() and "unlink" not in what and not scenario.mends:
        return complain(scenario, what, f"left over: {place.left_over()}")
    return 0


def check_kill(place, what):
    """After a kill: mended, the file is whole; after the next save nothing is left over."""
    scenario = place.scenario
    mending = place.run(["mend", str(place.target)])
    content = place.content()
    if mending.returncode != 0:
        return complain(scenario, what, f"not mended: {mending.stderr!r}")
    if content not in scenario.whole:
        return complain(scenario, what, "a third state")
    if scenario.keeps and content == scenario.expected and scenario.former not in place.kept():
        return complain(scenario, what, "the former content was not kept")
    if any(kept not in (FORMER, HALF) and not scenario.linked and not scenario.closed for kept in place.kept()):
        return complain(scenario, what, "a copy that is not whole")
    (place.root / "content").write_bytes(SHORT)
    later = place.run(["save", str(place.target), str(place.root / "content"), "drop"])
    if later.returncode != 0 or place.content() != SHORT or place.left_over():
        return complain(scenario, what, f"the next save: {later.stderr!r}, left over: {place.left_over()}")
    return 0


def errors_of(call, kills, few):
    if kills:
        return ["KILL"]
    return ["EIO"] if few else ["EIO", *ERRORS.get(call.name, [])]


def stop_at_each_call(tool, root, scenario, kills, few):
    """All stops of one scenario: how many there were, and how many went wrong."""
    pathlib.Path(root).mkdir()
    place = Place(tool, root, scenario)
    place.set_up()
    rights = place.rights() if scenario.former is not None else None
    calls = [call for call in trace(place) if call.name not in NEVER_FAIL]
    wrong = count = 0
    for call in calls:
        for error in errors_of(call, kills, few):
            how = "signal=KILL" if kills else f"error={error}"
            what = f"{call.name} {call.number}, {error}"
            place.set_up()
            tracer = ["strace", "-o", "/dev/null", "-e", f"trace={call.name}",
                      "-e", f"inject={call.name}:{how}:when={call.number}"]
            run = place.run(tracer=tracer)
            wrong += check_kill(place, what) if kills else check_failure(place, rights, what, run)
            count += 1
    return count, wrong


def at_each_call(tool, kills, few):
    if not can_trace():
        print("stops: no process can be traced here (strace)")
        return SKIPPED
    scenarios = FEW_SCENARIOS if few else SCENARIOS
    count = wrong = 0
    with tempfile.TemporaryDirectory(prefix="tarnvik-stops-") as root:
        os.chmod(root, 0o755)
        with concurrent.futures.ThreadPoolExecutor(max_workers=2 * os.cpu_count()) as pool:
            jobs = []
            for i, scenario in enumerate(scenarios):
                jobs.append(pool.submit(stop_at_each_call, tool, f"{root}/{i}", scenario, kills, few))
            for job in jobs:
                more, bad = job.result()
                count, wrong = count + more, wrong + bad
    print(f"stops: {len(scenarios)} kinds of saves, {count} {'kills' if kills else 'failures'}, {wrong} wrong")
    return 1 if wrong or not count else 0


def kill_at_random(root, tool, number):
    """One kill: whether it left a temporary file, an undo copy, and whether something went wrong."""
    pathlib.Path(root).mkdir()
    place = Place(tool, root, Scenario("killed", FORMER, LONG, linked=number % 2 == 1))
    place.set_up()
    contents = [str(place.root / "one"), str(place.root / "other")]
    pathlib.Path(contents[0]).write_bytes(LONG)
    pathlib.Path(contents[1]).write_bytes(SHORT)
    process = subprocess.Popen([place.tool, "repeat", str(place.target), *contents])
    time.sleep(random.Random(number).uniform(0.001, 0.012))
    process.send_signal(signal.SIGKILL)
    process.wait()
    left = place.left_over()
    place.run(["mend", str(place.target)])
    wrong = 0
    if place.content() not in (FORMER, LONG, SHORT):
        wrong = complain(place.scenario, f"kill {number}", "a third state")
    later = place.run(["save", str(place.target), contents[0], "drop"])
    if later.returncode != 0 or place.content() != LONG or place.left_over():
        wrong = complain(place.scenario, f"kill {number}", f"the next save: {later.stderr!r} {place.left_over()}")
    shutil.rmtree(root)
    return any(name.endswith(".tmp") for name in left), ".a.undo" in left, wrong


def random_kills(tool, count):
    """Two contents are saved in turn, every other time in place."""
    with tempfile.TemporaryDirectory(prefix="tarnvik-kills-") as root:
        with concurrent.futures.ThreadPoolExecutor(max_workers=2 * os.cpu_count()) as pool:
            kills = list(pool.map(lambda number: kill_at_random(f"{root}/{number}", tool, number), range(count)))
    temporary, undo, wrong = (sum(column) for column in zip(*kills))
    print(f"stops: {count} kills, {temporary} left a temporary file, {undo} an undo copy, {wrong} wrong")
    return 1 if wrong else 0


def main():
    tool, what = sys.argv[1:3]
    if what == "kills":
        return random_kills(tool, int(sys.argv[3]))
    return at_each_call(tool, what == "kill", "few" in sys.argv[3:])


if __name__ == "__main__":
    sys.exit(main())
