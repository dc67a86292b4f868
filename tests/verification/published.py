"""Published worked examples: what was printed, what the standard's formulas give without rounding on the way, and what the
program's give. `ask` sends steps to the program of formulas.cpp and returns the values of the state."""
from standard import *

# A row: quantity, clause, as printed, exact, the program's (None: it has no such value), the reason of a difference above 0.5 %.
GROUP = "eccentric group: not calculated"
STEEL = "steel-to-timber: not calculated"
CUT = "cut in print"
DIGITS = "rounded to two digits in print"
DOWEL = "table 8.5 is for dowels, the program has 8.4 for bolts"
HOLE = "hole of the washer d + 2, not d + 1"
FACTOR = "factor 25, where (8.72) has 18 for type C1"

KN = 1000


def setting(**values):
    return {"set": values}


def call(name, **arguments):
    return {"do": name, **arguments}


def capacity(ask, *more, **values):
    """Get_Rk of a connection without rope, and what comes after it."""
    return ask([setting(kmod=0.9, gm=1.3, n_bolt=1, **values), call("Get_Rk"), *more, call("Get_Rd_bolt")])


def row_of(n, rows, a1):
    return setting(n_row=n, rows=rows, a1=a1, Has_row=True), call("Get_nef")


def distance(ask, case, name, **values):
    return ask([setting(**values), call("Calc_spacing", case=case)])[name]


def split(ask, b, h, he, kmod=1.0, gm=1.0, **values):
    return ask([setting(kmod=kmod, gm=gm, **values), call("Tverr_brudd", h=h, he=he, b=b)])


def bolt_distances(ask, d, angle):
    """Distances of table 8.4 by the rules of the program: exact and the program's."""
    at = {"d": d, "alp": angle}
    return {"a1": (a1_min(d, angle), distance(ask, "1.2.a", "Sb3", **at)),
            "a2": (4 * d, distance(ask, "2.4. ", "Sb2", **at)),
            "a3,t": (a3t(d), distance(ask, "1.1. ", "Sa3", P=-10, **at)),
            "a3,c": (a3c(d, angle), distance(ask, "3.2.b", "Sb4", P=10, **at)),
            "a4,t": (a4t(d, angle), distance(ask, "1.2.a", "Sb1", P=-10, **at)),
            "a4,c": (3 * d, distance(ask, "1.1. ", "Sa1", **at))}


def modes(printed, exact, ours, what=""):
    return [("%s(%s)" % (what, mode), "(8.7)", text, exact[mode], ours["Fv_" + mode], "") for mode, text in printed.items()]


def example_1(ask):
    f, My = fh(12, 350, 0), yield_moment(600, 12)
    exact = double(12, 36, 48, f, f, My)
    F, n3 = exact["j"], nef(3, 60, 12)
    joint = {"Con_code": "1.2", "d": 12, "fuk": 600, "rho_k": 350, "b1": 36, "b2": 48, "alp": 0}
    one = capacity(ask, **joint)
    twelve = capacity(ask, setting(n_bolt=6, dob_1=True), **joint)
    row = capacity(ask, setting(dob_1=True), *row_of(3, 1, 60), **joint)
    both = capacity(ask, setting(dob_1=True), *row_of(3, 2, 60), **joint)
    a = bolt_distances(ask, 12, 0)
    return "1. Dowels in double shear along the grain (NTNU TKT4211, example C1)", [
        ("f_h,1,k = f_h,2,k", "(8.32)", "25.3", f, one["fh1k"], ""),
        ("M_y,Rk", "(8.30)", "115118", My, one["My_Rk"], ""),
        *modes({"g": "10930", "h": "7286", "j": "6657", "k": "9614"}, exact, one),
        ("F_v,Rd in a plane", "(2.17)", "4609", F * 0.9 / 1.3, one["Rd_bolt"] * KN, ""),
        ("F_d of 12 planes, kN", "(2.17)", "55.3", 12 * F * 0.9 / 1.3 / KN, twelve["Rd_bolt"], ""),
        ("n_ef, n = 3", "(8.34)", "2.11", n3, row["nef_b_row"], CUT),
        ("n_ef F_v,Rk", "(8.1)", "14046", n3 * F, row["nef_b_row"] * row["Rk"], ""),
        ("a row, 2 planes, design", "(2.17)", "19448", 2 * n3 * F * 0.9 / 1.3, row["Rd_bolt"] * KN, ""),
        ("F_d of 2 rows, kN", "8.1.2 (5)", "38.9", 4 * n3 * F * 0.9 / 1.3 / KN, both["Rd_bolt"], ""),
        ("a1", "table 8.5", "60", 5 * 12, a["a1"][1], ""),
        ("a2", "table 8.5", "36", 3 * 12, a["a2"][1], DOWEL),
        ("a3,t", "table 8.5", "84", a3t(12), a["a3,t"][1], ""),
        ("a4,c", "table 8.5", "36", 3 * 12, a["a4,c"][1], "")]


