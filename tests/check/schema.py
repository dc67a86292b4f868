#!/usr/bin/env python3
"""schema.py TOOL [N] [SEED]: what TOOL reads and prints against check/schema, with N results of random connections (default 10000).

Both ways: whatever the tool prints has to be valid, every name that it knows has to be in the schemas, and nothing else; a batch
line that the tool takes has to be valid, and one that is not has to be refused. Exit status 77 where the validator is missing."""
import json, os, random, subprocess, sys, tempfile
HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, "tests", "reference"))
sys.dont_write_bytecode = True
try:
    from jsonschema import Draft7Validator
except ImportError:
    print("python3-jsonschema is missing")
    sys.exit(77)
import inputs as I

TOOL = sys.argv[1]
N = int(sys.argv[2]) if len(sys.argv) > 2 else 10000
rng = random.Random(int(sys.argv[3]) if len(sys.argv) > 3 else 1)
LISTS = ["bolts", "connectors", "materials", "profiles", "joints", "cases", "inputs"]
GROUPS = "screen,tables,pictures,report,detail,explanations"
failures = []


def schema(name):
    with open(os.path.join(ROOT, "check", "schema", "tarnvik-check-%s.schema.json" % name), encoding="utf-8") as file:
        read = json.load(file)
    Draft7Validator.check_schema(read)
    return read


def validator(whole, definition):
    """Of one definition, which is quicker than the choice of all and says more of what is wrong."""
    return Draft7Validator({"$ref": "#/definitions/" + definition, "definitions": whole["definitions"]})


def run(*arguments, stdin=""):
    done = subprocess.run([TOOL, "--lang", "Eng", *arguments], input=stdin, capture_output=True, encoding="utf-8")
    return [json.loads(line) for line in done.stdout.splitlines()]


def expect(true, text):
    if not true and len(failures) < 20:
        failures.append(text)


def names_agree(what, program, listed):
    expect(set(program) == set(listed), "%s: missing in the schema %s, in the program %s" %
           (what, sorted(set(program) - set(listed)), sorted(set(listed) - set(program))))


def valid(by, value, what):
    error = next(by.iter_errors(value), None)
    expect(error is None, "%s: %s" % (what, error and "%s at %s" % (error.message[:300], list(error.absolute_path))))


INPUT, OUTPUT = schema("input"), schema("output")
input_names = INPUT["definitions"]["inputs"]["properties"]
defined = OUTPUT["definitions"]
of_input = Draft7Validator(INPUT)
of_output = Draft7Validator(OUTPUT)
of_result, of_error, of_point, of_find, of_loads = (validator(OUTPUT, name)
                                                    for name in ("result", "error", "point", "find", "loads"))


def random_named():
    """Inputs by name, one or two of them as nobody would have them."""
    named = {"bolt": rng.choice(["M12x4.6", "m16X8.8", "M24x8.8", "M10"]), "bolts": rng.choice([1, "2", 3, 4, 6, 5]),
             "layout": rng.choice("ab"), "spacing": rng.choice([5, "7d", 20, "21d"]), "angle": rng.choice([0, 30.5, "90 deg", 91]),
             "connector": rng.choice(["D50", "none", "d75", "D117"]), "material": rng.choice(["C24", "C14", "GL30c", "C23"]),
             "member1": rng.choice(["2x48x198", "48x223", "T 48x198"]), "member2": rng.choice(["48x223", "98,5 x 300", "x"]),
             "joint": rng.choice(["1.2", "2.1", "5.3", "6.1"]), "load": rng.choice(["short", 3, "Medium", "x"]),
             "service": rng.choice([1, 2, "3"])}
    named[rng.choice(["tension", "compression"])] = rng.choice([12.5, "25kN", "800 N", -1])
    return {name: named[name] for name in rng.sample(sorted(named), rng.randint(1, 5))}


def random_line():
    line = I.line(rng, 0.25)
    for step in line if isinstance(line, list) else [line]:
        if rng.random() < 0.2:
            step.update(random_named())
    return line


def damaged(line):
    """The line with something that no input is or takes; what it was else stays, so that this has to be found."""
    line = json.loads(json.dumps(line))
    step = rng.choice(line) if isinstance(line, list) else line
    name, value = rng.choice([("Boltt", 1), ("uf", 1.0), ("P", "5"), ("Klima", 1.5), ("Klima", 40000), ("Standard", "true"),
                              ("Txt_b1", 48), ("bolt", True), ("bolt", None), ("P", [1]), ("Standard", 1)])
    step[name] = value
    return rng.choice([line, line, line, [], [line, 7], "x"]) if not isinstance(line, list) else line


