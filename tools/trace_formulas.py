#!/usr/bin/env python3
"""trace_formulas.py [--write]: every formula and rule of the calculation with its clause, its symbol, its place in the code and
the tests that hold it. The tables have to stand like this in docs/verification.md, where --write puts them.

So that they cannot go stale: a formula is told by the text of its statement, which is to be found once; every statement of
calc/ that stores a number has a row; rules and the formulas of the check sheet are read from their tables in the code; every
test that is named exists, and every rule has a row in its test. Exit status 0 when all of this holds."""
import difflib
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "docs/verification.md"
BEGIN, END = "<!-- trace_formulas.py: from here on -->\n", "<!-- trace_formulas.py: to here -->\n"

# Symbol, clause, what it is; file in calc/, the beginning of what the statement says; tests in tests/calc/.
FORMULAS = [
    ("d_skive", "10.4.3 (2)", "diameter of the washer, 3 d", "GlobalParameter", "s.d_skive = Store(3.0 * s.d", "GlobalParameter.bolt_table"),
    ("t_skive", "10.4.3 (2)", "thickness of the washer, 0.3 d", "GlobalParameter", "s.t_skive = Store(0.3 * s.d", "GlobalParameter.bolt_table"),
    ("k90", "(8.33)", "factor for the angle, softwood", "Shear", "s.k90 = Store(1.35 + 0.015 * s.d", "Shear.single_shear_modes_by_hand"),
    ("alp1", "8.2.2", "angle of force to grain in t1", "Shear", "s.alp1 = Store(angle1", "Shear.fifteen_codes_take_thickness_angle_family_and_labels_from_their_row"),
    ("alp2", "8.2.2", "angle of force to grain in t2", "Shear", "s.alp2 = Store(angle2", "Shear.fifteen_codes_take_thickness_angle_family_and_labels_from_their_row"),
    ("fh0k", "(8.32)", "embedment along the grain", "Shear", "s.fh0k = Store((1.0 - s.d * 0.01) * 0.082 * s.rho_k", "Shear.single_shear_modes_by_hand"),
    ("fh1k", "(8.31)", "embedment in t1", "Shear", "fh1k = Store(Divide(s.fh0k, Square(std::sin(angle1)) * s.k90", "Shear.double_shear_modes_by_hand"),
    ("fh2k", "(8.31)", "embedment in t2", "Shear", "fh2k = Store(Divide(s.fh0k, Square(std::sin(angle2)) * s.k90", "Shear.single_shear_modes_by_hand"),
    ("beta", "(8.8)", "ratio of embedments", "Shear", "beta = Store(Divide(fh2k, fh1k", "Shear.single_shear_modes_by_hand"),
    ("My_Rk", "(8.30)", "yield moment", "Shear", "s.My_Rk = Store(0.3 * s.fuk * Power(s.d, 2.6", "Shear.single_shear_modes_by_hand"),
    ("Fax_bolt", "8.5.2 (1)", "bolt in tension", "Shear", "s.Fax_bolt = Store((PI / 4.0) * s.fuk * Square(s.d)", "Shear.the_bolt_sets_the_rope_effect_where_the_washer_bears_more"),
    ("Fax_skive", "8.5.2 (2)", "washer on the timber, hole d + 2", "Shear", "s.Fax_skive = Store((Square(s.d_skive) - Square(static_cast<double>(s.d) + 2.0)) * 3.0 * s.fc90k", "Shear.the_washer_sets_the_rope_effect_of_M12_in_soft_timber"),
    ("Fv_a, Fv_g", "(8.6 a), (8.7 g)", "embedment in t1", "Shear", "return Store(p.t1 * p.fh * p.d", "Shear.single_shear_modes_by_hand"),
    ("Fv_b", "(8.6 b)", "embedment in t2", "Shear", "return Store(p.t2 * fh2k * p.d", "Shear.single_shear_modes_by_hand"),
    ("Fv_c", "(8.6 c)", "embedment in both, the bolt turns", "Shear", "return Store( Divide(p.d * p.fh * p.t1, be + 1.0", "Shear.single_shear_modes_by_hand"),
    ("Fv_d, Fv_j", "(8.6 d), (8.7 j)", "one plastic hinge, embedment in t1", "Shear", "return Store( Divide(1.05 * p.d * p.fh * p.t1, be + 2.0", "Shear.double_shear_modes_by_hand"),
    ("Fv_e", "(8.6 e)", "one plastic hinge, embedment in t2", "Shear", "return Store(Divide(1.05 * p.d * p.fh * p.t2, 2.0 * be + 1.0", "Shear.single_shear_modes_by_hand"),
    ("Fv_f, Fv_k", "(8.6 f), (8.7 k)", "two plastic hinges", "Shear", "return Store(1.15 * Root(", "Shear.double_shear_modes_by_hand"),
    ("Fv_h", "(8.7 h)", "half the embedment in t2", "Shear", "return Store(0.5 * fh2k * p.t2 * p.d", "Shear.double_shear_modes_by_hand"),
    ("Fv_c to Fv_f, Fv_j, Fv_k", "8.2.2 (2)", "rope effect at most 25 % of the Johansen part", "Shear", "const float limit = Store(johansen * 0.25", "Shear.rope_effect_is_limited_on_each_mode_by_itself"),
    ("Fv_c to Fv_f, Fv_j, Fv_k", "8.2.2 (2)", "with the rope effect", "Shear", "return Store(static_cast<double>(johansen) + (limit < Fax_q ? limit : Fax_q)", "Shear.limit_and_rope_meet_without_a_step"),
    ("Fv_c to Fv_f", "8.2.2 (2)", "a quarter of the axial capacity, single shear", "Shear", "const float Fax_q = Store(MinVal(2, s.Fax_bolt, s.Fax_skive) / 4.0", "Shear.single_shear_modes_by_hand"),
    ("Fv_j, Fv_k", "8.2.2 (2)", "a quarter of the axial capacity, double shear", "Shear", "const float Fax_q = Store(s.Fax_min / 4.0", "Shear.double_shear_modes_by_hand"),
    ("nef_b_row", "(8.34)", "effective bolts of a row", "DesignCapacity", "s.nef_b_row = Store(Power(s.n_row, 0.9", "DesignCapacity.effective_numbers_by_hand"),
    ("nef_b", "8.5.1.1 (4)", "effective bolts of all rows", "DesignCapacity", "s.nef_b = Store(static_cast<double>(s.rows) * s.nef_b_row", "DesignCapacity.effective_numbers_by_hand"),
    ("nef_f_row", "(8.71)", "effective connectors of a row", "DesignCapacity", "s.nef_f_row = Store(2.0 + (1.0 - s.n_row / 20.0) * (s.n_row - 2)", "DesignCapacity.effective_numbers_by_hand"),
    ("nef_f", "(8.71)", "effective connectors of all rows", "DesignCapacity", "s.nef_f = Store(static_cast<double>(s.rows) * s.nef_f_row", "DesignCapacity.connectors_in_a_row_do_not_depend_on_their_spacing"),
    ("Rd_bolt", "(2.17)", "design capacity of the bolts", "DesignCapacity", "s.Rd_bolt = Store(Divide(static_cast<double>(s.kmod) * Rk_bolt * number * Planes(s), s.gm * 1000.0", "DesignCapacity.capacities_by_hand"),
    ("Rd_for", "(2.17)", "design capacity of the connectors", "DesignCapacity", "s.Rd_for = Store(Divide(static_cast<double>(s.kmod) * Rk_for * number * Planes(s), s.gm", "DesignCapacity.capacities_by_hand"),
    ("uf", "8.1.2, 8.10 (1)", "utilisation; bolts and connectors are added", "DesignCapacity", "s.uf = Store(std::fabs(Divide(s.P, capacity", "DesignCapacity.utilisation_adds_bolts_and_connectors"),
    ("he", "8.1.4", "loaded edge to the farthest bolt, at minimum distance", "Splitting", "he = Store(static_cast<double>(h) - s.*(s.P > 0.0F", "Splitting.loaded_edge_of_the_35_cases_by_the_sign_of_the_force"),
    ("F90_Rd", "(8.4)", "he / h", "Splitting", "const float x = Store(Divide(he, h", "Splitting.x_and_y_are_rounded_to_32_bits_before_they_are_used"),
    ("F90_Rd", "(8.4)", "he / (1 - he / h)", "Splitting", "const float y = Store(Divide(he, 1.0 - x", "Splitting.x_and_y_are_rounded_to_32_bits_before_they_are_used"),
    ("F90_Rd", "(8.4)", "splitting capacity, w = 1", "Splitting", "const float F90_Rk = Store(14.0 * b * Root(y, where) / 1000.0", "Splitting.check_by_hand"),
    ("F90_Rd", "(2.17)", "its design value", "Splitting", "s.F90_Rd = Store(Divide(static_cast<double>(s.kmod) * F90_Rk, s.gm", "Splitting.check_by_hand"),
    ("P_sin", "(8.3)", "force across the grain, half of it in five codes", "Splitting", "s.P_sin = Store(std::sin(s.alp / degrees_per_radian) * force", "Splitting.half_of_the_force_acts_in_five_connections"),
    ("Tverr_kontroll", "(8.2)", "utilisation of splitting", "Splitting", "s.Tverr_kontroll = Store(Divide(s.P_sin, s.F90_Rd", "Splitting.check_by_hand"),
    ("Fv_Rk", "8.10 (4)", "depth of the teeth; D95 and D117 have their own", "Connector", "float he_c = Store((static_cast<double>(hc) - t) / 2.0", "Connector.capacity_of_every_size_by_hand"),
    ("Fv_Rk", "(8.73)", "k1, thickness of the members", "Connector", "k1 = MinVal(3, 1.0F, Store(Divide(s.t1, 3.0 * he_c", "Connector.capacity_of_every_size_by_hand"),
    ("Fv_Rk", "(8.75)", "end distance, always taken as sufficient", "Connector", "const float a3t = Store(dc * 1.5", "Connector.capacity_of_every_size_by_hand"),
    ("Fv_Rk", "(8.74)", "k2, end distance", "Connector", "const float ratio = Store(Divide(a3t, dc * 1.5", "Connector.capacity_of_every_size_by_hand"),
    ("Fv_Rk", "(8.78)", "k3, density", "Connector", "k3 = Store(s.rho_k / reference_density", "Connector.density_factor_is_exact_where_it_turns"),
    ("Fv_Rk", "(8.72)", "one connector in a plane, factor 25", "Connector", "Fv_Rk_kN = Store(25.0 * k1 * k2 * k3 * Power(row->dc, 1.5", "Connector.capacity_of_every_size_by_hand"),
]