def example_2(ask):
    f0, f70, My = fh(12, 350, 0), fh(12, 350, 70), yield_moment(360, 12)
    joint = {"d": 12, "fuk": 360, "rho_k": 350, "b1": 80, "b2": 80, "alp": 70}
    rows = []
    for case, code, f1, f2, a1, printed in (
            ("i", "2.2", f70, f0, 64, ("1.47", {"g": "16512", "h": "12144", "j": "7075", "k": "6699"}, "1.49", "9982", "13821")),
            ("ii", "1.2", f0, f70, 53, ("0.68", {"g": "24288", "h": "8256", "j": "8706", "k": "6700"}, "1.42", "9514", "13173"))):
        exact, n2 = double(12, 80, 80, f1, f2, My), nef(2, a1, 12)
        F = exact["k"]
        one = capacity(ask, Con_code=code, **joint)
        row = capacity(ask, setting(dob_1=True), *row_of(2, 1, a1), Con_code=code, **joint)
        if case == "i":
            rows += [("f_h,0,k", "(8.32)", "25.3", f0, one["fh0k"], ""), ("k_90", "(8.33)", "1.53", k90(12), one["k90"], ""),
                     ("f_h,70,k", "(8.31)", "17.2", f70, one["fh1k"], ""), ("M_y,Rk", "(8.30)", "69070", My, one["My_Rk"], "")]
        rows += [(case + " beta", "(8.8)", printed[0], f2 / f1, one["beta"], ""), *modes(printed[1], exact, one, case + " ")]
        if case == "i":
            eight = capacity(ask, setting(n_bolt=4, dob_1=True), Con_code=code, **joint)
            rows += [("i F_v,Rd", "(2.17)", "4638", F * 0.9 / 1.3, one["Rd_bolt"] * KN, ""),
                     ("i F_d of 8 planes, kN", "(2.17)", "37.1", 8 * F * 0.9 / 1.3 / KN, eight["Rd_bolt"], "")]
        rows += [("%s n_ef, n = 2, a1 = %d" % (case, a1), "(8.34)", printed[2], n2, row["nef_b_row"], CUT),
                 (case + " n_ef F_v,Rk", "(8.1)", printed[3], n2 * F, row["nef_b_row"] * row["Rk"], ""),
                 (case + " a row, 2 planes, design", "(2.17)", printed[4], 2 * n2 * F * 0.9 / 1.3, row["Rd_bolt"] * KN, "")]
        design = 2 * n2 * F * 0.9 / 1.3
        both = capacity(ask, setting(dob_1=True), *row_of(2, 2, a1), Con_code=code, **joint)
        if case == "i":
            rows.append(("i F_d, kN", "8.1.2 (5)", "27.6", 2 * design / KN, both["Rd_bolt"], ""))
        else:
            rows.append(("ii F_d = row : (0.5 cos 70), kN", "8.1.2 (5)", "77.0", design / (0.5 * cos(70)) / KN,
                         row["Rd_bolt"] / (0.5 * cos(70)), ""))
    F90 = splitting(160, 180, 120)
    whole, at = split(ask, 160, 180, 120), split(ask, 160, 180, 120, 0.9, 1.3)
    a = bolt_distances(ask, 12, 70)
    return "2. Dowels in double shear, members at 70°, splitting (NTNU TKT4211, example C2)", rows + [
        ("F_90,Rk, b 160, h 180, h_e 120", "(8.4)", "42501", F90, whole["F90_Rd"] * KN, ""),
        ("F_90,Rd", "(2.17)", "29423", F90 * 0.9 / 1.3, at["F90_Rd"] * KN, ""),
        ("F_d = F_90,Rd : sin 70, kN", "(8.3)", "31.3", F90 * 0.9 / 1.3 / sin(70) / KN, at["F90_Rd"] / sin(70), ""),
        ("a1 at 70°", "table 8.5", "44.2", (3 + 2 * cos(70)) * 12, a["a1"][1], DOWEL),
        ("a4,t at 70°", "table 8.5", "46.5", a4t(12, 70), a["a4,t"][1], "")]


