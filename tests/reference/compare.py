#!/usr/bin/env python3
"""compare.py TOOL [N] [SEED]: differential test of TOOL --batch --json against the reference.

Float values are compared bit for bit as binary32, fixed texts blank-padded, all other values exactly.
Further options: --show K (mismatching lines printed, default 5), --edges F (share of steps with edge values, default 0.25),
--open (also inputs at the edge of what a user would write: exponents, "-0.04", fixed texts of another length),
--data DIR (passed on to the tool), --lines FILE (inputs from a file instead of random ones), --keep FILE (write the inputs).
Exit status 0 when all agree, 1 otherwise. A REPORT of the end kinds and of what was covered is printed."""
import argparse, collections, json, os, random, subprocess, sys, tempfile
HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, "reference"))
sys.dont_write_bytecode = True
import inputs as I
import reference as R

ap = argparse.ArgumentParser()
ap.add_argument("tool"); ap.add_argument("n", nargs="?", type=int, default=2000); ap.add_argument("seed", nargs="?", type=int, default=1)
ap.add_argument("--show", type=int, default=5); ap.add_argument("--edges", type=float, default=0.25)
ap.add_argument("--open", action="store_true"); ap.add_argument("--data"); ap.add_argument("--lines"); ap.add_argument("--keep")
A = ap.parse_args()
NOT_MODELLED = {"Loading"}
rng = random.Random(A.seed)
if A.open:
    for k, v in I.OPEN.items():
        if k.startswith("Txt_"): I.TEXTS_BAD += v
        else: I.EDGE[k] = I.EDGE[k] + v * 3
if A.lines:
    lines = [l.strip() for l in open(A.lines, encoding="utf-8") if l.strip()]
    lines = [json.loads(l) for l in lines]
    lines = [l["set"] if isinstance(l, dict) and "set" in l else l for l in lines]
else:
    lines = [{}] + [I.line(rng, A.edges) for _ in range(A.n - 1)]
text = "".join(json.dumps(l, ensure_ascii=False) + "\n" for l in lines)
if A.keep: open(A.keep, "w", encoding="utf-8").write(text)

cmd = A.tool.split() + ["--batch", "--json"] + (["--data", A.data] if A.data else [])
with tempfile.TemporaryFile() as fin, tempfile.TemporaryFile() as fout:
    fin.write(text.encode()); fin.seek(0)
    try: proc = subprocess.Popen(cmd, stdin=fin, stdout=fout)
    except OSError as e: sys.exit("cannot run %s: %s" % (A.tool, e))
    wanted, ends, cover = [], collections.Counter(), collections.defaultdict(collections.Counter)
    for l in lines:
        steps = l if isinstance(l, list) else [l]
        s = R.new_project(); msgs = []
        for st in steps:
            R.apply(s, st); r = R.run_pass(s); msgs += r["messages"]
        wanted.append((r, s, msgs))
        ends[r["end"] + (" %d" % r["fault"]["number"] if r["fault"] else "")] += 1
        cover["Con_code"][s["Con_code"]] += 1; cover["Case_code"][s["Case_code"]] += 1
    code = proc.wait(); fout.seek(0); out = fout.read().decode("utf-8", "replace")

def is_num(v): return isinstance(v, (int, float)) and not isinstance(v, bool)

def same(name, mine, theirs):
    if name in R.ALL_FLOATS:
        if not is_num(theirs): return False
        try: return R.bits(R.f32(float(theirs))) == R.bits(mine)
        except (R.Fault, OverflowError): return False
    if name in R.FIXED: return isinstance(theirs, str) and theirs.ljust(R.FIXED[name]) == mine
    if name in R.FLAGS: return theirs is mine
    if name in R.INTEGERS: return is_num(theirs) and theirs == mine
    return theirs == mine

got = [l for l in out.split("\n") if l.strip()]
print("tool exit status %d, %d lines in, %d lines out; ends wanted: %s" % (code, len(lines), len(got), dict(ends)))
print("connection codes %d, case codes %d" % (len(cover["Con_code"]), len(cover["Case_code"])))
bad_lines, by_name, missing, extra, shown = 0, collections.Counter(), collections.Counter(), set(), 0
for i, (l, (r, s, msgs)) in enumerate(zip(lines, wanted)):
    diffs = []
    if i >= len(got): diffs.append(("line", "a result", "nothing")); o = None
    else:
        try: o = json.loads(got[i])
        except ValueError as e: o = None; diffs.append(("line", "JSON", got[i][:200]))
    if o is not None:
        if "error" in o: diffs.append(("line", "a result", o))
        else:
            if o.get("end") != r["end"]: diffs.append(("end", r["end"] + (" %s" % r["fault"] if r["fault"] else ""), "%s %s" % (o.get("end"), o.get("fault"))))
            f = o.get("fault") or None
            if (f or {}).get("number") != (r["fault"] or {}).get("number"): diffs.append(("fault.number", r["fault"], f))
            tm = [m.get("text") for m in o.get("messages", [])]
            if tm != r["messages"] and tm != msgs: diffs.append(("messages", r["messages"], tm))
            st = o.get("state", {})
            for n in R.STATE_NAMES:
                if n not in st: missing[n] += 1
                elif not same(n, s[n], st[n]): diffs.append((n, s[n], st[n]))
            extra |= set(st) - set(R.STATE_NAMES)
    if diffs:
        bad_lines += 1
        for n, _, _ in diffs: by_name[n] += 1
        if shown < A.show:
            shown += 1
            print("\n--- line %d: %s\n    %d differences; wanted end %s, Con_code %r Case_code %r" % (i + 1, json.dumps(l, ensure_ascii=False), len(diffs), r["end"], s["Con_code"], s["Case_code"]))
            for n, w, g in diffs[:12]:
                if n in R.ALL_FLOATS: print("    %-16s wanted %-14s got %s%s" % (n, R.shortest(w), g, "  (bits %08x, %08x)" % (R.bits(w), R.bits(R.f32(float(g)))) if is_num(g) and abs(g) < 3e38 else ""))
                else: print("    %-16s wanted %r got %r" % (n, w, g))
if missing: print("\nNAMES MISSING from the tool's state: %s" % ", ".join(sorted(missing)))
if extra - NOT_MODELLED: print("names of the tool not modelled here: %s" % ", ".join(sorted(extra - NOT_MODELLED)))
if by_name: print("\nmismatches by name: %s" % ", ".join("%s %d" % kv for kv in by_name.most_common(40)))
print("%s: %d of %d lines differ" % ("DIFFERENT" if bad_lines or missing or len(got) != len(lines) else "SAME", bad_lines, len(lines)))
sys.exit(1 if bad_lines or missing or len(got) != len(lines) else 0)