# What is looked up or chosen: symbol, clause, what, file, what stands there, tests.
TABLES = [
    ("kmod", "table 3.1", "one table for all materials", "calc/GlobalParameter.h", "class_table{{", "GlobalParameter.kmod_and_class_names"),
    ("gm", "table 2.3", "by the type of the material", "calc/GlobalParameter.cpp", "void Get_gm(", "GlobalParameter.gm_follows_the_whole_text_of_the_type"),
    ("rho_k, fc90k", "EN 338, EN 14080", "of the chosen material, one for both members", "calc/GlobalParameter.cpp", "void Get_material(", "GlobalParameter.material_of_a_row_and_the_fault_outside_the_table"),
    ("d, fuk", "8.5.1", "bolts", "calc/GlobalParameter.h", "bolt_table{{", "GlobalParameter.bolt_table"),
    ("dc, hc", "8.10", "connectors", "calc/GlobalParameter.h", "connector_table{{", "GlobalParameter.connector_table"),
    ("Bulldog_invalid", "8.10", "bolts that a connector refuses", "calc/Connector.cpp", "connector_fits{{", "Connector.refuses_the_bolts_of_the_table_in_both_qualities"),
    ("t1, t2, alp1, alp2", "8.2.2", "thicknesses and angles of the 15 codes", "calc/Shear.cpp", "shear_table{{", "Shear.fifteen_codes_take_thickness_angle_family_and_labels_from_their_row"),
    ("F_v,Rk", "(8.6)", "the least mode of single shear", "calc/Shear.cpp", "Rk = MinVal(3, MinVal(4, s.Fv_c, s.Fv_d, s.Fv_e, s.Fv_f), s.Fv_a, s.Fv_b)", "Shear.capacity_of_the_fifteen_codes_by_hand"),
    ("F_v,Rk", "(8.7)", "the least mode of double shear", "calc/Shear.cpp", "Rk = MinVal(3, MinVal(2, s.Fv_j, s.Fv_k), s.Fv_g, s.Fv_h)", "Shear.capacity_of_the_fifteen_codes_by_hand"),
    ("a1, n_row, rows", "8.5.1.1 (4)", "rows along the grain", "calc/DesignCapacity.cpp", "row_table{{", "DesignCapacity.rows_along_the_grain_of_the_cases_that_have_one"),
    ("he", "8.1.4", "loaded edge of the 35 cases", "calc/Splitting.cpp", "edge_table{{", "Splitting.loaded_edge_of_the_35_cases_by_the_sign_of_the_force"),
    ("P_sin", "8.1.4", "codes whose splitting member takes half of the force", "calc/Splitting.cpp", "half_force{", "Splitting.half_of_the_force_acts_in_five_connections"),
]

