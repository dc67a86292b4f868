#!/usr/bin/env python3
"""make_manual.py: makes the manual, docs/manual/Tarnvik User & Theory Manual.pdf, from the Markdown beside it, and the
picture of the window in README.md.

    tools/make_manual.py [FOLDER_OF_PROGRAMS]           writes the PDF, window.png and manifest.txt
    tools/make_manual.py --check [FOLDER_OF_PROGRAMS]   exit status 1 where the PDF is older than what it shows

The programs are those of build/release/bin unless another folder is named; both ways need tarnvik-check, tarnvik-paint
and manual_walk in it. The first one also needs the Debian packages of `manual_packages` in tools/setup.sh.

What the manual shows of the program is made anew each time: windows, sketches, reports, tables, what the tool prints.
manifest.txt holds a hash of each such piece, of each source, of the PDF and of the picture. Hand calculations are compared with the
program while the chapters are read. Lines of the Markdown that begin with "%%" ask for such a piece:

    %% figure FILE WIDTH_IN_MM CAPTION     a picture by its key, a window of manual_walk, a page of a report: report-heel:1,
                                           or report-heel:1:8,12,6,0, that page less so many mm left, below, right, above
    %% row WIDTHS FILE... | CAPTION        several beside each other, of one width or "40,60"
    %% table NAME                          one of the tables below
    %% run COMMAND                         a command line and what it prints
    %% lines FROM TO COMMAND               the same, of what it prints these lines only
    %% joint OPTIONS                       what the next lines are held against
    %% is NAME PICTURE VALUE               a value of that joint, rounded to the decimals of PICTURE
"""
import decimal
import hashlib
import json
import os
import pathlib
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
MANUAL = ROOT / "docs" / "manual"
PDF = MANUAL / "Tarnvik User & Theory Manual.pdf"
WINDOW = MANUAL / "window.png"
MANIFEST = MANUAL / "manifest.txt"
ENVIRONMENT = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "LANG": "C.UTF-8"}

# The reports whose pages are shown, with the joint of each.
HEEL = ("--joint 1.1 --member1 48x198 --member2 48x223 --material C24 --bolt M16x8.8 --bolts 4 "
        "--compression 12kN --angle 27 --load medium --set Id=Heel-joint --set Prosjekt=Storgata-4")
REPORTS = {"report-heel": HEEL}

problems = []


