#!/usr/bin/env python3
"""examples.py TOOL: the examples as TOOL makes them, against those of the tree, byte for byte; and the figures of those of
the tree against the reference calculation, bit for bit, and against figures by hand. What was found of a joint is compared
with a search by the reference calculation, which tries every choice. Exit status 0 when all agree.
"""
import csv
import decimal
import itertools
import json
import math
import pathlib
import re
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
    inputs = {"README.md", "make.sh", "force.jsonl", "steps.jsonl", "hanger-loads.csv"}
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


# ---------------------------------------------------------------------------------------------- joints by name

BOLTS = ("M12x4.6", "M16x4.6", "M20x4.6", "M24x4.6", "M12x8.8", "M16x8.8", "M20x8.8", "M24x8.8")
NUMBERS = (1, 2, 3, 4, 6)
CONNECTORS = ("D50", "D62", "D75", "D95", "D117")


def joint(Con_type, double, b1, h1, b2, h2, **further):
    """Inputs of the state for a joint of examples/make.sh; `double` is its double member, or 0."""
    return {"Con_type": Con_type, "enk_1": double != 1, "dob_1": double == 1, "enk_2": double != 2, "dob_2": double == 2,
            "Standard": False, "Txt_b1": b1, "Txt_h1": h1, "Txt_b2": b2, "Txt_h2": h2, "Mat_index": 5, **further}


def fasteners(bolt, number, connector="none", layout="b", spacing=5):
    chosen = {"Kun_bolt": connector == "none", "Med_bulldog": connector != "none", "Bolt_index": BOLTS.index(bolt),
              "Ant_index": NUMBERS.index(number), "Bolt_ab": layout, "Avstand_index": spacing - 5}
    return chosen if connector == "none" else {"Bulldog_index": CONNECTORS.index(connector), **chosen}


# Each with its own force, the fasteners that were chosen, and what was looked for.
HANGER = joint(2, 2, "73", "223", "48", "98", alp=90, Klima=2, Lastvar=3)
JOINTS = {
    "truss-heel": (joint(1, 2, "48", "198", "48", "223", alp=22, Klima=1, Lastvar=4, P=14), fasteners("M12x8.8", 2, spacing=10),
                   {"number": (2,), "layout": "b"}),
    "lap-splice": (joint(1, 0, "48", "148", "48", "148", alp=0, Klima=1, Lastvar=3, P=-6), fasteners("M12x4.6", 2, spacing=7),
                   {"spacing": (7,)}),
    "web-to-chord": (joint(1, 1, "48", "198", "48", "223", alp=40, Klima=1, Lastvar=3, P=-12), fasteners("M16x8.8", 2),
                     {"bolt": ("M16x8.8",)}),
    "hanger": ({**HANGER, "P": -7}, fasteners("M16x4.6", 1), {}),
    "hanger-connectors": (joint(2, 1, "73", "223", "98", "148", alp=90, Klima=2, Lastvar=3, P=-18),
                          fasteners("M12x8.8", 1, "D62"), {"number": (1,), "connector": ("none", *CONNECTORS)}),
}
# Columns of a sweep or of load cases, as inputs of the state.
LOAD_CLASSES = ("permanent", "long", "medium", "short", "instantaneous")
SWEPT = {
    "compression": lambda x: {"P": float(x)},
    "tension": lambda x: {"P": -float(x)},
    "angle": lambda x: {"alp": float(x)},
    "spacing": lambda x: {"Avstand_index": int(x) - 5},
    "Txt_h1": lambda x: {"Txt_h1": x},
    "force": lambda x: {"P": float(x)},
    "load": lambda x: {"Lastvar": LOAD_CLASSES.index(x) + 1},
}


def sums(s):
    """The distances across each member, those of the fasteners that need more."""
    connectors = s["Med_bulldog"]
    return [max(s["Sum_" + m], s["Sum_c" + m]) if connectors else s["Sum_" + m] for m in "ab"]


def shown(x, digits):
    """A float with so many decimals, half away from zero."""
    step = decimal.Decimal(1).scaleb(-digits)
    return str(decimal.Decimal(x).quantize(step, decimal.ROUND_HALF_UP))


