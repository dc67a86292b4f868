#!/usr/bin/env python3
"""random_inputs.py TOOL [N] [SEED]: N random inputs through one process of TOOL --batch --json, in pieces, as long as it takes.

Every line is to get one result with a known end and with figures that are numbers; one line in 400 is compared with
the reference calculation, bit for bit; after every piece the resident memory of the process is read, and has to stay as it
is from the tenth part on, where the run is long enough to tell. Exit status 0 when all holds.
"""
import collections
import json
import pathlib
import random
import re
import subprocess
import sys
import threading
import time

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "reference"))
import inputs as I
import reference as R

PIECE = 20000
SAMPLE = 400                                # one line in so many
POOL = 5000                                 # of each group of inputs; a line draws from all of them
FIELDS = ("kmod", "Rd_bolt", "Rd_for", "uf", "he", "F90_Rd", "Tverr_kontroll", "Sum_a", "Sum_b", "Sum_ca", "Sum_cb")
END = re.compile(rb'"end":"([^"]+)"')
NO_NUMBER = re.compile(rb"\b-?(nan|inf|infinity)\b", re.IGNORECASE)
GROWTH = 4096                               # kB that the memory may move by after the first tenth


class Lines:
    """Lines of random inputs: every group of inputs from a pool of its own, a force and an angle of their own; one line in
    ten has values at or past an edge in a second step, one in ten a second step of other inputs."""

    def __init__(self, seed):
        self.random = random.Random(seed)
        self.pools = [[json.dumps(group(self.random))[1:-1] for _ in range(POOL)] for group in I.GROUPS[:4]]
        self.edges = [json.dumps(I.edge(self.random, {})) for _ in range(POOL)]
        self.steps = [json.dumps(I.some(self.random)) for _ in range(POOL)]

    def piece(self, count):
        rng = self.random
        drawn = [rng.choices(pool, k=count) for pool in self.pools]
        edges = rng.choices(self.edges, k=count)
        steps = rng.choices(self.steps, k=count)
        lines = []
        for i, groups in enumerate(zip(*drawn)):
            line = "{%s,\"alp\":%.4f,\"P\":%.3f" % (",".join(groups), rng.random() * 90, rng.random() * 400 - 200)
            line += "}"
            if i % 10 == 3:
                line = "[%s,%s]" % (line, edges[i])
            elif i % 10 == 7:
                line = "[%s,%s]" % (line, steps[i])
            lines.append(line)
        return lines


def resident(pid):
    with open("/proc/%d/status" % pid, encoding="ascii") as status:
        return int(re.search(r"VmRSS:\s+(\d+)", status.read()).group(1))


def differs(line, got):
    """What of a result differs from that of the reference calculation."""
    result, state = R.run_line(json.loads(line))
    got = json.loads(got)
    wrong = [name for name in FIELDS if R.bits(R.f32(float(got["state"][name]))) != R.bits(state[name])]
    return wrong + (["end"] if got["end"] != result["end"] else [])


def checked(lines, results, ends, wrong):
    """One piece of results: ends are counted, a sample is compared, what is wrong is kept."""
    for line, result in zip(lines, results):
        end = END.search(result)
        ends[end.group(1).decode() if end else "none"] += 1
        if end is None or NO_NUMBER.search(result):
            wrong.append((line, result))
    sampled = range(0, len(lines), SAMPLE)
    for i in sampled:
        if names := differs(lines[i], results[i]):
            wrong.append((lines[i], names))
    return len(sampled)


def main():
    tool = sys.argv[1]
    total = int(sys.argv[2]) if len(sys.argv) > 2 else 100000
    made = Lines(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    process = subprocess.Popen([tool, "--batch", "--json", "--jobs", "2", "--fields", ",".join(FIELDS)],
                               stdin=subprocess.PIPE, stdout=subprocess.PIPE)
    ends, wrong, memory, done, compared = collections.Counter(), [], [], 0, 0
    begin, told = time.monotonic(), 0
    while done < total and not wrong:
        lines = made.piece(min(PIECE, total - done))
        text = ("\n".join(lines) + "\n").encode()

        def write():
            process.stdin.write(text)
            process.stdin.flush()

        writer = threading.Thread(target=write)
        writer.start()
        results = [process.stdout.readline() for _ in lines]
        writer.join()
        compared += checked(lines, results, ends, wrong)
        done += len(lines)
        memory.append(resident(process.pid))
        if done * 10 // total > told:
            told = done * 10 // total
            print("%d inputs: %.1f MB" % (done, memory[-1] / 1024), flush=True)
    process.stdin.close()
    rest = process.stdout.read()
    status = process.wait()
    settled = memory[len(memory) // 10:]
    grows = len(memory) > 20 and max(settled) - settled[0] > GROWTH
    for line, what in wrong[:5]:
        print("wrong: %s: %s" % (line, what))
    print("%d inputs in %.0f s: %s" % (done, time.monotonic() - begin, ", ".join("%s %d" % kv for kv in sorted(ends.items()))))
    print("%d compared with the reference calculation, %d wrong, exit status %d; memory %.1f to %.1f MB after the first tenth"
          % (compared, len(wrong), status, min(settled) / 1024, max(settled) / 1024))
    return 0 if not wrong and not rest and status in (0, 1, 3) and not grows and done == total else 1


if __name__ == "__main__":
    sys.exit(main())
