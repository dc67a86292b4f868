#!/usr/bin/env python3
"""Reference calculation of bolted timber connections to EN 1995-1-1, written apart from the program it checks.

Python 3, standard library only. Every named value is held as IEEE binary32; every formula runs in binary64 and
is rounded once, where its value is stored. The tables (cases, rules, fasteners, materials, sections) are in
tables.json beside this file; the formulas are here.

  state = new_project()            a new project: English, the delivered tables and partial factors
  apply(state, {"P": -20.0, ...})  plain writes of inputs; Bulldog_index also sets dc, as picking the connector does
  result = run_pass(state)         one full pass: {"end", "fault", "messages"}; results are left in state

As a program it answers JSON Lines like the headless tool: reference.py < inputs > results.
"""
import json
import math
import os
import re
import struct
import sys
from decimal import ROUND_HALF_UP, Context, Decimal

HERE = os.path.dirname(os.path.abspath(__file__))
with open(os.path.join(HERE, "tables.json"), encoding="utf-8") as _f:
    TABLES = json.load(_f)

DEGREES_PER_RADIAN = 57.297                                 # deliberately three decimals
FIXED = {"Lang": 3, "Lastvar_txt": 20, "Con_code": 3, "Bolt_ab": 1, "Case_code": 5}
FREE_ENTRY = ("Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2")       # texts, read when Standard is false
FLAGS = ("Bulldog_invalid", "Standard", "enk_1", "dob_1", "enk_2", "dob_2", "Kun_bolt", "Med_bulldog", "Ab_valg",
         "Has_row", "Man_he_on")
INTEGERS = ("Lastvar", "Klima", "Mat_index", "Prof1_index", "Prof2_index", "Con_type", "Bolt_index", "Bulldog_index",
            "Ant_index", "n_bolt", "Avstand_index", "n_row", "rows")
TEXTS = ("Prosjekt", "Id", "t1_txt", "t2_txt")
FLOATS = ("kmod", "gm_T", "gm_L", "gm_Ke", "gm_K", "gm", "rho_k", "fc90k", "b1", "h1", "b2", "h2", "alp", "d", "fuk",
          "d_skive", "t_skive", "dc", "hc", "a1", "P", "man_he", "t1", "t2", "alp1", "alp2", "k90", "fh0k", "fh1k", "fh2k",
          "beta", "My_Rk", "Fax_bolt", "Fax_skive", "Fax_min", "Fv_a", "Fv_b", "Fv_c", "Fv_d", "Fv_e", "Fv_f", "Fv_g", "Fv_h",
          "Fv_j", "Fv_k", "Fv_Rk", "nef_b_row", "nef_b", "nef_f_row", "nef_f", "Rd_bolt", "Rd_for", "uf", "he", "F90_Rd",
          "P_sin", "Tverr_kontroll")
INPUTS = ("Lastvar", "Klima", "Mat_index", "Standard", "Prof1_index", "Prof2_index", "Con_type", "enk_1", "dob_1", "enk_2",
          "dob_2", "alp", "Kun_bolt", "Med_bulldog", "Bolt_index", "Bulldog_index", "dc", "Ant_index", "Bolt_ab",
          "Avstand_index", "P", "Man_he_on", "man_he", "gm_T", "gm_L", "gm_Ke", "gm_K", "Lang", "Prosjekt", "Id") + FREE_ENTRY
DISTANCES = tuple(f + str(n) for f in "ab" for n in range(1, 7))
SPACING_FLOATS = tuple(k + x for x in DISTANCES for k in "SC") + ("Sum_a", "Sum_b", "Sum_ca", "Sum_cb")
SPACING_TEXTS = (tuple("S" + x + s for x in DISTANCES for s in ("_lbl", "_txt")) + tuple("C" + x + "_txt" for x in DISTANCES)
                 + ("Sum_a_txt", "Sum_b_txt"))
ALL_FLOATS = frozenset(FLOATS + SPACING_FLOATS)
STATE_NAMES = FLAGS + INTEGERS + tuple(FIXED) + TEXTS + FLOATS + SPACING_FLOATS + SPACING_TEXTS + FREE_ENTRY