class Facts:
    """What the programs say, each piece kept for the manifest."""

    def __init__(self, programs, folder):
        self.folder = folder
        self.hashes = {}
        self.programs = folder / "programs"
        self.programs.mkdir()
        for name in ("tarnvik-check", "tarnvik-paint", "manual_walk"):
            (self.programs / name).symlink_to((programs / name).resolve())
        for table in ("TarnvikMaterial.csv", "TarnvikProfile.csv", "Tarnviksetup.csv"):
            shutil.copy(ROOT / "data" / table, folder)
        for example in (ROOT / "examples").iterdir():
            shutil.copy(example, folder)
        self.run_program(["--pictures", str(folder / "pictures")], keep=None)
        subprocess.run([self.programs / "manual_walk", "--gtest_brief=1"], check=True, stdout=subprocess.DEVNULL,
                       env=ENVIRONMENT | {"TARNVIK_MANUAL": str(folder)})
        for name in ("windows-first-check.json", "windows-marks.json", "inputs.json", "rules.json"):
            self.keep(name, (folder / name).read_bytes())

    def keep(self, name, content):
        if isinstance(content, str):
            content = content.encode()
        self.hashes[name] = hashlib.sha256(content).hexdigest()

    def run_program(self, arguments, keep="", lang="Eng"):
        """What tarnvik-check prints."""
        command = [self.programs / "tarnvik-check", "--data", str(self.folder), *arguments]
        if lang and "--verify" not in arguments and "--list" not in arguments:
            command += ["--lang", lang]
        done = subprocess.run(command, cwd=self.folder, env=ENVIRONMENT, text=True, capture_output=True, check=False)
        if done.returncode not in (0, 1):
            problems.append(f"tarnvik-check {shlex.join(arguments)}: {done.stderr}")
        if keep is not None:
            self.keep("tarnvik-check " + shlex.join(arguments), done.stdout)
        return done.stdout

    def listed(self, name):
        return json.loads(self.run_program(["--list", name, "--json"]))

    def loaded(self, name):
        return json.loads((self.folder / name).read_text())

    def picture(self, name):
        """The file of a picture, ready for the page, and what of it is shown."""
        part = ""
        if ":" in name:
            name, page, *cut = name.split(":")
            part = f",page={page}"
            if cut:
                part += ",clip,trim=" + " ".join(side + "mm" for side in cut[0].split(","))
            self.run_program(shlex.split(REPORTS[name]) + ["--with", "report", "--fields", "uf"], keep=None)
            file = self.folder / (name + ".pdf")
            if not file.exists():
                self.run_program([*shlex.split(REPORTS[name]), "--report", str(file)], keep=None)
                self.keep(name, self.report_calls(REPORTS[name]))
        elif (self.folder / (name + ".pdf")).exists():
            file = self.folder / (name + ".pdf")
        else:
            source = self.folder / (name if name.endswith(".svg") else f"pictures/{name}.svg")
            self.keep(name, source.read_bytes())
            file = source.with_suffix(".pdf")
            if not file.exists() and shutil.which("rsvg-convert"):
                subprocess.run(["rsvg-convert", "-f", "pdf", "-o", file, source], check=True)
        return file, part

    def report_calls(self, joint):
        """The calls that print a report, without day and time."""
        text = self.run_program(shlex.split(joint) + ["--with", "report", "--fields", "uf"], keep=None)
        return re.sub(r"\d+[./-]\d+[./-]\d+|\d\d:\d\d:\d\d", "", text)


# ----------------------------------------------------------------------------------------------------------------------
# Tables

def escaped(text):
    for char, code in {"\\": r"\textbackslash{}", "&": r"\&", "%": r"\%", "$": r"\$", "#": r"\#", "_": r"\_", "{": r"\{",
                       "}": r"\}", "~": r"\textasciitilde{}", "^": r"\textasciicircum{}"}.items():
        text = text.replace(char, code) if char != "\\" else text.replace("\\", "\0")
    return text.replace("\0", r"\textbackslash{}")


def table(columns, heading, rows, caption, size="small"):
    """A table, over pages where it has long texts; `columns` in LaTeX, cells are LaTeX."""
    head = " & ".join(r"\textbf{" + cell + "}" for cell in heading) + r" \\"
    if "L{" not in columns:
        return "\n".join([rf"\begin{{table}}[H]\centering\{size}\caption{{{caption}}}",
                          rf"\begin{{tabular}}{{@{{}}{columns}@{{}}}}\toprule", head, r"\midrule",
                          *(" & ".join(row) + r" \\" for row in rows), r"\bottomrule\end{tabular}\end{table}"])
    lines = [rf"{{\{size}", rf"\begin{{longtable}}{{@{{}}{columns}@{{}}}}", rf"\caption{{{caption}}}\\", r"\toprule", head,
             r"\midrule", r"\endfirsthead", r"\toprule", head, r"\midrule", r"\endhead", r"\bottomrule", r"\endfoot"]
    lines += [" & ".join(row) + r" \\" for row in rows]
    return "\n".join([*lines, r"\end{longtable}}"])


def inputs_of(facts, window, caption):
    rows, seen = [], set()
    for row_of, _, name, tip in facts.loaded("inputs.json"):
        if row_of != window or not name:
            continue
        name, tip = (text.replace("{1}", "Member").replace("{2}", "Member") for text in (name, tip))
        if (name, tip) in seen:
            continue
        seen.add((name, tip))
        lines = [line if line.endswith((".", ",")) else line + "." for line in tip.replace("\nCtrl+D", "").split("\n")]
        words, of, clause = " ".join(lines).rpartition("EN 1995-1-1 ")
        if not words.rstrip().endswith((".", ",")):  # in the midst of a sentence, or none
            words, clause = words + of + clause, ""
        words = re.sub(",$", ".", words.rstrip())
        rows.append([escaped(name), escaped(words), escaped(clause.rstrip("."))])
    return table(r"L{42mm}L{87.5mm}L{27.5mm}", ["Input", "What it is, unit, range, effect", "EN 1995-1-1"], rows, caption)