# Rounding itself, and the reading of numbers.
NO_FORMULAS = ("Arithmetic", "Text")

# The distance of the standard behind each number of spacing/Rules.cpp.
BOLT_CLAUSES = {
    "d3": "a4,c", "d4": "a2, a3,c, at 90° a4,t", "d7": "a3,c at 90°", "Nd": "a1, chosen", "d4K": "a1", "end_7d": "a3,t", "loaded_3d": "a4,t", "loaded_4d": "a3,c",
    "loaded_4d_at_0": "a3,c", "across_K": "a1 seen across, at least a2", "across_N": "a1 seen across, at least a2", "only_7d": "a3,t",
    "only_80": "a3,t", "no_number": "a3,t"}
CONNECTOR_CLAUSES = {
    "D06": "a4,c", "D08": "a4,t", "D12": "a2, a3,c", "D15": "a3,c at 90°", "D20": "a3,t", "along_N": "a1, chosen", "along_K": "a1", "loaded_D": "a4,t",
    "end_D": "a3,c", "end_D_at_0": "a3,c", "across_K_D": "a1 seen across, at least a2", "across_r": "a1 seen across, at least a2",
    "across_r_or_0": "a1 seen across, at least a2", "no_number_D": "a4,c"}


def read(path):
    return (ROOT / path).read_text(encoding="utf-8")


