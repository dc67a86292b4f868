"""The formulas of EN 1995-1-1:2004+A1:2008 for bolted joints, written down from the standard with the math module alone. N and
mm; angles in degrees. Nothing here knows of the program."""
import math


def sin(angle):
    return math.sin(math.radians(angle))


def cos(angle):
    return math.cos(math.radians(angle))


def k90(d):                                                             # (8.33), softwood
    return 1.35 + 0.015 * d


def fh0(d, rho):                                                        # (8.32)
    return 0.082 * (1 - 0.01 * d) * rho


def fh(d, rho, angle):                                                  # (8.31)
    return fh0(d, rho) / (k90(d) * sin(angle) ** 2 + cos(angle) ** 2)


def yield_moment(fuk, d):                                               # (8.30)
    return 0.3 * fuk * d**2.6


def bolt_tension(fuk, d):                                               # its whole section
    return math.pi / 4 * fuk * d**2


def washer(diameter, hole, fc90):                                       # 8.5.2 (2)
    return 3 * fc90 * math.pi / 4 * (diameter**2 - hole**2)


def with_rope(johansen, axial):                                         # 8.2.2 (2), bolts
    return johansen + min(johansen / 4, axial / 4)


def mode_d(d, t, f, beta, My):                                          # (8.6 d), (8.7 j)
    root = math.sqrt(2 * beta * (1 + beta) + 4 * beta * (2 + beta) * My / (f * d * t**2))
    return 1.05 * f * t * d / (2 + beta) * (root - beta)


def mode_f(d, f, beta, My):                                             # (8.6 f), (8.7 k)
    return 1.15 * math.sqrt(2 * beta / (1 + beta)) * math.sqrt(2 * My * f * d)


def single(d, t1, t2, f1, f2, My, axial=0.0):                           # (8.6)
    beta, r = f2 / f1, t2 / t1
    c = f1 * t1 * d / (1 + beta) * (math.sqrt(beta + 2 * beta**2 * (1 + r + r**2) + beta**3 * r**2) - beta * (1 + r))
    e = 1.05 * f1 * t2 * d / (1 + 2 * beta) * (
        math.sqrt(2 * beta**2 * (1 + beta) + 4 * beta * (1 + 2 * beta) * My / (f1 * d * t2**2)) - beta)
    return {"a": f1 * t1 * d, "b": f2 * t2 * d, "c": with_rope(c, axial), "d": with_rope(mode_d(d, t1, f1, beta, My), axial),
            "e": with_rope(e, axial), "f": with_rope(mode_f(d, f1, beta, My), axial)}


def double(d, t1, t2, f1, f2, My, axial=0.0):                           # (8.7)
    beta = f2 / f1
    return {"g": f1 * t1 * d, "h": 0.5 * f2 * t2 * d, "j": with_rope(mode_d(d, t1, f1, beta, My), axial),
            "k": with_rope(mode_f(d, f1, beta, My), axial)}


def nef(n, a1, d):                                                      # (8.34)
    return min(n, n**0.9 * (a1 / (13 * d)) ** 0.25)


def nef_connectors(n):                                                  # (8.71)
    return 2 + (1 - n / 20) * (n - 2)


def splitting(b, h, he):                                                # (8.4), w = 1
    return 14 * b * math.sqrt(he / (1 - he / h))


def connector(factor, t1, t2, teeth, rho, dc):                          # (8.72) with k1 (8.73) and k3 (8.78); k2 = 1
    k1 = min(1, t1 / (3 * teeth), t2 / (5 * teeth))
    return factor * k1 * min(1.5, rho / 350) * dc**1.5


# Table 8.4, bolts
def a1_min(d, angle):
    return (4 + abs(cos(angle))) * d


def a3t(d):
    return max(7 * d, 80)


def a3c(d, angle):
    return max((1 + 6 * sin(angle)) * d, 4 * d)


def a4t(d, angle):
    return max((2 + 2 * sin(angle)) * d, 3 * d)