def embedment(ask, d, rho, angle):
    return ask([setting(Con_code="1.2", d=d, fuk=1, rho_k=rho, b1=1, b2=1, alp=angle), call("Get_Rk")])


def two_densities(ask, angle, axial, *more):
    side, middle = embedment(ask, 12, 380, angle), embedment(ask, 12, 430, angle)
    f1, f2 = side["fh2k"], middle["fh2k"]
    rope = {"fc90k": 2.7, "d_skive": 48} if axial else {}
    return ask([setting(d=12, fuk=800, t1=75, t2=115, fh1k=f1, fh2k=f2, beta=f2 / f1, kmod=0.9, gm=1.3, n_bolt=1, **rope),
                call("Dobbeltsnitt_Rk"), *more, call("Get_Rd_bolt")])


def example_3(ask):
    My, axial = yield_moment(800, 12), washer(48, 13, 2.7)
    rows = [("sum of r²", "", "42000", 42000, None, GROUP), ("M about the centre, Nmm", "", "3720000", 3.4e6 + 1500 * 210, None, GROUP)]
    for bolt, x, z, F, angle in ((1, "3124", "7721", "8329", "68"), (2, "3124", "-250", "3134", "-4.6"),
                                 (3, "3124", "-8221", "8795", "-69"), (4, "10210", "-8221", "13108", "-39"),
                                 (5, "10210", "-250", "10213", "-1.4"), (6, "10210", "7721", "12801", "37")):
        rows.append(("bolt %d: F_x, F_z, F, angle" % bolt, "", "%s, %s, %s, %s°" % (x, z, F, angle), None, None, GROUP))
    rope39 = two_densities(ask, 39, True)
    rows += [("M_y,Rk", "(8.30)", "153491", My, rope39["My_Rk"], ""),
             ("area of the washer", "8.5.2 (2)", "1675", axial / (3 * 2.7), rope39["Fax_skive"] / (3 * 2.7), HOLE),
             ("F_ax,Rk", "8.5.2 (2)", "13568", axial, rope39["Fax_skive"], HOLE),
             ("f_h,0,k, side", "(8.32)", "27.4", fh0(12, 380), embedment(ask, 12, 380, 0)["fh0k"], ""),
             ("f_h,0,k, middle", "(8.32)", "31", fh0(12, 430), embedment(ask, 12, 430, 0)["fh0k"], "")]
    for angle, what, printed in (
            (39, "", ({"g": "20340", "h": "17664", "j": "9330", "k": "10808"}, "11662", "13510")),
            (0, "0°: ", ({"g": "24660", "h": "21390", "j": "10895", "k": "11901"}, "13619", "14876"))):
        f1, f2 = fh(12, 380, angle), fh(12, 430, angle)
        plain, rope = two_densities(ask, angle, False), two_densities(ask, angle, True)
        exact, roped = double(12, 75, 115, f1, f2, My), double(12, 75, 115, f1, f2, My, axial)
        if angle:
            rows += [("f_h,1,39,k", "(8.31)", "22.6", f1, embedment(ask, 12, 380, 39)["fh2k"], ""),
                     ("f_h,2,39,k", "(8.31)", "25.6", f2, embedment(ask, 12, 430, 39)["fh2k"], ""),
                     ("beta", "(8.8)", "1.13", f2 / f1, embedment(ask, 12, 430, 39)["fh2k"] / embedment(ask, 12, 380, 39)["fh2k"], "")]
        rows += modes(printed[0], exact, plain, what)
        if angle:
            rows.append(("F_v,Rd without rope", "(2.17)", "6459", exact["j"] * 0.9 / 1.3, plain["Rd_bolt"] * KN, ""))
        rows += [(what + "(j) with rope", "8.2.2 (2)", printed[1], roped["j"], rope["Fv_j"], ""),
                 (what + "(k) with rope", "8.2.2 (2)", printed[2], roped["k"], rope["Fv_k"], "")]
        if angle:
            rows += [("F_v,Rd with rope", "(2.17)", "8073", roped["j"] * 0.9 / 1.3, rope["Rd_bolt"] * KN, ""),
                     ("demand of bolt 4 in a plane", "", "6554", None, None, GROUP)]
    n3, F = nef(3, 90, 12), double(12, 75, 115, fh(12, 380, 0), fh(12, 430, 0), My, axial)["j"]
    row = two_densities(ask, 0, True, setting(dob_1=True), *row_of(3, 1, 90))
    side, middle = split(ask, 150, 200, 140, 0.9, 1.3), split(ask, 115, 200, 140, 0.9, 1.3)
    return "3. Bolts M12 with rope, two densities, moment (NTNU TKT4211, example C3)", rows + [
        ("n_ef, n = 3, a1 = 90", "(8.34)", "2.34", n3, row["nef_b_row"], ""),
        ("n_ef F_v,Rk", "(8.1)", "31868", n3 * F, row["nef_b_row"] * row["Rk"], ""),
        ("a row, 2 planes, design", "(2.17)", "44126", 2 * n3 * F * 0.9 / 1.3, row["Rd_bolt"] * KN, ""),
        ("demand of a row", "", "30630", None, None, GROUP),
        ("F_90,Rd, side, b 150, h_e 140", "(8.4)", "31406", splitting(150, 200, 140) * 0.9 / 1.3, side["F90_Rd"] * KN, ""),
        ("F_90,Rd, middle, b 115", "(8.4)", "24078", splitting(115, 200, 140) * 0.9 / 1.3, middle["F90_Rd"] * KN, ""),
        ("V_Ed, side and middle", "(8.3)", "15442, 16942", None, None, GROUP)]