def statements(text):
    """The statements that store a number, each on one line."""
    code = re.sub(r"//[^\n]*", "", text)
    return [" ".join(one.split()) for one in re.split(r"[;{}]\s", code) if re.search(r"\bStore\(", one)]


def known_tests():
    """Suite.name of every test of the tree, with its file."""
    found = {}
    for path in sorted((ROOT / "tests").rglob("*_test.cpp")):
        for suite, name in re.findall(r"^TEST(?:_F|_P)?\((\w+), (\w+)\)", path.read_text(encoding="utf-8"), re.MULTILINE):
            found[suite + "." + name] = path.relative_to(ROOT).as_posix()
    return found


def formula_rows(tests, wrong):
    claimed = set()
    all_statements = {name: statements(read("calc/%s.cpp" % name)) for name in
                      sorted(path.stem for path in (ROOT / "calc").glob("*.cpp") if path.stem not in NO_FORMULAS)}
    for symbol, clause, what, name, pattern, test in FORMULAS:
        hits = [one for one in all_statements[name] if pattern in one]
        if len(hits) != 1:
            wrong.append("calc/%s.cpp: %d statements with %r" % (name, len(hits), pattern))
        claimed.update((name, one) for one in hits)
        if test not in tests:
            wrong.append("no test " + test)
        yield symbol, clause, what, "calc/%s.cpp" % name, test
    for name, ones in all_statements.items():
        wrong += ["calc/%s.cpp: without a row: %s" % (name, one) for one in ones if (name, one) not in claimed]


def table_rows(tests, wrong):
    for symbol, clause, what, file, pattern, test in TABLES:
        if read(file).count(pattern) != 1:
            wrong.append("%s: not once: %s" % (file, pattern))
        if test not in tests:
            wrong.append("no test " + test)
        yield symbol, clause, what, file, test


def sheet_rows(tests, wrong):
    """Symbol, clause and notation of every formula of the check sheet."""
    test = "Sheet.every_number_is_that_of_the_state_in_every_case"
    if test not in tests:
        wrong.append("no test " + test)
    text = read("sheet/Strength_section.cpp")
    named = dict(re.findall(r'string_view (\w+) = "([^"]+)";', text))
    for clause, symbol, notation in re.findall(r'"(\(?\d[\w. ()]*)",\s*"(\w+)",\s*"([^"]+)"', text):
        yield symbol, clause, notation
    for clause, notation in re.findall(r"\{'\w', \"([^\"]+)\", (\"[^\"]+\"|\w+),", text):
        yield "F_J", clause, notation.strip('"') if notation.startswith('"') else named[notation]
    for clause, symbol, one, other in re.findall(
            r'"(\([\d.]+\)|8[\d.]+)", "(\w+)",\s*[^"?;]*\?\s*"([^"]+)"\s*:\s*"([^"]+)"', text):
        yield symbol, clause, one
        yield symbol, clause, other