def table_inputs_main(facts):
    return inputs_of(facts, "frmMain", "Inputs of the main window")


def table_inputs_classes(facts):
    return inputs_of(facts, "Frm_tarn_vik_fak_klass", "Inputs of the window Classes")


def table_inputs_setup(facts):
    return inputs_of(facts, "frmSetup", "Inputs of the window Setup")


def table_bolts(facts):
    rows = [[row["bolt"], str(row["d"]), str(row["fuk"])] for row in facts.listed("bolts")]
    return table("lrr", ["Bolt", "$d$, mm", r"$f_{u,k}$, N/mm²"], rows, "Bolts")


def table_connectors(facts):
    teeth = {"D95": "9.5 (not 11.325)", "D117": "12.5 (not 14.25)"}
    plate = {"D50": 1.0, "D62": 1.2, "D75": 1.25, "D95": 1.35, "D117": 1.5}
    distance = {"D50": "48"}
    rows = []
    for row in facts.listed("connectors"):
        name = row["connector"]
        deep = (float(row["hc"]) - plate[name]) / 2
        sizes = sorted({bolt.split("x")[0] for bolt in row["bolts"].split()})
        rows.append([name, str(row["dc"]), distance.get(name, str(row["dc"])), str(row["hc"]), str(plate[name]),
                     teeth.get(name, f"{deep:g}"), ", ".join(sizes)])
    return table("lrrrrll", ["Connector", "$d_c$, mm", "for distances", "$h_c$, mm", "$t$, mm", "$h_e$, mm", "Bolts"], rows,
                 "Double-sided tooth-plate connectors, type C1")


def table_materials(facts):
    rows = [[escaped(row["material"]), row["type"], str(row["fc90k"]), str(row["dens"])] for row in facts.listed("materials")]
    half = (len(rows) + 1) // 2
    rows += [[""] * 4] * (2 * half - len(rows))
    heading = ["Material", "Type", "$f_{c,90,k}$", r"$\rho_k$"]
    return table(r"llrr@{\hspace{12mm}}llrr", heading * 2, [one + two for one, two in zip(rows[:half], rows[half:])],
                 r"Delivered materials: $f_{c,90,k}$ in N/mm², $\rho_k$ in kg/m³", "footnotesize")


# t1, t2 and their angles of each joint, taken from a check of it.
def table_joints(facts):
    rows = []
    for row in facts.listed("joints"):
        code = row["joint"]
        state = json.loads(facts.run_program(
            ["--joint", code, "--member1", "2x40x200" if row["member 1"] == "double" else "40x200", "--member2",
             "2x60x200" if row["member 2"] == "double" else "60x200", "--angle", "50" if code < "4" else "90", "--fields",
             "t1,t2,alp1,alp2"]))["state"]
        angle = {0: "0", 50: r"$\alpha$", 90: "90°" if code in ("4.1", "4.2") else r"$\alpha$"}
        thick = {40: "$b_1$", 60: "$b_2$"}
        half = code in ("1.3", "2.3", "3.2", "4.2", "5.2")
        rows.append([code, row["member 1"], row["member 2"], str(row["shear planes"]), thick[state["t1"]],
                     angle[round(state["alp1"])], thick[state["t2"]], angle[round(state["alp2"])],
                     row["splits"], "$F/2$" if half else "$F$"])
    return table("lllrllllll", ["Joint", "Member 1", "Member 2", "Planes", "$t_1$", "angle", "$t_2$", "angle", "Splits", "with"],
                 rows, "The 15 joints: shear planes, thicknesses, angles of force to grain, member that may split",
                 "footnotesize")


