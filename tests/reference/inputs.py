"""Random inputs for passes, repeatable from a seed."""

CASES = [(1, 0, "a"), (1, 1, "a"), (1, 1, "b"), (1, 2, "a"), (1, 2, "b"), (1, 3, "b"), (1, 4, "a"),
         (2, 0, "b"), (2, 1, "a"), (2, 2, "b"), (2, 3, "a"), (2, 4, "b"),
         (3, 0, "a"), (3, 1, "a"), (3, 1, "b"), (3, 2, "a"), (3, 2, "b"), (3, 3, "a"), (3, 4, "b"),
         (4, 0, "b"), (4, 1, "a"), (4, 1, "b"), (4, 2, "a"), (4, 2, "b"), (4, 3, "a"), (4, 4, "a"), (4, 4, "b"),
         (5, 0, "a"), (5, 1, "a"), (5, 1, "b"), (5, 2, "a"), (5, 2, "b"), (5, 3, "b"), (5, 4, "a"), (5, 4, "b")]
VARIANTS = [(True, False, True, False), (False, True, True, False), (True, False, False, True)]
ANGLES = [0, 25, 27, 30, 30.001, 30.01, 45, 60, 89.99, 90]
EDGE_ANGLES = [-30, 120, 180, 270, 359.5, 1e-6, 720]
FORCES = [10, -10, 0, 25, -25, 0.1, -120.5]
EDGE_FORCES = [1e-30, -1e-30, 1e30, 3e38]
TEXTS_BAD = ["", "abc", "0", "-45", "0.04", "0,05", "12abc", ".", "-", "+70", "  98  ", "5.", ".75", "1.2.3", "1,2,3",
             "100,55", "100.25", "200.35", "1000000", "0.0001"]
EDGE = {"Lastvar": [0, 6, -1], "Klima": [0, 4], "Mat_index": [-1, 37, 100, 101, 32767], "Prof1_index": [-1, 220, 400, 401],
        "Prof2_index": [-1, 220, 400, 401], "Con_type": [0, 6], "Bolt_index": [-1, 8], "Bulldog_index": [-1, 5],
        "Ant_index": [-1, 5], "Bolt_ab": ["x", "A", "B"], "Avstand_index": [-1, 16], "Lang": ["Nor", "Swe"],
        "dc": [0, 1, 48, 50, 62.5, 200], "gm_T": [0, 1, 1.15], "gm_L": [0, 1.1], "gm_Ke": [0, 1.4], "gm_K": [0, 1.5],
        "man_he": [0, 55.5], "enk_1": [False, True], "dob_1": [False, True], "enk_2": [False, True], "dob_2": [False, True],
        "Kun_bolt": [False, True], "Med_bulldog": [False, True], "Man_he_on": [False, True], "Standard": [False, True],
        "Prosjekt": ["", "Prøve – 1"], "Id": ["", "B-7"]}

# Inputs at the edge of what a user would write: exponents, a negative that shows as zero, fixed texts too short or too long.
OPEN = {"Txt_b1": ["1e2", "-0.04", "1e30"], "Txt_h2": ["1e2", "2E2"], "Bolt_ab": ["", "ba"], "Lang": ["", "English"]}


def connection(rng):
    con_type, ant, ab = rng.choice(CASES)
    flags = rng.choice(VARIANTS)
    return {"Con_type": con_type, "enk_1": flags[0], "dob_1": flags[1], "enk_2": flags[2], "dob_2": flags[3], "Ant_index": ant,
            "Bolt_ab": ab}


def fasteners(rng):
    i = {"Bolt_index": rng.randrange(8), "Bulldog_index": rng.randrange(5), "Avstand_index": rng.randrange(16)}
    i["Med_bulldog"] = rng.random() < 0.5
    i["Kun_bolt"] = not i["Med_bulldog"]
    return i


def classes(rng):
    return {"Lastvar": rng.randint(1, 5), "Klima": rng.randint(1, 3), "Mat_index": rng.randrange(37)}


def size(rng, low, high):
    v = rng.choice([rng.randint(low, high), round(rng.uniform(low, high), 1), round(rng.uniform(low, high), 2), rng.uniform(low, high)])
    text = rng.choice(["%s", "%s", "%s", " %s", "%s mm"]) % v
    return text.replace(".", ",") if rng.random() < 0.4 else text


def sections(rng, roomy=True):
    if rng.random() < 0.5:
        low = (lambda: rng.randrange(70, 220)) if roomy and rng.random() < 0.8 else (lambda: rng.randrange(220))
        return {"Standard": True, "Prof1_index": low(), "Prof2_index": low()}
    h = 250 if roomy else 60
    return {"Standard": False, "Txt_b1": size(rng, 28, 240), "Txt_h1": size(rng, h, 900), "Txt_b2": size(rng, 28, 240),
            "Txt_h2": size(rng, h, 900)}


def load(rng):
    return {"alp": rng.choice([rng.choice(ANGLES), round(rng.uniform(0, 90), 1), round(rng.uniform(0, 90), 2), rng.uniform(0, 90)]),
            "P": rng.choice([rng.choice(FORCES), round(rng.uniform(-200, 200), 1), rng.uniform(-200, 200)])}


GROUPS = (connection, fasteners, classes, sections, load)


def whole(rng, roomy=True):
    """Every group of inputs set."""
    i = {}
    for group in GROUPS:
        i.update(group(rng, roomy) if group is sections else group(rng))
    return i


def some(rng):
    """A change of one or two groups, or of a few single inputs of them."""
    i = {}
    for group in rng.sample(GROUPS, rng.choice([1, 1, 2])):
        new = group(rng)
        if rng.random() < 0.4:
            for name in rng.sample(sorted(new), rng.randint(1, len(new))):
                i[name] = new[name]
        else:
            i.update(new)
    if rng.random() < 0.1:
        i["Man_he_on"] = rng.random() < 0.6
    return i


def edge(rng, inputs):
    """One to three values at or past an edge, put into inputs."""
    for _ in range(rng.choice([1, 1, 1, 2, 3])):
        k = rng.random()
        if k < 0.12:
            inputs["alp"] = rng.choice(EDGE_ANGLES)
        elif k < 0.2:
            inputs["P"] = rng.choice(EDGE_FORCES)
        elif k < 0.4:
            inputs["Standard"] = False
            for name in rng.sample(["Txt_b1", "Txt_h1", "Txt_b2", "Txt_h2"], rng.randint(1, 2)):
                inputs[name] = rng.choice(TEXTS_BAD)
        else:
            name = rng.choice(sorted(EDGE))
            inputs[name] = rng.choice(EDGE[name])
    return ordered(inputs)


def ordered(inputs):
    """dc after Bulldog_index, so that the order of writing is the same for every reader of JSON objects."""
    if "dc" in inputs and "Bulldog_index" in inputs:
        inputs = dict(sorted(inputs.items()))
    return inputs


def line(rng, edges=0.0):
    """An object of inputs or an array of them."""
    first = whole(rng, rng.random() < 0.85) if rng.random() < 0.9 else some(rng)
    steps = [first] + [some(rng) for _ in range(rng.choice([0, 0, 0, 0, 1, 2, 3]))]
    steps = [edge(rng, s) if rng.random() < edges else ordered(s) for s in steps]
    return steps[0] if len(steps) == 1 and rng.random() < 0.8 else steps
