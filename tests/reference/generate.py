#!/usr/bin/env python3
"""generate.py [DIR]: writes the files of expected values from the reference calculation.

spacings.csv       a hash of the spacing record for 25200 combinations of case, force, angle, bolt, connector and chosen spacing
spacings_full.csv  the record itself for 630 of them
passes.jsonl       3000 whole passes, some in sequence on one state
formulas.jsonl     the shear, connector, row and splitting formulas one by one
"""
import json
import os
import random
import sys

sys.dont_write_bytecode = True
import inputs
import reference as R

OUT = sys.argv[1] if len(sys.argv) > 1 else R.HERE
ALL_CASES = [c["code"] for c in R.TABLES["cases"]]

HASH_HEAD = """\
# The spacing record of a case, hashed. Columns: case, P, alp, Bolt_index, Bulldog_index, Avstand_index, hash.
# P and alp are stored as binary32 before use; d is that of the bolt, dc that of the connector as picked: 48, 62, 75, 95, 117.
# hash: FNV-1a, 64 bits (offset basis cbf29ce484222325, prime 100000001b3), 16 lower-case hex digits, of the bytes of one ASCII text:
# the items below joined by "|", none left out when empty; bits() is the binary32 pattern as 8 lower-case hex digits.
#   for x = a1 a2 a3 a4 a5 a6 b1 b2 b3 b4 b5 b6:  Sx_lbl, bits(Sx), Sx_txt, bits(Cx), Cx_txt
#   then Sum_a_txt, bits(Sum_a), bits(Sum_ca), Sum_b_txt, bits(Sum_b), bits(Sum_cb)
# Texts with their trailing blanks. The record is that which a pass leaves, or one rule routine after clearing.
"""
FULL_HEAD = """\
# The spacing record of a case. Columns: case, P, alp, Bolt_index, Bulldog_index, Avstand_index, then
# for x = a1 .. a6, b1 .. b6: Sx_lbl, Sx, Sx_txt, Cx, Cx_txt; then Sum_a_txt, Sum_a, Sum_ca, Sum_b_txt, Sum_b, Sum_cb.
# Texts with their trailing blanks, not quoted; numbers are the shortest decimals that read back to the same binary32.
"""


def spacing_record(case, P, alp, bolt, connector, spacing):
    s = R.new_project()
    s["d"], s["dc"] = R.TABLES["bolts"][bolt]["d"], R.TABLES["dc_picked"][connector]
    s["P"], s["alp"], s["Avstand_index"] = R.f32(P), R.f32(alp), spacing
    R.clear_spacing(s)
    R.compute_spacing(s, case)
    return s


def spacings():
    with open(os.path.join(OUT, "spacings.csv"), "w", encoding="ascii", newline="\n") as f:
        f.write(HASH_HEAD)
        for case in ALL_CASES:
            for P in (10, -10, 0):
                for alp in (0, 27, 30, 30.01, 45, 90):
                    for bolt in range(4):
                        for connector in range(5):
                            for spacing in (0, 15):
                                s = spacing_record(case, P, alp, bolt, connector, spacing)
                                f.write("%s,%d,%g,%d,%d,%d,%016x\n" % (case, P, alp, bolt, connector, spacing,
                                                                       R.fnv1a64(R.canonical_spacing(s))))
    with open(os.path.join(OUT, "spacings_full.csv"), "w", encoding="ascii", newline="\n") as f:
        f.write(FULL_HEAD)
        for bolt, connector, spacing in ((0, 1, 0), (2, 0, 15)):
            for case in ALL_CASES:
                for P in (10, -10, 0):
                    for alp in (0, 27, 90):
                        s = spacing_record(case, P, alp, bolt, connector, spacing)
                        row = [case, "%d" % P, "%g" % alp, str(bolt), str(connector), str(spacing)]
                        for x in R.DISTANCES:
                            row += [s["S" + x + "_lbl"], R.shortest(s["S" + x]), s["S" + x + "_txt"], R.shortest(s["C" + x]),
                                    s["C" + x + "_txt"]]
                        for k in "ab":
                            row += [s["Sum_%s_txt" % k], R.shortest(s["Sum_" + k]), R.shortest(s["Sum_c" + k])]
                        assert not any("," in c or '"' in c for c in row)
                        f.write(",".join(row) + "\n")


# The results of a pass, and the inputs that a pass itself writes. The spacing record stands as its hash.
RESULTS = tuple(n for n in R.STATE_NAMES if n not in R.INPUTS and n not in R.SPACING_FLOATS + R.SPACING_TEXTS) + R.FREE_ENTRY


def hashed(expect, s):
    """The expected values of a line as the test of the passes hashes them: name=value, a float as its bits."""
    values = dict(expect, spacing="%016x" % R.fnv1a64(R.canonical_spacing(s)))
    values.update((n, "%08x" % R.bits(s[n]) if n in R.ALL_FLOATS else s[n]) for n in RESULTS)
    return "".join("%s=%s\n" % (n, str(v).lower() if isinstance(v, bool) else v) for n, v in values.items())


def sequence(rng, k):
    """The inputs of one line. Most lines stay inside what the window lets a user choose."""
    if k == 0:
        return {}
    if k % 10 == 9:
        return inputs.line(rng, 1.0)                        # values at and past the edges
    return inputs.line(rng)