def example_4(ask):
    one = ask([setting(Con_code="1.2", d=12, fuk=400, rho_k=400, b1=1, b2=1), call("Get_Rk"), *row_of(5, 1, 60)])
    return "4. Five dowels in a row (NTNU TKT4211, example C4)", [
        ("f_h,0,k", "(8.32)", "28.9", fh0(12, 400), one["fh0k"], ""),
        ("M_y,Rk", "(8.30)", "76745", yield_moment(400, 12), one["My_Rk"], ""),
        ("n_ef, n = 5, a1 = 60", "(8.34)", "3.35", nef(5, 60, 12), one["nef_b_row"], "")]


def example_5(ask):
    f, My = fh(10, 380, 0), yield_moment(800, 10)
    exact, plate = double(10, 50, 100, f, f, My), connector(18, 50, 100, 6, 380, 50)
    joint = {"Con_code": "1.2", "d": 10, "fuk": 800, "rho_k": 380, "b1": 50, "b2": 100, "alp": 0}
    one = capacity(ask, **joint)
    teeth = ask([setting(Bulldog_index=0, rho_k=380, t1=50, t2=100), call("Bulldog_Rk")])["Fv_Rk"] * KN
    a = bolt_distances(ask, 10, 0)
    at = {"dc": 50, "alp": 0}
    both, ours = exact["j"] + plate, one["Fv_j"] + teeth
    return "5. Bolts M10 with toothed plates C1, 50 mm (NTNU TKT4211, example C5)", [
        ("f_h,0,k", "(8.32)", "28.0", f, one["fh1k"], ""), ("M_y,Rk", "(8.30)", "95545", My, one["My_Rk"], ""),
        *modes({"g": "14000", "h": "14000", "j": "6734", "k": "8412"}, exact, one),
        ("k_1", "(8.73)", "1.0", min(1, 50 / 18, 100 / 30), teeth / (25 * 380 / 350 * 50**1.5), ""),
        ("k_2", "(8.74)", "1.0", 1, 1, ""), ("k_3", "(8.78)", "1.09", 380 / 350, teeth / (25 * 50**1.5), ""),
        ("F_v,Rk of a plate", "(8.72)", "6936", plate, teeth, FACTOR),
        ("bolt and plate in a plane", "8.10 (1)", "13670", both, ours, FACTOR),
        ("design in a plane", "(2.17)", "9464", both * 0.9 / 1.3, ours * 0.9 / 1.3, FACTOR),
        ("F_d of 4 planes, kN", "(2.17)", "37.9", 4 * both * 0.9 / 1.3 / KN, 4 * ours * 0.9 / 1.3 / KN, FACTOR),
        ("least thickness 2.25 h_e and 3.75 h_e", "8.10 (3), 8.9 (2)", "13.5, 22.5", None, None, "not checked by the program"),
        ("a2, bolts", "table 8.4", "40", *a["a2"], ""), ("a3,t, bolts", "table 8.4", "80", *a["a3,t"], ""),
        ("a4,c, bolts", "table 8.4", "30", *a["a4,c"], ""),
        ("a2, plates", "table 8.8", "60", 1.2 * 50, distance(ask, "2.4. ", "Cb2", **at), ""),
        ("a4,c, plates", "table 8.8", "30", 0.6 * 50, distance(ask, "1.1. ", "Ca1", **at), ""),
        ("a3,t, plates", "table 8.8", "75", 2 * 50, distance(ask, "1.1. ", "Ca3", P=-10, **at),
         "2 d_c; the copy has this correction in its margin")]


