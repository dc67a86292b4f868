#!/usr/bin/env python3
"""examples.py TOOL: the examples as TOOL makes them, against those of the tree, byte for byte; and the figures of those of
the tree against the reference calculation, bit for bit, and against figures by hand. Exit status 0 when all agree.
"""
import json
import math
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
EXAMPLES = ROOT / "examples"
sys.dont_write_bytecode = True
sys.path.insert(0, str(ROOT / "tests/reference"))
import reference as R


# By hand, from EN 1995-1-1 and the inputs in examples/make.sh. Degrees per radian are rounded in the calculation, and every
# stored value to 32 bits: a hundredth of a per cent is far above both.
def by_hand():
    sin25, cos25 = math.sin(math.radians(25)), math.cos(math.radians(25))
    M20_yield = 0.3 * 800 * 20**2.6                                     # (8.30), M20 of quality 8.8
    along = 0.082 * (1 - 0.01 * 20) * 350                               # (8.32), C24
    across = along / ((1.35 + 0.015 * 20) * sin25**2 + cos25**2)        # (8.31), (8.33)
    two_bolts = 2**0.9 * (120 / (13 * 20)) ** 0.25                      # (8.34), a1 = 6d
    split = 14 * 48 * math.sqrt(163 / (1 - 163 / 223)) / 1000 * 0.8 / 1.3  # (8.4), b4 - d = 60 of h = 223
    mode_g = 0.082 * (1 - 0.01 * 16) * 350 / (1.35 + 0.015 * 16) * 48 * 16  # (8.7g), member 1 across the grain
    connector = 25 * 62**1.5 / 1000                                     # one D62 in C24, its members thick enough
    return [
        ("heel-joint", "My_Rk", M20_yield),
        ("heel-joint", "fh1k", along),
        ("heel-joint", "fh2k", across),
        ("heel-joint", "nef_b", two_bolts),
        ("heel-joint", "F90_Rd", split),
        ("heel-joint", "P_sin", 6 * sin25),
        ("heel-joint", "Tverr_kontroll", 6 * sin25 / split),
        ("tie-to-post", "P_sin", 10.0),
        ("tie-to-post", "Sb5", 7 * 16),
        ("tie-to-post", "Fv_g", mode_g),
        ("collar-beam", "Fv_Rk", connector),
        ("collar-beam", "Rd_for", connector * 2 * 2 * 0.9 / 1.3),       # two connectors in two shear planes
        ("footbridge", "kmod", 0.55),                                   # table 3.1, long term, service class 3
        ("footbridge", "gm", 1.25),                                     # glued laminated timber
        ("footbridge", "Sa5", 7 * 12),
        ("limtre", "P_sin", 25 / 2),                                    # each of the two members takes half
    ]


def read(name):
    return (EXAMPLES / name).read_text(encoding="utf-8")


def remade(tool):
    """What differs between the files of the tree and those that the tool makes."""
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([EXAMPLES / "make.sh", tool, folder], check=True)
        made = {path.name: path.read_bytes() for path in pathlib.Path(folder).iterdir()}
    inputs = {"README.md", "make.sh", "force.jsonl", "steps.jsonl"}
    kept = {path.name: path.read_bytes() for path in EXAMPLES.iterdir() if path.name not in inputs}
    return [f"{name}: not as the tool makes it" for name in sorted(made.keys() | kept.keys()) if made.get(name) != kept.get(name)]


def same(name, wanted, got):
    if name in R.ALL_FLOATS:
        return R.bits(R.f32(float(got))) == R.bits(wanted)
    return wanted == got.ljust(R.FIXED[name]) if name in R.FIXED else wanted == got


def against_reference(what, kept, steps, names):
    """What of a kept result differs from the reference's, which starts from the same inputs."""
    result, state = R.run_line(steps)
    wrong = [f"{what}: {name} {kept['state'][name]}, by the reference {state[name]}" for name in names
             if not same(name, state[name], kept["state"][name])]
    if kept["end"] != result["end"] or (kept.get("fault") or {}).get("number") != (result["fault"] or {}).get("number"):
        wrong.append(f"{what}: end {kept['end']}, by the reference {result['end']}")
    if [message["text"] for message in kept["messages"]] != result["messages"]:
        wrong.append(f"{what}: messages")
    return wrong


def main():
    wrong = remade(sys.argv[1])
    projects = sorted(path.stem for path in EXAMPLES.glob("*.tnvik"))
    values = 0
    for project in projects:
        kept = json.loads(read(project + ".json"))
        inputs = {name: kept["state"][name] for name in R.INPUTS}
        wrong += against_reference(project, kept, inputs, R.STATE_NAMES)
        values += len(R.STATE_NAMES)
    for batch in ("force", "steps"):
        for line, result in zip(read(batch + ".jsonl").splitlines(), read(batch + ".results.jsonl").splitlines(), strict=True):
            kept = json.loads(result)
            wrong += against_reference(f"{batch} {line}", kept, json.loads(line), kept["state"])
            values += len(kept["state"])
    figures = by_hand()
    for project, name, figure in figures:
        got = json.loads(read(project + ".json"))["state"][name]
        if abs(got - figure) > 1e-4 * abs(figure):
            wrong.append(f"{project}: {name} {got}, by hand {figure}")
    for line in wrong:
        print(line)
    print(f"examples: {len(projects)} projects, {values} values by the reference, {len(figures)} by hand, {len(wrong)} differ")
    return 1 if wrong or not projects else 0


if __name__ == "__main__":
    sys.exit(main())
