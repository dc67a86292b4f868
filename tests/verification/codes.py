"""The fifteen connections by hand: one joint of each code, every value from the standard's formulas, with the program's
deliberate departures from it named where they count."""
from standard import *

BOLTS = ("M12x4.6", "M16x4.6", "M20x4.6", "M24x4.6", "M12x8.8", "M16x8.8", "M20x8.8", "M24x8.8")
NUMBERS = (1, 2, 3, 4, 6)
KMOD = {1: 0.6, 2: 0.7, 3: 0.8, 4: 0.9, 5: 1.1}                         # table 3.1, service classes 1 and 2
# Row of the delivered materials: density, fc90k, partial factor (EN 338, EN 14080; table 2.3).
MATERIALS = {5: ("C24", 350, 2.5, 1.3), 7: ("C30", 380, 2.7, 1.3)}
# d_c in (8.72), depth of the teeth.
CONNECTORS = {0: (50, 6.0), 1: (62, 7.4), 2: (75, 9.125)}

# Of each code: section of member 1 and 2, bolt, number of bolts, arrangement, chosen spacing as a multiple of d, connector,
# angle, force (above 0 compression), load-duration class, material; then by the drawing of the case: bolts in a row along
# the grain of the member whose ends they near, number of rows, and lines of bolts across members 1 and 2.
JOINTS = {
    "1.1": ((48, 198, 48, 223), "M12x4.6", 1, "b", 5, None, 30, -4, 3, 5, None, (1, 1)),
    "1.2": ((36, 198, 48, 223), "M16x8.8", 2, "b", 7, None, 40, -12, 3, 5, (2, 1), (1, 2)),
    "1.3": ((48, 248, 61, 248), "M12x8.8", 4, "b", 8, 0, 50, 18, 4, 7, (2, 2), (2, 2)),
    "2.1": ((48, 198, 48, 148), "M16x4.6", 1, "b", 5, None, 60, -3, 1, 5, None, (1, 1)),
    "2.2": ((48, 248, 73, 148), "M12x8.8", 2, "b", 9, 1, 70, -9, 3, 5, (2, 1), (2, 1)),
    "2.3": ((73, 298, 48, 148), "M12x4.6", 3, "b", 6, None, 45, 8, 4, 7, (3, 1), (3, 1)),
    "3.1": ((48, 223, 48, 173), "M16x8.8", 2, "b", 6, None, 55, -5, 2, 5, (2, 1), (2, 1)),
    "3.2": ((48, 248, 73, 198), "M12x8.8", 4, "b", 6, None, 35, 10, 5, 5, (2, 2), (2, 2)),
    "3.3": ((61, 298, 36, 148), "M12x4.6", 3, "b", 7, 1, 25, -7, 3, 7, (3, 1), (3, 1)),
    "4.1": ((48, 223, 48, 148), "M20x4.6", 2, "b", 5, None, 90, -4, 3, 5, (2, 1), (2, 1)),
    "4.2": ((36, 198, 73, 148), "M12x8.8", 1, "b", 5, 0, 90, 5, 4, 5, None, (1, 1)),
    "4.3": ((73, 248, 48, 198), "M12x4.6", 4, "b", 6, None, 90, -8, 1, 7, (2, 2), (2, 2)),
    "5.1": ((61, 223, 48, 148), "M24x4.6", 1, "b", 5, None, 90, 5, 3, 5, None, (1, 1)),
    "5.2": ((48, 248, 73, 148), "M12x8.8", 2, "b", 8, None, 90, 9, 4, 7, (2, 1), (2, 1)),
    "5.3": ((73, 298, 36, 198), "M12x4.6", 6, "b", 5, None, 90, -9, 3, 5, (3, 2), (3, 2)),
}

# As the rows are printed.
ORDER = ("kmod gm t1 t2 alp1 alp2 k90 fh0k fh1k fh2k beta My_Rk Fax_bolt Fax_skive Fv_a Fv_b Fv_c Fv_d Fv_e Fv_f Fv_g Fv_h Fv_j Fv_k "
         "nef_b_row nef_b Rd_bolt Fv_Rk nef_f Rd_for uf Sum_a Sum_b he F90_Rd P_sin Tverr_kontroll").split()

# A doubled member that splits takes half of the force in each piece; 2.2 and 2.3 are deliberate exceptions.
HALF_BY_PROGRAM = ("1.3", "2.3", "3.2", "4.2", "5.2")


def inputs(code):
    """The joint as the headless tool takes it."""
    (b1, h1, b2, h2), bolt, number, layout, spacing, connector, angle, force, load, material, *_ = JOINTS[code]
    variant = code[2]
    given = {"Con_type": int(code[0]), "enk_1": variant != "2", "dob_1": variant == "2", "enk_2": variant != "3",
             "dob_2": variant == "3", "Standard": False, "Txt_b1": str(b1), "Txt_h1": str(h1), "Txt_b2": str(b2), "Txt_h2": str(h2),
             "Bolt_index": BOLTS.index(bolt), "Ant_index": NUMBERS.index(number), "Bolt_ab": layout, "Avstand_index": spacing - 5,
             "alp": angle, "P": force, "Lastvar": load, "Klima": 1, "Mat_index": material,
             "Kun_bolt": connector is None, "Med_bulldog": connector is not None}
    return given if connector is None else {**given, "Bulldog_index": connector}


