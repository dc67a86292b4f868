#!/usr/bin/env python3
"""verify.py TOOL [FORMULAS] [--write]: published worked examples, and the fifteen connections by hand, beside the program's
values; prints the tables. They have to stand like this in docs/verification.md, where --write puts them. FORMULAS is the
program of formulas.cpp, which lies beside TOOL unless it is named.

A value of a published example may differ by 0.5 % from what was printed, or has its reason in the table; from the exact one
of the standard's formulas by no more than the 32 bits that a value is kept in, or has its reason. A value of a connection
may differ by a hundredth of a per cent from the one by hand: degrees per radian are rounded in the program. Exit status 0
when all agree."""
import argparse
import difflib
import json
import pathlib
import subprocess
import sys

sys.dont_write_bytecode = True
import codes
import published

PAGE = pathlib.Path(__file__).resolve().parent.parent.parent / "docs/verification.md"
BEGIN, END = "<!-- verify.py: from here on -->\n", "<!-- verify.py: to here -->\n"
OF_PRINT = 0.005
OF_EXACT = 2e-5                             # degrees per radian rounded to 57.297, and 32 bits
OF_HAND = 1e-4


def asker(program):
    process = subprocess.Popen([program], stdin=subprocess.PIPE, stdout=subprocess.PIPE, encoding="utf-8")

    def ask(steps):
        process.stdin.write(json.dumps(steps) + "\n")
        process.stdin.flush()
        return json.loads(process.stdout.readline())

    return ask


def number(value):
    """Five digits, without an exponent."""
    if value is None:
        return "–"
    text = "%.5g" % value
    return "%.0f" % value if "e" in text else text


def percent(value):
    return "%+.2f %%" % (100 * value) if abs(value) >= 5e-5 else "0"


def published_example(title, rows, wrong):
    lines = ["#### " + title, "", "| quantity | EN 1995-1-1 | printed | exact | program | to print | reason |", "| --- | --- | --- | --- | --- | --- | --- |"]
    for quantity, clause, printed, exact, ours, reason in rows:
        difference = "–"
        if ours is not None:
            away = (ours - float(printed)) / float(printed)
            difference = percent(away)
            if abs(away) > OF_PRINT and not reason:
                wrong.append("%s: %s: %s, printed %s" % (title, quantity, ours, printed))
            if abs(ours - exact) > OF_EXACT * abs(exact) and not reason:
                wrong.append("%s: %s: %s, exact %s" % (title, quantity, ours, exact))
        elif not reason:
            wrong.append("%s: %s: no value and no reason" % (title, quantity))
        lines.append("| %s | %s | %s | %s | %s | %s | %s |" % (quantity, clause, printed, number(exact), number(ours), difference, reason))
    return lines + [""]


def results(tool):
    """What the tool gives for the fifteen joints: the states, by code."""
    text = "".join(json.dumps(codes.inputs(code)) + "\n" for code in codes.JOINTS)
    run = subprocess.run([tool, "--batch", "--json"], input=text, capture_output=True, encoding="utf-8")
    return dict(zip(codes.JOINTS, map(json.loads, run.stdout.splitlines())))


def joint_text(code, state):
    (b1, h1, b2, h2), bolt, count, _, N, connector, angle, force, load, material, *_ = codes.JOINTS[code]
    pieces = ["%s × %s and %s × %s mm" % (b1, h1, b2, h2), "%d %s" % (count, bolt), "spacing %dd" % N,
              "no connector" if connector is None else "connector D%d" % codes.CONNECTORS[connector][0], "%d°" % angle,
              "%d kN" % force, "load class %d" % load, codes.MATERIALS[material][0]]
    return "%s, case %s: %s" % (code, state["Case_code"].strip().rstrip("."), ", ".join(pieces))


def connections_of(kind, states, wrong):
    """The three connections of a type side by side."""
    rows, columns, notes = {}, {}, []
    for code in (kind + ".1", kind + ".2", kind + ".3"):
        values, remarks = codes.by_hand(code)
        columns[code] = {name: value for name, _, _, value in values}
        rows.update({name: (clause, unit) for name, clause, unit, _ in values})
        notes += ["- %s, `%s`: %s." % (code, name, text) for name, text in remarks.items()]
        state = states[code]["state"]
        for name, value in columns[code].items():
            if abs(state[name] - value) > OF_HAND * abs(value):
                wrong.append("%s: %s %s, by hand %s" % (code, name, state[name], value))
        if states[code]["end"] != "normal" or state["Con_code"].strip() != code:
            wrong.append("%s: end %s, code %s" % (code, states[code]["end"], state["Con_code"]))
    lines = ["- " + joint_text(code, states[code]["state"]) for code in columns]
    lines += ["", "| | EN 1995-1-1 | " + " | ".join("%s by hand | program" % code for code in columns) + " |", "| --- | --- |" + " --- | --- |" * 3]
    for name in sorted(rows, key=codes.ORDER.index):
        clause, unit = rows[name]
        cells = []
        for code, column in columns.items():
            cells += [number(column[name]), number(states[code]["state"][name])] if name in column else ["", ""]
        lines.append("| `%s`%s | %s | %s |" % (name, ", " + unit if unit else "", clause, " | ".join(cells)))
    return lines + [""] + notes + [""]


def tables(tool, formulas):
    wrong, ask = [], asker(formulas)
    examples = [example(ask) for example in published.EXAMPLES]
    states = results(tool)
    lines = ["### Published examples", ""]
    for title, rows in examples:
        lines += published_example(title, rows, wrong)
    lines += ["### The fifteen connections by hand", ""]
    for kind in "12345":
        lines += ["#### Type " + kind, "", *connections_of(kind, states, wrong)]
    count = sum(len(rows) for _, rows in examples)
    shown = sum(ours is not None for _, rows in examples for _, _, _, _, ours, _ in rows)
    by_hand = sum(len(codes.by_hand(code)[0]) for code in codes.JOINTS)
    lines.append("%d printed values, %d of them the program's as well; %d values by hand." % (count, shown, by_hand))
    return "\n".join(lines) + "\n", wrong


def main():
    options = argparse.ArgumentParser()
    options.add_argument("tool")
    options.add_argument("formulas", nargs="?")
    options.add_argument("--write", action="store_true")
    given = options.parse_args()
    text, wrong = tables(given.tool, given.formulas or pathlib.Path(given.tool).with_name("formulas"))
    print(text)
    page = PAGE.read_text(encoding="utf-8")
    head, rest = page.split(BEGIN)
    stands, tail = rest.split(END)
    if given.write:
        PAGE.write_text(head + BEGIN + "\n" + text + "\n" + END + tail, encoding="utf-8")
    elif stands.strip() != text.strip():
        wrong.append("docs/verification.md has other tables:")
        wrong += list(difflib.unified_diff(stands.strip().splitlines(), text.strip().splitlines(), lineterm="", n=0))[:20]
    for line in wrong:
        print(line)
    print("verify: %d differ" % len(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