def rule_rows(kind, clauses, wrong):
    """Rule, distance of the standard and formula, read from the legend; each has a row in the test of the rules."""
    text = read("spacing/Rules.cpp")
    numbers = re.search(r"enum %sNumber : std::uint8_t \{(.*?)\};" % kind, text, re.DOTALL).group(1)
    names = re.findall(r"^\s*(\w+),", numbers, re.MULTILINE)
    formulas = re.search(r"%s_formulas\{(.*?)\};" % kind.lower(), text, re.DOTALL).group(1)
    formulas = dict(zip(names, re.findall(r'"([^"]*)"', formulas), strict=True))
    if set(names) != set(clauses):
        wrong.append("%s rules: numbers without a distance of the standard: %s" % (kind, set(names) ^ set(clauses)))
    letter = kind[0]
    legend = re.findall(r"^    \{(%s\d+), *(\w+)," % letter, re.search(r"%s_legend\{\{(.*?)\}\};" % kind.lower(), text, re.DOTALL).group(1), re.MULTILINE)
    tested = set(re.findall(r'\{"(%s\d+)[",]' % letter, read("tests/spacing/Rules_test.cpp")))
    for rule, number in legend:
        if rule not in tested:
            wrong.append("tests/spacing/Rules_test.cpp: no row of " + rule)
        yield rule, clauses[number], formulas[number]


def table(headings, rows):
    return ["| %s |" % " | ".join(headings), "|" + " --- |" * len(headings), *("| %s |" % " | ".join(row) for row in rows), ""]


def page(wrong):
    tests = known_tests()
    code = lambda text: "`%s`" % text
    formulas = [(code(s), c, w, f, code(t)) for s, c, w, f, t in formula_rows(tests, wrong)]
    tables = [(code(s), c, w, f, code(t)) for s, c, w, f, t in table_rows(tests, wrong)]
    sheet = [(code(s), c, code(n)) for s, c, n in dict.fromkeys(sheet_rows(tests, wrong))]
    bolts = list(rule_rows("Bolt", BOLT_CLAUSES, wrong))
    connectors = list(rule_rows("Connector", CONNECTOR_CLAUSES, wrong))
    for test in ("Rules.of_the_bolts_on_both_sides_of_their_limits", "Rules.of_the_connectors_on_both_sides_of_their_limits"):
        if test not in tests:
            wrong.append("no test " + test)
    if len(sheet) < 27 or len(bolts) != 35 or len(connectors) != 27:
        wrong.append("read %d formulas of the sheet, %d and %d rules" % (len(sheet), len(bolts), len(connectors)))
    lines = ["#### Formulas", ""] + table(("symbol", "EN 1995-1-1", "what", "file", "test by hand"), formulas)
    lines += ["Each of them is also in `Reference.single_formulas_are_the_same_to_the_last_bit` or", "`Reference.passes_are_the_same_to_the_last_bit_in_every_build`.", ""]
    lines += ["#### Tables and choices", ""] + table(("symbol", "from", "what", "file", "test"), tables)
    lines += ["#### Formulas of the check sheet", "", "`sheet/Strength_section.cpp`; `Sheet.every_number_is_that_of_the_state_in_every_case`.", ""]
    lines += table(("symbol", "EN 1995-1-1", "notation"), sheet)
    lines += ["#### Rules of the distances", "", "`spacing/Rules.cpp`; `Rules.of_the_bolts_on_both_sides_of_their_limits` and",
              "`Rules.of_the_connectors_on_both_sides_of_their_limits`, and every cell of all 35 cases in `Rules_reference`.", ""]
    lines += table(("bolts", "table 8.4", "formula"), [(r, c, code(f)) for r, c, f in bolts])
    lines += table(("connectors", "table 8.8", "formula"), [(r, c, code(f)) for r, c, f in connectors])
    lines.append("%d formulas, %d tables and choices, %d formulas of the sheet, %d rules." % (len(formulas), len(tables), len(sheet), len(bolts) + len(connectors)))
    return "\n".join(lines) + "\n"


def main():
    wrong = []
    text = page(wrong)
    whole = PAGE.read_text(encoding="utf-8")
    head, rest = whole.split(BEGIN)
    stands, tail = rest.split(END)
    if "--write" in sys.argv[1:]:
        PAGE.write_text(head + BEGIN + "\n" + text + "\n" + END + tail, encoding="utf-8")
    elif stands.strip() != text.strip():
        wrong.append("docs/verification.md has other tables; tools/trace_formulas.py --write puts these there:")
        wrong += list(difflib.unified_diff(stands.strip().splitlines(), text.strip().splitlines(), lineterm="", n=0))[:20]
    for line in wrong:
        print(line)
    print("trace_formulas: %d wrong" % len(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