class Fault(Exception):
    """An arithmetic or subscript fault; it ends the pass, what was stored before it stays."""
    DESCRIPTION = {5: "invalid procedure call or argument", 6: "overflow", 9: "subscript out of range", 11: "division by zero"}

    def __init__(self, number):
        super().__init__(self.DESCRIPTION[number])
        self.number = number


# ---------------------------------------------------------------------------------------------- arithmetic

def f32(x):
    """x rounded to the nearest binary32, ties to even."""
    if math.isnan(x) or math.isinf(x):
        raise Fault(6)
    try:
        return struct.unpack("<f", struct.pack("<f", x))[0]
    except OverflowError:
        raise Fault(6) from None


def bits(x):
    """The 32 bits of a stored value as an unsigned number."""
    return struct.unpack("<I", struct.pack("<f", x))[0]


PI = f32(3.14159)                                           # as a 32-bit float, not a more exact pi


def div(a, b):
    if b == 0.0:
        raise Fault(11)
    return a / b


def power(x, e):
    if x < 0.0:
        raise Fault(5)
    try:
        return math.pow(x, e)
    except OverflowError:
        raise Fault(6) from None


def root(x):
    return power(x, 0.5)


def shortest(x):
    """The shortest decimal that reads back to the same binary32, as a JSON number."""
    if x == 0.0:
        return "-0.0" if math.copysign(1.0, x) < 0 else "0.0"
    for digits in range(1, 10):
        s = "%.*g" % (digits, x)
        try:
            if f32(float(s)) == x:
                return repr(float(s))
        except Fault:                                       # rounded up past the largest binary32
            pass
    raise AssertionError(x)


def format_one_decimal(x):
    """The picture "0.0": half away from zero on the exact value; a figure that rounds to zero has no sign."""
    q = Decimal(x).quantize(Decimal("0.1"), context=Context(prec=60, rounding=ROUND_HALF_UP))
    return "0.0" if q == 0 else format(q, "f")


def str_to_num(text):
    """Blanks trimmed, every comma a point, then the longest numeric prefix; 0 without one. Never fails itself."""
    m = re.match(r"[+-]?(\d+\.?\d*|\.\d+)([eE][+-]?\d+)?", text.strip(" ").replace(",", "."))
    return f32(float(m.group(0))) if m else 0.0


def fixed(text, n):
    return text[:n].ljust(n)


# ---------------------------------------------------------------------------------------------- state

def new_project(lang=None):
    s = {n: False for n in FLAGS}
    s.update({n: 0 for n in INTEGERS})
    s.update({n: " " * k for n, k in FIXED.items()})
    s.update({n: "" for n in TEXTS + FREE_ENTRY})
    s.update({n: 0.0 for n in FLOATS})
    clear_spacing(s)
    s["Lang"] = fixed(lang or TABLES["setup"]["Lang"], 3)
    for n in ("gm_T", "gm_L", "gm_Ke", "gm_K"):
        s[n] = f32(TABLES["setup"][n])
    for n in ("Prosjekt", "Id"):
        s[n] = TABLES["start_text"][n].get(s["Lang"], "")
    for n, v in TABLES["start"].items():
        write(s, n, v)
    return s


def write(s, name, value):
    """A plain write of one input."""
    if name in FIXED:
        s[name] = fixed(value, FIXED[name])
    elif name in FLAGS:
        s[name] = bool(value)
    elif name in INTEGERS:
        s[name] = int(value)
    elif name in ALL_FLOATS:
        s[name] = f32(float(value))
    else:
        s[name] = value


def apply(s, inputs):
    for name, value in inputs.items():
        if name not in INPUTS:
            raise KeyError(name)
        write(s, name, value)
        if name == "Bulldog_index" and 0 <= s[name] < len(TABLES["dc_picked"]):
            s["dc"] = TABLES["dc_picked"][s[name]]


# ---------------------------------------------------------------------------------------------- spacing, tables 8.4 and 8.8

