#!/usr/bin/env python3
"""manual.py TOOL: the examples of the manual page, carried out one after the other, and that every option has one."""
import os, re, shutil, subprocess, sys, tempfile
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
TOOL = os.path.abspath(sys.argv[1])
PAINTS = os.path.exists(os.path.join(os.path.dirname(TOOL), "tarnvik-paint"))
JOINTS = """Id;joint;member1;member2;bolt;bolts;tension;angle;load
K1;1.2;2x48x198;48x223;M16x8.8;2;12,5;40;medium
K2;1.1;48x198;48x223;M20x8.8;2;6,0;30;short
"""
failures = []


def examples():
    with open(os.path.join(ROOT, "docs", "tarnvik-check.1"), encoding="utf-8") as file:
        section = re.search(r"^\.SH EXAMPLES\n(.*?)^\.SH ", file.read(), re.S | re.M).group(1)
    blocks = re.findall(r"^\.nf\n(.*?)^\.fi\n", section, re.S | re.M)
    return [block.replace("\\-", "-").replace("\\e", "\\") for block in blocks]


shown = examples()
options = set(re.findall(r"--[a-z][a-z0-9-]*", subprocess.run([TOOL, "--help"], capture_output=True, encoding="utf-8").stdout))
missing = options - set(re.findall(r"--[a-z][a-z0-9-]*", "\n".join(shown)))
if missing:
    failures.append("options without an example: %s" % sorted(missing))

with tempfile.TemporaryDirectory() as folder:
    programs = os.path.join(folder, "bin")
    os.mkdir(programs)
    os.symlink(TOOL, os.path.join(programs, "tarnvik-check"))
    work = os.path.join(folder, "work")
    shutil.copytree(os.path.join(ROOT, "data"), os.path.join(work, "office"), ignore=shutil.ignore_patterns("*.cpp", "*.h", "*.txt"))
    with open(os.path.join(work, "joints.csv"), "w", encoding="utf-8") as file:
        file.write(JOINTS)
    for example in shown:
        lines = [line for line in example.replace("\\\n", "").splitlines() if PAINTS or not re.search("--(report|pictures) ", line)]
        done = subprocess.run(["bash", "-c", "\n".join(lines)], cwd=work, env={**os.environ, "PATH": programs + ":" + os.environ["PATH"]},
                              stdin=subprocess.DEVNULL, capture_output=True, encoding="utf-8")
        if done.returncode not in (0, 1) or done.stderr:
            failures.append("%s\nended with %d: %s" % (example, done.returncode, done.stderr))
    written = ["heel.tnvik", "heel.html", "heel.json", "verdicts.csv", "joint.svg", "choices.csv", "sheets"]
    written += ["heel.pdf", "pictures"] if PAINTS else []
    failures += ["not written: " + name for name in written if not os.path.exists(os.path.join(work, name))]

print("\n".join(failures) or "%d examples" % len(shown))
sys.exit(1 if failures else 0)