def example_6(ask):
    f1, f2, My = fh(12, 385, 45), fh(12, 385, 0), yield_moment(400, 12)
    exact = double(12, 100, 100, f1, f2, My, washer(24, 13, 2.5))
    n2 = nef(2, 100, 12)
    joint = {"Con_code": "2.2", "d": 12, "fuk": 400, "rho_k": 385, "fc90k": 2.5, "d_skive": 24, "b1": 100, "b2": 100, "alp": 45}
    all_of = capacity(ask, setting(kmod=1, gm=1, dob_1=True), *row_of(2, 2, 100), **joint)
    F90 = splitting(100, 200, 150)
    a, zero = bolt_distances(ask, 12, 45), bolt_distances(ask, 12, 0)
    return "6. Bolts M12 at 45° with rope, rows, splitting, table 8.4 (tests of an open library of the Eurocodes)", [
        ("M_y,Rk", "(8.30)", "76745.4233", My, all_of["My_Rk"], ""), ("n_ef, n = 2, a1 = 100", "(8.34)", "1.669728", n2, all_of["nef_b_row"], ""),
        ("F_v,Rk of 2 rows and 2 planes", "(8.7), (8.1)", "55632.214", 4 * n2 * min(exact.values()), all_of["Rd_bolt"] * KN, HOLE),
        ("F_90,Rk, b 100, h 200, h_e 150", "(8.4)", "34292.856", F90, split(ask, 100, 200, 150)["F90_Rd"] * KN, ""),
        ("F_90,Rd", "(2.17)", "21103.296", F90 * 0.8 / 1.3, split(ask, 100, 200, 150, 0.8, 1.3)["F90_Rd"] * KN, ""),
        *[("%s at 45°" % name, "table 8.4", text, *a[name], "") for name, text in (
            ("a1", "56.48528"), ("a2", "48"), ("a3,t", "84"), ("a3,c", "62.91169"), ("a4,t", "40.97056"), ("a4,c", "36"))],
        *[("%s at 0°" % name, "table 8.4", text, *zero[name], "") for name, text in (("a1", "60"), ("a3,c", "48"), ("a4,t", "36"))]]