def thicknesses(code, b1, b2, angle, notes):
    """t1, t2 and the angles of the force to the grain in them: t1 is the side member in double shear. In type 1 the force runs
    along member 1, in all others along member 2."""
    along_1, variant = code[0] == "1", code[2]
    in_1, in_2 = (0, angle) if along_1 else (angle, 0)
    if variant == "1":
        return (b1, b2, in_1, in_2) if along_1 else (b2, b1, in_2, in_1)
    if variant == "2":
        if code == "5.2":
            notes["t2"] = "member 2 is %d thick; the program takes member 1 for both" % b2
            return b1, b1, in_1, in_2
        return b1, b2, in_1, in_2
    return b2, b1, in_2, in_1


def splitting_force(code, force, angle, notes):
    """The force across the grain of the member that splits; a doubled member takes half in each of its pieces."""
    doubled = code[2] == ("3" if code[0] == "1" else "2")
    half = code in HALF_BY_PROGRAM
    if doubled != half:
        notes["P_sin"] = "member 1 is %s, yet the program takes %s of the force" % (
            "doubled" if doubled else "single", "half" if half else "the whole")
    return abs(force) * sin(angle) * (0.5 if half else 1)


def least_heights(code, d, N, angle, lines, force):
    """Table 8.4 across each member: unloaded edge, spacings of the lines, and the loaded edge of the member that the force
    crosses. The chosen spacing along the other member, seen across this one, is the spacing here, at least 4 d."""
    run_1, crossed = (True, 2) if code[0] == "1" else (False, 1)
    chosen = max(N * d * sin(angle), 4 * d)                             # along the member that the force follows
    other = max(a1_min(d, angle) * sin(angle), 4 * d)                   # along the one that it crosses
    of_crossed = a4t(d, angle) + 3 * d + (lines[crossed - 1] - 1) * chosen
    of_other = 6 * d + (lines[0 if run_1 else 1] - 1) * other
    return (of_other, of_crossed) if run_1 else (of_crossed, of_other)


def by_hand(code):
    """Rows of name, clause, unit, value; and notes by name."""
    (b1, h1, b2, h2), bolt, number, layout, N, connector_row, angle, force, load, material, row, lines = JOINTS[code]
    notes, rows = {}, []

    def put(name, clause, unit, value):
        rows.append((name, clause, unit, value))
        return value

    _, rho, fc90, gamma = MATERIALS[material]
    d, fuk = int(bolt[1:3]), 800 if bolt.endswith("8.8") else 400
    double_shear = code[2] != "1"
    planes = 2 if double_shear else 1
    k = put("kmod", "table 3.1", "", KMOD[load])
    put("gm", "table 2.3", "", gamma)
    t1, t2, angle1, angle2 = thicknesses(code, b1, b2, angle, notes)
    for name, unit, value in (("t1", "mm", t1), ("t2", "mm", t2), ("alp1", "°", angle1), ("alp2", "°", angle2)):
        put(name, "8.2.2", unit, value)
    put("k90", "(8.33)", "", k90(d))
    put("fh0k", "(8.32)", "N/mm²", fh0(d, rho))
    f1 = put("fh1k", "(8.31)", "N/mm²", fh(d, rho, angle1))
    f2 = put("fh2k", "(8.31)", "N/mm²", fh(d, rho, angle2))
    put("beta", "(8.8)", "", f2 / f1)
    My = put("My_Rk", "(8.30)", "Nmm", yield_moment(fuk, d))
    tension = put("Fax_bolt", "8.5.2 (1)", "N", bolt_tension(fuk, d))
    pulled = put("Fax_skive", "8.5.2 (2)", "N", washer(3 * d, d + 2, fc90))
    notes["Fax_skive"] = "a hole of d + 1 would give %.0f N" % washer(3 * d, d + 1, fc90)
    modes = (double if double_shear else single)(d, t1, t2, f1, f2, My, min(tension, pulled))
    for mode, value in modes.items():
        put("Fv_" + mode, "(8.%d %s)" % (7 if double_shear else 6, mode), "N", value)
    count = number
    if row:
        in_row = put("nef_b_row", "(8.34)", "", nef(row[0], N * d, d))
        count = put("nef_b", "8.5.1.1 (4)", "", row[1] * in_row)
    capacity = put("Rd_bolt", "(2.17)", "kN", k * min(modes.values()) * count * planes / gamma / 1000)
    if connector_row is not None:
        dc, teeth = CONNECTORS[connector_row]
        one = put("Fv_Rk", "(8.72)", "kN", connector(25, t1, t2, teeth, rho, dc) / 1000)
        notes["Fv_Rk"] = "18 instead of 25 would give %.3f kN" % (connector(18, t1, t2, teeth, rho, dc) / 1000)
        count = number
        if row:
            count = put("nef_f", "(8.71)", "", row[1] * nef_connectors(row[0]))
        capacity += put("Rd_for", "(2.17)", "kN", k * one * count * planes / gamma)
    put("uf", "8.1.2", "", abs(force) / capacity)
    heights = least_heights(code, d, N, angle, lines, force)
    put("Sum_a", "table 8.4", "mm", heights[0])
    put("Sum_b", "table 8.4", "mm", heights[1])
    b, h = (b2, h2) if code[0] == "1" else (b1, h1)
    edge = 3 * d                                                        # of the farthest bolt to the other edge
    if code[0] == "5" and layout == "b" and number in (2, 3, 6):
        edge = a4t(d, angle)
        notes["he"] = "rules of type 4, whose loaded edge is the other one: %.0f mm from it would give F90_Rd %.3f kN" % (
            3 * d, k * splitting(b, h, h - 3 * d) / gamma / 1000)
    he = put("he", "8.1.4", "mm", h - edge)
    F90 = put("F90_Rd", "(8.4), (2.17)", "kN", k * splitting(b, h, he) / gamma / 1000)
    across = put("P_sin", "(8.3)", "kN", splitting_force(code, force, angle, notes))
    put("Tverr_kontroll", "(8.2)", "", across / F90)
    return rows, notes