def clear_spacing(s):
    for n in SPACING_FLOATS:
        s[n] = 0.0
    for n in SPACING_TEXTS:
        s[n] = ""


class Spacing:
    """The rules of one case with the diameters, the angle and the chosen spacing of a state."""

    def __init__(self, s):
        self.s = s
        self.d, self.D = s["d"], s["dc"]
        angle = s["alp"] / DEGREES_PER_RADIAN
        self.S, self.K = math.sin(angle), math.cos(angle)
        n = s["Avstand_index"] + 5
        chosen = 0 <= s["Avstand_index"] <= 15
        self.chosen, self.chosen_text = (f32(n * self.d), "%d x d" % n) if chosen else (0.0, "")

    def bolt(self, code):
        """(value or None for not written, text) of a bolt rule."""
        rule = TABLES["legend"][code]
        like, t = rule["like"], rule["texts"]
        d, S, K = self.d, self.S, self.K
        d3, d4, d7 = f32(3 * d), f32(4 * d), f32(7 * d)
        if like in ("B1", "B5", "B27", "B33"):
            return d3, t[0]
        if like in ("B2", "B34", "B35"):
            return d4, t[0]
        if like == "B3":
            return self.chosen, self.chosen_text
        if like == "B4":                                    # end distance, loaded end
            return (80.0, t[0]) if d7 <= 80.0 else (d7, t[1])
        if like == "B6":
            return d7, t[0]
        if like == "B7":                                    # along the grain
            return f32((4 + K) * d), t[0]
        if like == "B8":                                    # loaded edge
            v = f32((2 + 2 * S) * d)
            return (d3, t[0]) if v <= d3 else (v, t[1])
        if like == "B28":                                   # unloaded end
            v = f32((1 + 6 * S) * d)
            return (d4, t[0]) if v <= d4 else (v, t[1])
        if like == "B21":                                   # the same with a literal angle of 0
            v = f32((1 + 6 * math.sin(0.0)) * d)
            return (d4, t[0]) if v <= d4 else (v, t[1])
        if like == "B20":
            v = f32((4 + K) * d * S)
            return (d4, t[0]) if v <= d4 else (v, t[1])
        if like == "B13":
            v = f32(self.chosen * S)
            return (v, t[0]) if d4 <= v else (d4, t[1])
        if like == "B30":
            return (d7, t[0]) if d7 > 80.0 else (80.0, t[1])
        if like == "B31":
            return None, t[0] if d7 <= 80.0 else t[1]
        if like == "B32":
            return (d7, t[0]) if d7 > 80.0 else (None, t[1])
        if like == "B29":
            return (80.0 if d7 <= 80.0 else None), t[0]
        raise KeyError(code)

    def connector(self, code):
        rule = TABLES["legend"][code]
        like, t = rule["like"], rule["texts"]
        D, S, K = self.D, self.S, self.K
        D12, D15 = f32(1.2 * D), f32(1.5 * D)
        if like in ("C1", "C13", "C21"):
            return f32(0.6 * D), t[0]
        if like == "C8":
            return f32(0.8 * D), t[0]
        if like in ("C2", "C22", "C23", "C27"):
            return D12, t[0]
        if like == "C6":
            return D15, t[0]
        if like in ("C4", "C26"):
            return f32(2 * D), t[0]
        if like == "C3":
            return (self.chosen, self.chosen_text) if D15 <= self.chosen else (D15, t[0])
        if like == "C5":
            return f32((0.6 + 0.2 * S) * D), t[0]
        if like in ("C7", "C14"):
            return f32((1.2 + 0.3 * K) * D), t[0]
        if like == "C25":
            return f32((0.9 + 0.6 * S) * D), t[0]
        if like == "C18":
            return f32((0.9 + 0.6 * math.sin(0.0)) * D), t[0]
        if like == "C11":
            v = f32((1.2 + 0.3 * K) * D * S)
            return (D12, t[0]) if v <= D12 else (v, t[1])
        if like in ("C12", "C16"):                          # r: the distance that the text names, in this record
            v = f32(self.s["C" + t[0][:2]] * S)
            return (v if like == "C12" else 0.0, t[0]) if D12 <= v else (D12, t[1])
        if like == "C24":
            return None, t[0]
        raise KeyError(code)