# d, angles, capacity as printed, kN
SCHNEIDER = """10 0 0 4.71, 10 0 45 4.44, 10 0 90 4.22, 10 45 0 4.44, 10 45 45 4.22, 10 45 90 4.02, 10 90 0 4.22, 10 90 45 4.02, 10 90 90 3.85,
12 0 0 6.47, 12 0 45 6.08, 12 0 90 5.75, 12 45 0 6.08, 12 45 45 5.75, 12 45 90 5.47, 12 90 0 5.75, 12 90 45 5.47, 12 90 90 5.23,
16 0 0 10.6, 16 0 45 9.9, 16 0 90 9.32, 16 45 0 9.9, 16 45 45 9.32, 16 45 90 8.83, 16 90 0 9.32, 16 90 45 8.83, 16 90 90 8.41,
20 0 0 15.5, 20 0 45 14.3, 20 0 90 13.4, 20 45 0 14.3, 20 45 45 13.4, 20 45 90 12.7, 20 90 0 13.4, 20 90 45 12.7, 20 90 90 12,
24 0 0 20.9, 24 0 45 19.3, 24 0 90 18, 24 45 0 19.3, 24 45 45 18, 24 45 90 16.9, 24 90 0 18, 24 90 45 16.9, 24 90 90 16"""


def example_7(ask):
    rows = []
    for entry in SCHNEIDER.replace("\n", " ").split(","):
        d, one, two, text = entry.split()
        d, one, two = int(d), int(one), int(two)
        f1, f2, My = fh(d, 350, one), fh(d, 350, two), yield_moment(360, d)
        ours = ask([setting(d=d, fuk=360, rho_k=350), call("Get_Rk"), setting(t1=500, t2=500), call("Get_fh", angle1=one, angle2=two),
                    call("Dobbeltsnitt_Rk")])
        rows.append(("d %d, %d° and %d°, kN" % (d, one, two), "(8.7 k) : 1.15", text, mode_f(d, f1, f2 / f1, My) / 1.15 / KN,
                     ours["Fv_k"] / 1.15 / KN, ""))
    return "7. Dowels in C24, mode k without its 1.15 (table of a German handbook of structural tables)", rows


def example_8(ask):
    d, My, axial = 10.45, 80000, 4911.0909
    f1, f2 = fh(d, 385, 0), fh(d, 385, 90)
    exact = single(d, 100, 69, f1, f2, My, axial)
    near, far = nef(2, 60, 11), nef(2, 100, 11)
    fc = axial / washer(3 * d, d + 2, 1)                                # a washer that gives this axial capacity
    one = ask([setting(Con_code="1.1", d=d, fuk=My / (0.3 * d**2.6), rho_k=385, fc90k=fc, d_skive=3 * d, b1=100, b2=69, alp=90),
               call("Get_Rk")])
    rows = [ask([setting(d=11), *row_of(2, 1, a1)])["nef_b_row"] for a1 in (60, 100)]
    return "8. Single shear with rope at 0 and 90°, d_ef 10.45 (tests of the same library)", [
        ("n_ef, n = 2, a1 = 100", "(8.34)", "1.7064477", far, rows[1], ""),
        ("F_ax,Rk of two screws", "8.7.2", "9164.4197", None, None, "screws: not calculated"),
        ("F_v,Rk, n_ef with a1 = 60", "(8.6 e), (8.1)", "11295.461", near * min(exact.values()), rows[0] * one["Rk"], "")]