def table_named(facts):
    rows = [[r"\texttt{--" + row["input"] + "}", escaped(row["meaning"]), escaped(row["allowed"])]
            for row in facts.listed("inputs") if row["written as"].startswith("--" + row["input"])]
    return table(r"lL{58mm}L{68mm}", ["Option", "Meaning", "What it takes"], rows, "Inputs by name", "footnotesize")


# Formulas of the rules as the manual writes them; s and c are sine and cosine of the angle between the members.
RULES = {
    "3*d": "$3d$", "4*d": "$4d$", "7*d": "$7d$", "N*d": "$Nd$", "(4 + cos(alpha))*d": "$(4+c)d$",
    "max(7*d; 80)": r"$7d\ge80$", "max((2 + 2*sin(alpha))*d; 3*d)": r"$(2+2s)d\ge3d$",
    "max((1 + 6*sin(alpha))*d; 4*d)": r"$(1+6s)d\ge4d$", "max((1 + 6*sin(0))*d; 4*d)": "$4d$",
    "max((4 + cos(alpha))*d*sin(alpha); 4*d)": r"$(4+c)ds\ge4d$", "max(N*d*sin(alpha); 4*d)": r"$Nds\ge4d$",
    "0.6*D": "$0.6D$", "0.8*D": "$0.8D$", "1.2*D": "$1.2D$", "1.5*D": "$1.5D$", "2*D": "$2D$",
    "max(N*d; 1.5*D)": r"$Nd\ge1.5D$", "(1.2 + 0.3*cos(alpha))*D": "$(1.2+0.3c)D$", "(0.6 + 0.2*sin(alpha))*D": "$(0.6+0.2s)D$",
    "(0.9 + 0.6*sin(alpha))*D": "$(0.9+0.6s)D$", "(0.9 + 0.6*sin(0))*D": "$0.9D$",
    "max((1.2 + 0.3*cos(alpha))*D*sin(alpha); 1.2*D)": r"$(1.2+0.3c)Ds\ge1.2D$",
    "max(max(N*d; 1.5*D)*sin(alpha); 1.2*D)": r"$Nds,\,1.5Ds\ge1.2D$",
}
SKETCHES = {"4.6.a": "Pic4_6", "4.6.b": "Pic4_6_b"}


def rule_cells(tension, compression, kind):
    one, two = RULES[tension[kind]], RULES[compression[kind]]
    return rf"\multicolumn{{2}}{{c}}{{{one}}}" if one == two else f"{one} & {two}"


def sum_row(case, family, member):
    named = [row["name"] for row in case["tension"] if row["name"][0] == family and row["across"]]
    names = "+".join(f"{name[0]}_{name[1]}" for name in named)
    return rf"\multicolumn{{5}}{{@{{}}l@{{}}}}{{${names}\le h_{member}$}} \\"


def case_block(facts, case):
    code = case["case"].strip()
    stem = SKETCHES.get(code, "Pic" + code.rstrip(".").replace(".", "_"))
    kind = "Frm_tarn_vik_bolter_" + code[0]
    sketches = [facts.picture(f"{kind}_{sign}/{stem}")[0] for sign in ("strekk", "trykk")]
    rows = []
    for tension, compression in zip(case["tension"], case["compression"]):
        if tension["name"] == "b1":
            rows.append(sum_row(case, "a", 1) + r"\midrule")
        name = tension["name"]
        mark = r"\textdagger" if tension["missing"] or compression["missing"] else ""
        rows.append(f"${name[0]}_{name[1]}${mark} & {rule_cells(tension, compression, 'bolts')} & "
                    f"{rule_cells(tension, compression, 'connectors')} " + r"\\")
    rows.append(sum_row(case, "b", 2))
    picture = r"\includegraphics[width=48mm]{%s}\\[-1pt]{\scriptsize\sffamily %s}"
    return "\n".join([
        r"\begin{caseblock}{" + code.rstrip(".") + "}",
        r"\begin{minipage}[t]{49mm}\vspace{0pt}\centering", picture % (sketches[0], "tension") + r"\\[2pt]",
        picture % (sketches[1], "compression"), r"\end{minipage}\hfill%",
        r"\begin{minipage}[t]{115mm}\vspace{0pt}\footnotesize\setlength{\tabcolsep}{4pt}",
        r"\begin{tabular}{@{}lcccc@{}}\toprule & \multicolumn{2}{c}{bolts} & \multicolumn{2}{c}{connectors}\\"
        r"\cmidrule(lr){2-3}\cmidrule(l){4-5} & tension & compression & tension & compression\\\midrule",
        *rows, r"\bottomrule\end{tabular}\end{minipage}", r"\end{caseblock}"])