def compute_spacing(s, case):
    """Fills the cleared record with the distances of a case."""
    rules = Spacing(s)
    table = TABLES["rules"][case]
    for late in (False, True):                              # rules that read another distance come after it
        for x, (bt, bc, ct, cc) in table.items():
            compression = s["P"] >= 0.0 if x in TABLES["zero_compression"][case] else s["P"] > 0.0
            b, c = (bc, cc) if compression else (bt, ct)
            if (c is not None and TABLES["legend"][c]["like"] in ("C12", "C16")) != late:
                continue
            s["S" + x + "_lbl"] = x
            for kind, code, rule in (("S", b, rules.bolt), ("C", c, rules.connector)):
                if code is not None:
                    v, s[kind + x + "_txt"] = rule(code)
                    if v is not None:
                        s[kind + x] = v
    sums = TABLES["sums"][case]
    for f in "ab":
        s["Sum_%s_txt" % f] = sums[f]
        s["Sum_" + f] = f32(math.fsum(s["S" + x] for x in sums["sum_" + f]))
        s["Sum_c" + f] = f32(math.fsum(s["C" + x] for x in sums["sum_c" + f]))


def spacing_case(s):
    """The case whose rules run: by connection code, number of bolts and letter, any letter but b being a."""
    code = s["Con_code"]
    if code not in TABLES["shear"]:
        return None
    for c in TABLES["cases"]:
        if str(c["Con_type"]) == code[0] and c["n_bolt"] == s["n_bolt"]:
            if c["letter"] in (None, "b" if s["Bolt_ab"] == "b" else "a"):
                return c["code"]
    return None


def canonical_spacing(s):
    """One text for the whole spacing record; see the head of spacings.csv."""
    out = []
    for x in DISTANCES:
        out += [s["S" + x + "_lbl"], "%08x" % bits(s["S" + x]), s["S" + x + "_txt"], "%08x" % bits(s["C" + x]), s["C" + x + "_txt"]]
    for f in "ab":
        out += [s["Sum_%s_txt" % f], "%08x" % bits(s["Sum_" + f]), "%08x" % bits(s["Sum_c" + f])]
    return "|".join(out)


def fnv1a64(text):
    h = 0xCBF29CE484222325
    for byte in text.encode("utf-8"):
        h = ((h ^ byte) * 0x100000001B3) & 0xFFFFFFFFFFFFFFFF
    return h


# ---------------------------------------------------------------------------------------------- bolts, 8.2.2 and 8.5.1

def embedment(s, angle1, angle2):
    """(8.31), (8.32) with the factor k90 of (8.33) in the state."""
    def at(angle):
        sin, cos = math.sin(angle), math.cos(angle)
        return f32(div(s["fh0k"], sin * sin * s["k90"] + cos * cos))
    s["fh0k"] = f32((1.0 - s["d"] * 0.01) * 0.082 * s["rho_k"])
    s["fh1k"] = at(angle1)
    s["fh2k"] = at(angle2)
    s["beta"] = f32(div(s["fh2k"], s["fh1k"]))              # (8.8)


def bolt_common(s):
    d, fuk = s["d"], s["fuk"]
    s["My_Rk"] = f32(0.3 * fuk * power(d, 2.6))             # (8.30)
    s["Fax_bolt"] = f32((PI / 4) * fuk * (d * d))
    hole = d + 2                                            # the hole of the washer
    s["Fax_skive"] = f32((s["d_skive"] * s["d_skive"] - hole * hole) * 3.0 * s["fc90k"] * (PI / 4))


def with_rope(johansen, fax_q):
    """8.2.2(2): the rope term, at most 25 % of the Johansen part for bolts, on each mode by itself."""
    return f32(johansen + min(f32(johansen * 0.25), fax_q))