def example_9(ask):
    f0, f90, My = fh0(16, 390), fh(16, 390, 90), yield_moment(800, 16)
    one = embedment(ask, 16, 390, 90)
    thick = [setting(d=16, fuk=800, t1=1000, t2=1000, fh1k=one["fh2k"], fh2k=one["fh2k"], beta=1), call("Dobbeltsnitt_Rk")]
    plain, rope = ask(thick), ask([setting(fc90k=100, d_skive=100), *thick])
    F90 = splitting(190, 1215, 608)
    at = split(ask, 190, 1215, 608, 0.9, 1.15, P=0.9 * 65, alp=90)
    return "9. Load hung from a glulam beam, splitting (Norwegian collection of glulam examples, example 19)", [
        ("f_h,0,k", "(8.32)", "27", f0, one["fh0k"], DIGITS), ("k_90", "(8.33)", "1.59", k90(16), one["k90"], ""),
        ("f_h,90,k", "(8.31)", "17", f90, one["fh2k"], DIGITS), ("M_y,Rk", "(8.30)", "324300", My, plain["My_Rk"], ""),
        ("(j)/(l), (m)", "(8.12), (8.13)", "25700, 21500", None, None, STEEL),
        ("(k), 1.15 sqrt(2 M f d)", "(8.12)", "15300", mode_f(16, f90, 1, My), plain["Fv_k"], ""),
        ("(k) with the rope at its most", "8.2.2 (2)", "19100", 1.25 * mode_f(16, f90, 1, My), rope["Fv_k"], ""),
        ("F_90,Rk, b 190, h 1215, h_e 608", "(8.4)", "92760", F90, split(ask, 190, 1215, 608)["F90_Rd"] * KN, ""),
        ("F_90,Rd, kN", "(2.17)", "73", F90 * 0.9 / 1.15 / KN, at["F90_Rd"], DIGITS),
        ("utilisation", "(8.2)", "0.81", 0.9 * 65 / (F90 * 0.9 / 1.15 / KN), at["Tverr_kontroll"], DIGITS),
        ("a2", "table 8.4", "64", *bolt_distances(ask, 16, 90)["a2"], "")]


def example_10(ask):
    f1, f2 = fh(16, 320, 0), fh(16, 320, 45)
    exact = double(16, 37, 47, f1, f2, yield_moment(400, 16))
    ours = ask([setting(Con_code="1.2", d=16, fuk=400, rho_k=320, b1=37, b2=47, alp=45, kmod=0.8, gm=1.3, n_bolt=2), call("Get_Rk"),
                call("Get_Rd_bolt")])
    return "10. Two bolts M16 in a joint of five members (textbook on timber design, example 10.13.4)", [
        ("f_h,0,k, member 1", "(8.32)", "23.42", fh0(16, 340), embedment(ask, 16, 340, 0)["fh0k"], ""),
        ("f_h,0,k, members 2 and 3", "(8.32)", "22.04", f1, ours["fh0k"], ""),
        ("beta", "(8.8)", "0.77", f2 / f1, ours["beta"], ""),
        ("(g), kN", "(8.7)", "13.05", exact["g"] / KN, ours["Fv_g"] / KN, ""),
        ("(h), kN", "(8.7)", "6.4", exact["h"] / KN, ours["Fv_h"] / KN, ""),
        ("design of 2 bolts, kN", "(2.17)", "7.88", 2 * exact["h"] * 0.8 / 1.3 / KN, ours["Rd_bolt"], "")]


EXAMPLES = (example_1, example_2, example_3, example_4, example_5, example_6, example_7, example_8, example_9, example_10)