def passes(count=3000, seed=19951):
    rng = random.Random(seed)
    ends, cases, codes, shown = {}, set(), set(), []
    with open(os.path.join(OUT, "passes.jsonl"), "w", encoding="utf-8", newline="\n") as f:
        for k in range(count):
            steps = sequence(rng, k)
            result, s = R.run_line(steps)
            expect = {"end": result["end"]}
            if result["fault"]:
                expect["fault"] = result["fault"]["number"]
            text = json.dumps(expect)[:-1] + ', "spacing": "%016x", ' % R.fnv1a64(R.canonical_spacing(s)) + R.json_state(s, RESULTS)[1:]
            f.write('{"set": %s, "expect": %s}\n' % (json.dumps(steps, ensure_ascii=False), text))
            shown.append(hashed(expect, s))
            ends[result["end"]] = ends.get(result["end"], 0) + 1
            cases.add(s["Case_code"])
            codes.add(s["Con_code"])
    print("passes.jsonl:", ends, len(cases), "case codes,", len(codes), "connection codes (one of each may be blank)")
    print("expected_values_hash: %016x" % R.fnv1a64("".join(shown)))


def formula_line(f, name, given, state, wanted, call):
    state.update(given)
    try:
        extra = call()
        out = R.json_state(state, wanted)[1:-1]
        if extra is not None:
            out += ("," if out else "") + '"result":%s' % R.shortest(extra)
    except R.Fault as fault:
        out = '"fault":%d' % fault.number
    keys = ",".join("%s:%s" % (json.dumps(n), R.shortest(v) if isinstance(v, float) else json.dumps(v)) for n, v in given.items())
    f.write('{"formula":"%s","given":{%s},"wanted":{%s}}\n' % (name, keys, out))


def formulas(seed=1995):
    rng = random.Random(seed)
    single = ("k90", "t1", "t2", "t1_txt", "t2_txt", "alp1", "alp2", "fh0k", "fh1k", "fh2k", "beta", "My_Rk", "Fax_bolt", "Fax_skive")
    with open(os.path.join(OUT, "formulas.jsonl"), "w", encoding="utf-8", newline="\n") as f:
        for code in R.TABLES["shear"]:                      # result: capacity of one bolt per shear plane, N
            for _ in range(20):
                s = R.new_project()
                bolt, mat = rng.choice(R.TABLES["bolts"]), rng.choice(R.TABLES["materials"])
                given = {"Con_code": code, "b1": R.f32(rng.choice([45.0, 98.0, round(rng.uniform(20, 240), 1), 3000.0])),
                         "b2": R.f32(rng.choice([45.0, 98.0, round(rng.uniform(20, 240), 1), 3000.0])),
                         "alp": R.f32(rng.choice(inputs.ANGLES + [rng.uniform(0, 90)])), "d": R.f32(bolt["d"]), "fuk": R.f32(bolt["fuk"]),
                         "d_skive": R.f32(3.0 * bolt["d"]), "rho_k": R.f32(mat["dens"]), "fc90k": R.f32(mat["fc90k"])}
                modes = ["Fv_" + c for c in "abcdef"] if R.TABLES["shear"][code]["planes"] == "single" else ["Fax_min"] + ["Fv_" + c for c in "ghjk"]
                formula_line(f, "shear", given, s, single + tuple(modes), lambda: R.shear_plane(s))
        for index in (0, 1, 2, 3, 4, 5):                    # result: capacity of one connector, kN
            for rho in (290.0, 350.0, 500.0, 525.0, 700.0):
                for t1, t2 in ((100.0, 100.0), (22.2, 37.0), (22.1, 100.0), (48.0, 36.5), (10.0, 400.0)):
                    s = R.new_project()
                    given = {"Bulldog_index": index, "t1": R.f32(t1), "t2": R.f32(t2), "d": 16.0, "rho_k": rho}
                    formula_line(f, "connector", given, s, ("hc",), lambda: R.connector_capacity(s))
        for n_row, rows in ((0, 0), (2, 1), (3, 1), (2, 2), (2, 3), (3, 2)):
            for d in (12.0, 16.0, 20.0, 24.0):
                for m in (0.0, 5.0, 13.0, 20.0, 100.0, 7.3):
                    s = R.new_project()
                    given = {"n_row": n_row, "rows": rows, "a1": R.f32(m * d), "d": d}
                    formula_line(f, "rows", given, s, ("nef_b_row", "nef_b", "nef_f_row", "nef_f"), lambda: R.effective_numbers(s))
        for k in range(300):
            s = R.new_project()
            h = R.f32(rng.choice([98.0, 223.0, 405.0, round(rng.uniform(40, 900), 2)]))
            he = R.f32(rng.choice([0.0, h, -5.0, h + 1] if k % 10 == 0 else [h - 36.0, h - 80.0, h * rng.uniform(0.1, 0.95), 13.0]))
            b = R.f32(rng.choice([36.0, 48.0, 90.0, round(rng.uniform(20, 200), 1)]))
            given = {"h": h, "he": he, "b": b, "Con_code": rng.choice(list(R.TABLES["shear"])),
                     "P": R.f32(rng.choice(inputs.FORCES + [rng.uniform(-200, 200)])), "alp": R.f32(rng.choice(inputs.ANGLES + [rng.uniform(0, 90)])),
                     "kmod": R.f32(rng.choice([0.5, 0.6, 0.8, 0.9, 1.1])), "gm": R.f32(rng.choice([1.2, 1.25, 1.3]))}
            formula_line(f, "splitting", given, s, ("F90_Rd", "P_sin", "Tverr_kontroll"), lambda: R.splitting(s, h, he, b))


if __name__ == "__main__":
    spacings()
    passes()
    formulas()