def single_shear(s):
    """(8.6 a) to (8.6 f); gives the least."""
    d, fh1, fh2, be, t1, t2 = s["d"], s["fh1k"], s["fh2k"], s["beta"], s["t1"], s["t2"]
    bolt_common(s)
    my = s["My_Rk"]
    s["Fv_a"] = f32(t1 * fh1 * d)
    s["Fv_b"] = f32(t2 * fh2 * d)
    r = div(t2, t1)
    c0 = f32(div(d * fh1 * t1, be + 1) * (root(be + 2 * (be * be) * (1 + r + r * r) + be * be * be * (r * r)) - (r + 1) * be))
    d0 = f32(div(1.05 * d * fh1 * t1, be + 2)
             * (root(2 * be * (be + 1) + div(4 * be * (be + 2) * my, t1 * t1 * d * fh1)) - be))
    e0 = f32(div(1.05 * d * fh1 * t2, 2 * be + 1)
             * (root(2 * (be * be) * (be + 1) + div(4 * be * (2 * be + 1) * my, t2 * t2 * d * fh1)) - be))
    f0 = f32(1.15 * root(div(2 * be, be + 1)) * root(2 * my * fh1 * d))
    fax_q = f32(min(s["Fax_bolt"], s["Fax_skive"]) / 4.0)
    s["Fv_c"] = with_rope(c0, fax_q)
    s["Fv_d"] = with_rope(d0, fax_q)
    s["Fv_e"] = with_rope(e0, fax_q)
    s["Fv_f"] = with_rope(f0, fax_q)
    return min(min(s["Fv_c"], s["Fv_d"], s["Fv_e"], s["Fv_f"]), s["Fv_a"], s["Fv_b"])


def double_shear(s):
    """(8.7 g) to (8.7 k), per shear plane; gives the least."""
    d, fh1, fh2, be, t1, t2 = s["d"], s["fh1k"], s["fh2k"], s["beta"], s["t1"], s["t2"]
    bolt_common(s)
    my = s["My_Rk"]
    s["Fv_g"] = f32(t1 * fh1 * d)
    s["Fv_h"] = f32(0.5 * fh2 * t2 * d)
    j0 = f32(div(1.05 * d * fh1 * t1, be + 2)
             * (root(2 * be * (be + 1) + div(4 * be * (be + 2) * my, t1 * t1 * d * fh1)) - be))
    k0 = f32(1.15 * root(div(2 * be, be + 1)) * root(2 * my * fh1 * d))
    s["Fax_min"] = min(s["Fax_bolt"], s["Fax_skive"])
    fax_q = f32(s["Fax_min"] / 4.0)
    s["Fv_j"] = with_rope(j0, fax_q)
    s["Fv_k"] = with_rope(k0, fax_q)
    return min(min(s["Fv_j"], s["Fv_k"]), s["Fv_g"], s["Fv_h"])


def shear_plane(s):
    """Capacity of one bolt per shear plane, N. An unknown connection code gives 0 and touches only k90."""
    s["k90"] = f32(1.35 + 0.015 * s["d"])                   # (8.33), softwood
    row = TABLES["shear"].get(s["Con_code"])
    if row is None:
        return 0.0
    s["t1"], s["t2"] = s[row["t1"]], s[row["t2"]]
    s["t1_txt"], s["t2_txt"] = row["t1_txt"], row["t2_txt"]
    angles = [(s["alp"] if row[n] == "alp" else row[n]) / DEGREES_PER_RADIAN for n in ("alp1", "alp2")]
    embedment(s, *angles)
    s["alp1"], s["alp2"] = (f32(a * DEGREES_PER_RADIAN) for a in angles)
    return single_shear(s) if row["planes"] == "single" else double_shear(s)


# ---------------------------------------------------------------------------------------------- tooth plates, 8.10

def connector_refused(s):
    """Whether bolt and connector fit; sets the flag and gives the message of a refusal, if any."""
    if not 0 <= s["Bulldog_index"] < len(TABLES["connectors"]):
        return []
    s["Bulldog_invalid"] = s["Bolt_index"] in TABLES["connectors"][s["Bulldog_index"]]["refused_bolts"]
    text = TABLES["refuse_text"].get(s["Lang"])
    return [text] if s["Bulldog_invalid"] and text else []