# Names
names_agree("inputs", [row["input"] for row in run("--list", "inputs", "--json")[0]], input_names)
whole = run("--with", GROUPS)[0]
names_agree("state", [*whole["state"], "Mat", "Prof", "Setup"], defined["state"]["properties"])
names_agree("screen", whole["screen"], defined["screen"]["properties"])
names_agree("groups", GROUPS.split(","), set(defined["result"]["properties"]) -
            {"project", "end", "fault", "messages", "warnings", "state", "checks"})
for name in rng.sample(sorted(whole["state"]), 5):  # the validator itself sees a name that is missing
    without = {n: s for n, s in defined["state"]["properties"].items() if n != name}
    cut = {**OUTPUT, "definitions": {**defined, "state": {**defined["state"], "properties": without}}}
    expect(not validator(cut, "result").is_valid(whole), "state: a schema without %s takes it" % name)

# Results of random lines: all values, a few by name, all groups
lines = [random_line() for _ in range(N)]
few = N * 93 // 100
all_groups = max(1, N // 200)
plans = [(lines[:few], ["--fields", ",".join(["checks", "Id"] + rng.sample(sorted(whole["state"]), 8))]),
         (lines[few:-all_groups], []), (lines[-all_groups:], ["--with", GROUPS]),
         ([{}], ["--fields", "Mat,Prof,Setup"])]
counts = {"result": 0, "error": 0}
for some, options in plans:
    text = "".join(json.dumps(line, ensure_ascii=False) + "\n" for line in some)
    results = run("--batch", *options, stdin=text)
    expect(len(results) == len(some), "%d results of %d lines" % (len(results), len(some)))
    for line, result in zip(some, results):
        refused = "error" in result
        counts["error" if refused else "result"] += 1
        valid(of_error if refused else of_result, result, "result of %s" % json.dumps(line)[:200])
        if not refused:
            valid(of_input, line, "the tool takes %s" % json.dumps(line)[:200])
expect(counts["result"] > N / 2 and counts["error"] > N / 100, "too few of a kind: %s" % counts)

# Lines that the schema refuses are refused
wrong = [line for line in map(damaged, lines[:1000]) if not of_input.is_valid(line)]
expect(len(wrong) > 0.9 * min(1000, N), "only %d damaged lines are invalid" % len(wrong))
for line, result in zip(wrong, run("--batch", "--fields", "uf", stdin="".join(json.dumps(line) + "\n" for line in wrong))):
    expect("error" in result, "the tool takes what the schema refuses: %s" % json.dumps(line)[:200])

# What is no batch
others = [run("--version", "--json")[0]]
for name in LISTS:
    others.append(run("--list", name, "--json")[0])
    valid(validator(OUTPUT, "list_" + name), others[-1], name)
for sweep in (["angle=0:90:5"], ["P=-20:20:5", "Bolt_index=0:7:1"], ["Klima=0:4:1", "spacing=5:20:5"], ["Txt_h1=100:300:50"]):
    points = run("--json", *[word for one in sweep for word in ("--sweep", one)])
    for point in points:
        valid(of_point, point, "sweep of %s" % sweep)
    others.append(points[0])
for options in (["--tension", "5", "--member1", "48x198", "--member2", "48x223"], ["--with-connectors", "--set", "Klima=7"]):
    found = run("--find", "--json", *options)[0]
    valid(of_find, found, "find %s" % options)
    found["found"] = found["found"][:2]
    others.append(found)
with tempfile.NamedTemporaryFile("w", suffix=".csv", encoding="utf-8") as table:
    table.write("name;force;load\nDead;4,5;permanent\nSnow;-11,5;short\n")
    table.flush()
    for options in ([], ["--connector", "D75"], ["--set", "Klima=7"], ["--connector", "D50", "--bolt", "M24x8.8"],
                    ["--set", "Man_he_on=true", "--set", "man_he=900"]):
        others.append(run("--json", "--loads", table.name, *options)[0])
        valid(of_loads, others[-1], "loads %s" % options)
for value in [whole, *others]:
    valid(of_output, value, "the choice of all")
    expect(not of_output.is_valid({**value, "more": 1}) if isinstance(value, dict) else True, "a name that is not known is taken")

print("\n".join(failures) or "valid: %d results, %d refused lines" % (counts["result"], counts["error"]))
sys.exit(1 if failures else 0)