def table_rules(facts):
    return "\n".join(case_block(facts, case) for case in facts.loaded("rules.json"))


def table_unchecked(facts):
    sheet = facts.folder / "sheet.html"
    facts.run_program([*shlex.split(HEEL), "--sheet", str(sheet)], keep=None)
    listed = re.search(r'<ul class="unchecked">(.*?)</ul>', sheet.read_text(), re.DOTALL).group(1)
    facts.keep("lines of the check sheet", listed)
    lines = [re.sub(r"<sub>(.*?)</sub>", r"\\textsubscript{\1}", line) for line in re.findall(r"<li>(.*?)</li>", listed)]
    return "\n".join([r"\begin{itemize}\setlength{\itemsep}{0pt}\setlength{\parskip}{0pt}",
                      *(r"\item " + line for line in lines), r"\end{itemize}"])


TABLES = {name[len("table_"):].replace("_", "-"): run for name, run in list(globals().items()) if name.startswith("table_")}

# ----------------------------------------------------------------------------------------------------------------------
# Chapters


def raw(latex):
    return "\n```{=latex}\n" + latex + "\n```\n"


def figure(files, width, caption, facts):
    shown = []
    widths = width.split(",") * (1 if "," in width else len(files))
    for name, width in zip(files, widths):
        file, part = facts.picture(name)
        shown.append(rf"\includegraphics[width={width}mm{part}]{{{file}}}")
    return raw("\n".join([r"\begin{figure}[H]\centering", r"\hspace{4mm}".join(shown), rf"\caption{{{caption}}}",
                          r"\end{figure}"]))


def transcript(command, facts, first=None, last=None):
    arguments = shlex.split(command)
    printed = facts.run_program(arguments[1:], lang="").rstrip("\n").split("\n")
    if first is not None:
        printed = ["..."] * (first > 1) + printed[first - 1:last] + ["..."] * (last < len(printed))
    shown = command
    while True:  # long command lines are broken at an option
        lines = shown.split("\n")
        if len(lines[-1]) <= 88:
            break
        cut = lines[-1].rfind(" --", 0, 84)
        shown = "\n".join([*lines[:-1], lines[-1][:cut] + " \\", "    " + lines[-1][cut + 1:]])
    shown = "$ " + shown + "\n" + "\n".join(printed)
    if max(len(line) for line in printed) > 110:
        return raw("\\begin{wide}\n" + shown + "\n\\end{wide}")
    return "\n```\n" + shown + "\n```\n"


def rounded(value, picture):
    digits = decimal.Decimal(1).scaleb(-len(picture.partition(".")[2]))
    return str(decimal.Decimal(repr(value)).quantize(digits, decimal.ROUND_HALF_UP))


class Joint:
    """A joint by its options, and the comparison of what is written about it."""

    def __init__(self, options, facts):
        self.state = json.loads(facts.run_program([*shlex.split(options), "--json"]))["state"]

    def compare(self, name, picture, value):
        found = rounded(float(self.state[name]), picture)
        if found != value:
            problems.append(f"{name}: the manual has {value}, the program {found}")


def bold_heading(row):
    cells = [cell.strip() for cell in row.strip("|").split("|")]
    return "| " + " | ".join(f"**{cell}**" if cell else "" for cell in cells) + " |"