def connector_capacity(s):
    """(8.72) to (8.77) for type C1, kN; the factor for end distance has no effect and is 1."""
    if not 0 <= s["Bulldog_index"] < len(TABLES["connectors"]):
        return 0.0
    row = TABLES["connectors"][s["Bulldog_index"]]
    dc, s["hc"], t = f32(row["dc"]), f32(row["hc"]), f32(row["t"])
    tooth = {95.0: 9.5, 117.0: 12.5}.get(dc, f32((s["hc"] - t) / 2))
    k1 = f32(min(1.0, div(s["t1"], 3.0 * tooth), div(s["t2"], 5.0 * tooth)))
    k2 = 1.0
    k3 = f32(min(s["rho_k"] / 350.0, 1.5))
    return f32(25.0 * k1 * k2 * k3 * power(dc, 1.5) / 1000)


# ---------------------------------------------------------------------------------------------- rows, splitting

def effective_numbers(s):
    """(8.34) for bolts, (8.71) for connectors, the latter without a minimum."""
    n = s["n_row"]
    s["nef_b_row"] = f32(power(n, 0.9) * power(div(s["a1"], 13.0 * s["d"]), 0.25))
    if s["nef_b_row"] > n:
        s["nef_b_row"] = float(n)
    s["nef_f_row"] = f32(2.0 + (1.0 - n / 20.0) * (n - 2))
    s["nef_f"] = f32(s["rows"] * s["nef_f_row"])
    s["nef_b"] = f32(s["rows"] * s["nef_b_row"])


def splitting(s, h, he, b):
    """8.1.4, (8.2) to (8.4), with w = 1."""
    x = f32(div(he, h))
    y = f32(div(he, 1.0 - x))
    f90_rk = f32(14.0 * b * root(y) / 1000)
    s["F90_Rd"] = f32(div(s["kmod"] * f90_rk, s["gm"]))
    force = abs(s["P"] / 2) if s["Con_code"] in TABLES["half_force"] else abs(s["P"])
    s["P_sin"] = f32(math.sin(s["alp"] / DEGREES_PER_RADIAN) * force)
    s["Tverr_kontroll"] = f32(div(s["P_sin"], s["F90_Rd"]))


# ---------------------------------------------------------------------------------------------- the pass

def run_pass(s):
    result = {"end": "normal", "fault": None, "messages": []}
    try:
        result["end"] = _pass(s, result["messages"])
    except Fault as fault:
        result["end"] = "fault"
        result["fault"] = {"number": fault.number, "description": str(fault)}
    return result


