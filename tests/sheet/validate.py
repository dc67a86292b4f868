#!/usr/bin/env python3
"""validate.py TARNVIK_CHECK: check sheets of all cases, both languages, with and without connectors, held against tidy.

Exit status 1 when it has anything to say; 77 where it is not installed.
"""
import pathlib
import shutil
import subprocess
import sys
import tempfile

CASES = ["1.1", "1.2.a", "1.2.b", "1.3.a", "1.3.b", "1.4", "1.6", "2.1", "2.2", "2.3", "2.4", "2.6", "3.1", "3.2.a",
         "3.2.b", "3.3.a", "3.3.b", "3.4", "3.6", "4.1", "4.2.a", "4.2.b", "4.3.a", "4.3.b", "4.4", "4.6.a", "4.6.b",
         "5.1", "5.2.a", "5.2.b", "5.3.a", "5.3.b", "5.4", "5.6.a", "5.6.b"]


def lines():
    for case in CASES:
        for connectors in ("false", "true"):
            for lang in ("Eng", "Nor"):
                letter = case[4:] or "a"
                yield ('{"Id":"%s & <%s>","Con_type":%s,"Ant_index":%d,"Bolt_ab":"%s","Bolt_index":5,"Lang":"%s",'
                       '"Med_bulldog":%s,"Kun_bolt":%s,"P":-12.5,"Prof1_index":9,"Prof2_index":9}' %
                       (case, lang, case[0], "12346".index(case[2]), letter, lang, connectors,
                        "false" if connectors == "true" else "true"))


def main(program):
    if shutil.which("tidy") is None:
        print("tidy is not installed")
        return 77
    with tempfile.TemporaryDirectory() as folder:
        subprocess.run([program, "--batch", "--fields", "uf", "--sheets", folder], input="\n".join(lines()), text=True,
                       check=False, stdout=subprocess.DEVNULL)
        sheets = sorted(pathlib.Path(folder).iterdir())
        found = subprocess.run(["tidy", "-q", "-e", *map(str, sheets)], text=True, check=False,
                               stderr=subprocess.PIPE).stderr
        print(found + "%d sheets" % len(sheets))
        return 1 if found or len(sheets) != 4 * len(CASES) else 0


sys.exit(main(sys.argv[1]))