def chapter(text, facts):
    """The chapter with its pieces in place of the lines that ask for them."""
    out, joint = [], None
    lines = text.split("\n")
    for line, following in zip(lines, [*lines[1:], ""]):
        words = line.split()
        if line.startswith(("# ", "## ")):  # no heading at the foot of a page
            out += [raw(r"\Needspace{60mm}" if words[0] == "#" else r"\Needspace{35mm}"), line]
        elif following.startswith("|:"):
            out.append(bold_heading(line))
        elif not line.startswith("%% "):
            out.append(line)
        elif words[1] == "figure":
            out.append(figure([words[2]], words[3], " ".join(words[4:]), facts))
        elif words[1] == "row":
            files, caption = line[len("%% row "):].split("|")
            width, *files = files.split()
            out.append(figure(files, width, caption.strip(), facts))
        elif words[1] == "table":
            out.append(raw(TABLES[words[2]](facts)))
        elif words[1] == "run":
            out.append(transcript(line[len("%% run "):], facts))
        elif words[1] == "lines":
            out.append(transcript(" ".join(words[4:]), facts, int(words[2]), int(words[3])))
        elif words[1] == "joint":
            joint = Joint(line[len("%% joint "):], facts)
        elif words[1] == "is":
            joint.compare(*words[2:])
        else:
            problems.append("unknown: " + line)
    return "\n".join(out)


def version():
    return re.search(r"project\(tarnvik VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text()).group(1)


def make_pdf(markdown, folder):
    (folder / "manual.md").write_text(markdown)
    subprocess.run(["pandoc", "manual.md", "--from=markdown+raw_attribute-implicit_figures", "--to=latex", "--standalone",
                    "--toc", "--toc-depth=2", "--number-sections", "--top-level-division=section",
                    "--include-in-header=" + str(MANUAL / "style.tex"), "--metadata", "date=Version " + version(),
                    "--highlight-style=monochrome", "--output=manual.tex"], cwd=folder, check=True)
    for _ in range(3):  # contents, then page numbers
        done = subprocess.run(["lualatex", "-interaction=nonstopmode", "-halt-on-error", "manual.tex"], cwd=folder,
                              env=os.environ | {"SOURCE_DATE_EPOCH": "1767225600"}, text=True, errors="replace",
                              capture_output=True, check=False)
        if done.returncode != 0:
            sys.exit("\n".join(done.stdout.split("\n")[-40:]))
    log = (folder / "manual.log").read_text(errors="replace")
    for line in re.findall(r"Overfull \\hbox \(\d\d[\d.]*pt too wide\)[^\n]*|Missing character[^\n]*", log):
        print("layout:", line)
    shutil.copy(folder / "manual.pdf", PDF)
    subprocess.run(["pdftocairo", "-png", "-r", "110", "-singlefile", folder / "window-holds.pdf", WINDOW.with_suffix("")],
                   check=True)


def main():
    arguments = sys.argv[1:]
    check = "--check" in arguments
    folders = [argument for argument in arguments if argument != "--check"]
    programs = pathlib.Path(folders[0]) if folders else ROOT / "build" / "release" / "bin"
    with tempfile.TemporaryDirectory() as name:
        facts = Facts(programs, pathlib.Path(name))
        sources = [*sorted(MANUAL.glob("*.md")), MANUAL / "style.tex", pathlib.Path(__file__)]
        chapters = []
        for source in sources:
            facts.keep(str(source.relative_to(ROOT)), source.read_bytes())
            if source.suffix == ".md":
                chapters.append(chapter(source.read_text(), facts))
        if not check and not problems:
            make_pdf("\n\n".join(chapters), pathlib.Path(name))
        for made in (PDF, WINDOW):
            if made.exists():
                facts.keep(made.name, made.read_bytes())
    listed = "".join(f"{code}  {name}\n" for name, code in sorted(facts.hashes.items()))
    if check:
        kept = set(MANIFEST.read_text().splitlines())
        for line in sorted(set(listed.splitlines()) ^ kept, key=lambda line: line[66:]):
            problem = "changed since the manual was made: " + line[66:]
            if problem not in problems:
                problems.append(problem)
    elif not problems:
        MANIFEST.write_text(listed)
    for problem in problems:
        print(problem)
    if problems and check:
        print("the manual is older than what it shows: run tools/make_manual.py and commit what it writes")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