def _pass(s, messages):
    row = TABLES["load_duration"].get(str(s["Lastvar"]))
    if row:
        s["Lastvar_txt"] = fixed(row["eng" if s["Lang"] == "Eng" else "nor"], 20)
        if 1 <= s["Klima"] <= 3:
            s["kmod"] = f32(row["kmod"][s["Klima"] - 1])
    s["n_bolt"] = TABLES["n_bolt"].get(str(s["Ant_index"]), s["n_bolt"])
    if s["Med_bulldog"]:
        messages += connector_refused(s)
        if s["Bulldog_invalid"]:
            return "connector refused"
    if 0 <= s["Bolt_index"] < len(TABLES["bolts"]):
        s["d"], s["fuk"] = f32(TABLES["bolts"][s["Bolt_index"]]["d"]), f32(TABLES["bolts"][s["Bolt_index"]]["fuk"])
    s["d_skive"], s["t_skive"] = f32(3.0 * s["d"]), f32(0.3 * s["d"])
    material = table_row("materials", s["Mat_index"], 100)
    s["rho_k"], s["fc90k"] = f32(material.get("dens", 0.0)), f32(material.get("fc90k", 0.0))
    factor = TABLES["gm_by_type"].get(material.get("Type", ""))
    if factor:
        s["gm"] = s[factor]
    if s["Standard"]:
        for n, index in (("1", "Prof1_index"), ("2", "Prof2_index")):
            section = table_row("profiles", s[index], 400)
            s["b" + n], s["h" + n] = f32(section.get("b", 0.0)), f32(section.get("h", 0.0))
    else:
        for n in ("b1", "h1", "b2", "h2"):
            s[n] = str_to_num(s["Txt_" + n])
    if 0.0 in (s["b1"], s["b2"], s["h1"], s["h2"]):
        return "zero section"
    for n in ("b1", "h1", "b2", "h2"):
        s["Txt_" + n] = format_one_decimal(s[n])            # read again by the next pass with free entry
    if 1 <= s["Con_type"] <= 5:
        for variant, fits in ((1, s["enk_1"] and s["enk_2"]), (2, s["dob_1"] and s["enk_2"]), (3, s["enk_1"] and s["dob_2"])):
            if fits:                                        # a later match wins
                s["Con_code"] = "%d.%d" % (s["Con_type"], variant)
    s["Ab_valg"] = TABLES["arrangement_choice"].get(s["Con_code"][0], {}).get(str(s["n_bolt"]), s["Ab_valg"])
    rk_bolt = shear_plane(s)
    rk_for = None
    if s["Med_bulldog"]:
        rk_for = s["Fv_Rk"] = connector_capacity(s)
    clear_spacing(s)
    case = spacing_case(s)
    if case:
        compute_spacing(s, case)
    for c in TABLES["cases"]:
        if c["Con_type"] == s["Con_type"] and c["n_bolt"] == s["n_bolt"] and c["letter"] in (None, s["Bolt_ab"]):
            s["Case_code"] = c["code"]
    s["Has_row"] = False
    along = TABLES["rows"].get(str(s["Con_type"]), {}).get(s["Case_code"])
    if along:
        s["a1"], s["rows"], s["n_row"], s["Has_row"] = s[along["a1"]], along["rows"], along["n_row"], True
    effective_numbers(s)
    if not s["Man_he_on"]:
        h = b = s["he"] = 0.0
        column = TABLES["he"].get(s["Case_code"])
        if column:
            member = TABLES["split_member"][s["Case_code"][0]]
            h, b = s[member["h"]], s[member["b"]]
            s["he"] = f32(h - s[column["compression" if s["P"] > 0.0 else "tension"]])
        splitting(s, h, s["he"], b)
    planes = 2 if s["dob_1"] or s["dob_2"] else 1
    bolts = s["nef_b"] if s["Has_row"] else s["n_bolt"]
    s["Rd_bolt"] = f32(div(s["kmod"] * rk_bolt * bolts * planes, s["gm"] * 1000))
    total = s["Rd_bolt"]
    if s["Med_bulldog"]:
        connectors = s["nef_f"] if s["Has_row"] else s["n_bolt"]
        s["Rd_for"] = f32(div(s["kmod"] * rk_for * connectors * planes, s["gm"]))
        total = s["Rd_for"] + s["Rd_bolt"]
    s["uf"] = f32(abs(div(s["P"], total)))
    return "normal"


def table_row(table, index, last):
    """A row of a fixed table; rows past the filled ones are empty."""
    if not 0 <= index <= last:
        raise Fault(9)
    rows = TABLES[table]
    return rows[index] if index < len(rows) else {}


# ---------------------------------------------------------------------------------------------- JSON Lines

def run_line(steps):
    """An object of inputs or an array of them, from a new project; gives the last result and the state."""
    s = new_project()
    for inputs in steps if isinstance(steps, list) else [steps]:
        apply(s, inputs)
        result = run_pass(s)
    return result, s


def json_state(s, names):
    """Names and values as JSON, floats in their shortest form."""
    return "{%s}" % ",".join("%s:%s" % (json.dumps(n), shortest(s[n]) if n in ALL_FLOATS else json.dumps(s[n], ensure_ascii=False))
                             for n in names)


def main():
    for line in sys.stdin:
        if line.strip():
            result, s = run_line(json.loads(line))
            result["messages"] = [{"text": t, "style": 0} for t in result["messages"]]
            head = json.dumps(result, ensure_ascii=False)[:-1]
            print('%s, "state": %s}' % (head, json_state(s, STATE_NAMES)))


if __name__ == "__main__":
    main()