def searched(inputs, bolt=BOLTS, number=NUMBERS, connector=("none",), layout="ab", spacing=range(5, 21)):
    """What holds and fits by the reference calculation: choice, and what a line shows of it."""
    found = {}
    for choice in itertools.product(number, bolt, connector, layout, spacing):
        n, b, c, ab, a1 = choice
        result, s = R.run_line({**inputs, **fasteners(b, n, c, ab, a1)})
        heights = [s["h1"], s["h2"]]
        if result["end"] == "normal" and s["uf"] <= 1 and s["Tverr_kontroll"] <= 1 and all(x <= h for x, h in zip(sums(s), heights)):
            found[choice] = (shown(s["uf"], 2), shown(s["Tverr_kontroll"], 2),
                             *(f"{shown(x, 1)} of {shown(h, 1)}" for x, h in zip(sums(s), heights)))
    return found


def listed(text):
    """The same from the table that was printed; each choice stands there once."""
    found, ranks = {}, []
    for line in text.split("\n\n")[0].splitlines()[1:]:
        number, bolts, connector, layouts, spacings, *figures = re.split("  +", line.strip())[:9]
        ends = [int(end.rstrip("d")) for end in spacings.split(" to ")]
        ranks.append((int(number), int(bolts[1:3]), max(float(figure) for figure in figures[:2])))
        for choice in itertools.product((int(number),), bolts.split(" or "), (connector,), layouts.split(" or "),
                                        range(ends[0], ends[-1] + 1)):
            assert choice not in found, choice
            found[choice] = tuple(figures)
    return found, ranks == sorted(ranks)


def against_search(name):
    """What of NAME.found.txt the reference calculation does not find, or finds beside it."""
    inputs, _, limits = JOINTS[name]
    text = read(name + ".found.txt")
    found, in_order = listed(text)
    wanted = searched(inputs, **limits)
    wrong = [f"{name}: {choice} {found.get(choice)}, by the reference {wanted.get(choice)}"
             for choice in sorted(wanted.keys() | found.keys()) if wanted.get(choice) != found.get(choice)]
    if not in_order or f"\n{len(wanted)} of " not in text:
        wrong.append(f"{name}: order or number of what was found")
    return wrong


def against_points(what, inputs, rows):
    """What of the rows of a sweep or of load cases differs from the reference calculation."""
    wrong = []
    for row in rows:
        row = {key: value.replace(",", ".") if key not in ("name", "text") else value for key, value in row.items()}
        changed = [SWEPT[key](row[key]) for key in row if key in SWEPT]
        _, s = R.run_line({**inputs, **{key: value for one in changed for key, value in one.items()}})
        columns = {"utilisation": "uf", "splitting": "Tverr_kontroll", "fits_a": "Sum_a", "fits_b": "Sum_b",
                   "fits_a_limit": "h1", "fits_b_limit": "h2"}
        if s["Med_bulldog"]:
            columns |= {"connectors_fit_a": "Sum_ca", "connectors_fit_b": "Sum_cb"}
        if "kmod" in row:
            columns["kmod"] = "kmod"
        wrong += [f"{what} {row}: {column}, by the reference {s[name]}" for column, name in columns.items()
                  if R.bits(R.f32(float(row[column]))) != R.bits(s[name])]
        holds = all(float(row[c]) <= 1 for c in ("utilisation", "splitting")) and all(
            float(row[c]) <= float(row[c + "_limit"]) for c in columns if c.startswith(("fits", "connectors")) and "limit" not in c)
        if row["holds"] != ("true" if holds else "false"):
            wrong.append(f"{what} {row}: verdict")
    return wrong


def against_joints():
    wrong, points = [], 0
    for name, (inputs, chosen, _) in JOINTS.items():
        wrong += against_search(name)
        sweeps = [name + ".csv"] + (["web-to-chord-grid.csv"] if name == "web-to-chord" else [])
        for file in sweeps:
            rows = list(csv.DictReader(read(file).splitlines()))
            wrong += against_points(file, {**inputs, **chosen}, rows)
            points += len(rows)
    rows = list(csv.DictReader(read("hanger-loads.results.csv").splitlines(), delimiter=";"))
    wrong += against_points("hanger-loads", {**HANGER, **JOINTS["hanger"][1]}, rows)
    return wrong, points + len(rows)


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
    wrong_joints, points = against_joints()
    wrong += wrong_joints
    for line in wrong:
        print(line)
    print(f"examples: {len(projects)} projects, {values} values and {points} points by the reference, {len(figures)} by hand, {len(wrong)} differ")
    return 1 if wrong or not projects else 0


if __name__ == "__main__":
    sys.exit(main())
