#!/usr/bin/env python3
"""completions.py TOOL SHELL: what bash or zsh offers behind tarnvik-check, against what the program says of itself.

Exit status 77 where the shell is missing."""
import json, os, pty, re, select, shutil, subprocess, sys, tempfile, time
ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
FILES = os.path.join(ROOT, "packaging", "completions")
TOOL, SHELL = os.path.abspath(sys.argv[1]), sys.argv[2]
if shutil.which(SHELL) is None:
    print(SHELL + " is missing")
    sys.exit(77)
failures = []


def tool(*arguments):
    return subprocess.run([TOOL, "--lang", "Eng", *arguments], capture_output=True, encoding="utf-8").stdout


def listed(name):
    return [next(iter(row.values())) for row in json.loads(tool("--list", name, "--json"))]


class Bash:
    """Calls the completion function as bash does, which takes "=" for a word of its own."""

    def __init__(self, folder):
        self.folder = folder

    def ask(self, words):
        split = [part for word in words for part in re.split("(=)", word) if part or word == ""]
        script = 'source "$0"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _tarnvik_check; printf "%s\\n" "${COMPREPLY[@]}"'
        done = subprocess.run(["bash", "--norc", "-c", script, os.path.join(FILES, "tarnvik-check.bash"), *split],
                              cwd=self.folder, env=environment(self.folder), capture_output=True, encoding="utf-8")
        if done.stderr:
            failures.append("bash: %s: %s" % (words, done.stderr.strip()))
        return [line.replace("\\", "") for line in done.stdout.splitlines() if line]


ZSHRC = r"""
PS1=READY RPS1= PROMPT_EOL_MARK=
fpath=($FILES $fpath)
autoload -Uz compinit && compinit -u -D
compadd() {
    if [[ ${@[1,(i)(-|--)]} == *-(O|A|D)\ * ]]; then builtin compadd "$@"; return; fi
    local -a hits
    builtin compadd -A hits "$@"
    [[ $# -gt 0 ]] && print -rl -- $hits >>$ANSWER
    builtin compadd "$@"
}
finish() { print -r -- DONE >>$ANSWER }
capture() { comppostfuncs=(finish); _main_complete }
zle -C capture complete-word capture
bindkey '^X' capture
bindkey '^U' kill-whole-line
setopt no_auto_list no_auto_menu no_list_beep
"""


class Zsh:
    """A shell in a terminal: lines are completed in it, and what is added to the matches goes to a file."""

    def __init__(self, folder):
        self.answer = os.path.join(folder, "answer")
        self.seen = b""
        with open(os.path.join(folder, ".zshrc"), "w", encoding="utf-8") as file:
            file.write(ZSHRC)
        child, self.terminal = pty.fork()
        if child == 0:
            os.chdir(folder)
            os.execvpe("zsh", ["zsh", "-i", "-d"], {**environment(folder), "ZDOTDIR": folder, "FILES": FILES,
                                                    "ANSWER": self.answer, "TERM": "dumb"})
        self.wait(lambda: b"READY" in self.seen)

    def wait(self, ready):
        end = time.monotonic() + 60
        while not ready() and time.monotonic() < end:
            if select.select([self.terminal], [], [], 0.01)[0]:
                self.seen += os.read(self.terminal, 4096)

    def lines(self):
        with open(self.answer, encoding="utf-8") as file:
            return file.read().splitlines()

    def ask(self, words):
        open(self.answer, "w", encoding="utf-8").close()
        os.write(self.terminal, (" ".join(words) + "\x18").encode())
        self.wait(lambda: "DONE" in self.lines())
        os.write(self.terminal, b"\x15")
        if "DONE" not in self.lines():
            failures.append("zsh: %s: no answer: %r" % (words, self.seen[-200:]))
        return [line.replace("\\", "") for line in self.lines() if line and line != "DONE"]


def environment(folder):
    return {"PATH": folder + ":" + os.environ["PATH"], "HOME": folder, "LC_ALL": "C.UTF-8"}


def expect(words, wanted, only=True):
    """The words behind the program's name, and what has to be offered for the last of them."""
    plain = {match.rstrip("=") for match in shell.ask(["tarnvik-check", *words])}
    missing, more = set(wanted) - plain, plain - set(wanted)
    if missing or (only and more):
        failures.append("%s: %s: missing %s, too many %s" % (SHELL, words, sorted(missing)[:8], sorted(more)[:8]))


inputs = json.loads(tool("--list", "inputs", "--json"))
plain = [row["input"] for row in inputs if row["written as"] == "--set"]
named = [row["input"] for row in inputs if row["written as"] != "--set"]
state = json.loads(tool("--json"))["state"]
numbers = [name for name in plain if not isinstance(state[name], (bool, str)) or name.startswith("Txt_")]
options = set(re.findall(r"--[a-z][a-z0-9-]*|(?<![\w-])-[hV]\b", tool("--help")))
# What the program answers to a value that it does not know names those that it does.
lists = re.search("one of (.*), got", subprocess.run([TOOL, "--list", "?"], capture_output=True, encoding="utf-8").stderr).group(1)
groups = re.search("expected (.*), got", subprocess.run([TOOL, "--with", "?"], capture_output=True, encoding="utf-8").stderr).group(1)

with tempfile.TemporaryDirectory() as folder:
    os.symlink(TOOL, os.path.join(folder, "tarnvik-check"))
    for name in ("heel.tnvik", "loads.csv"):
        open(os.path.join(folder, name), "w", encoding="utf-8").close()
    shell = Bash(folder) if SHELL == "bash" else Zsh(folder)
    expect(["--"], options - {"-h", "-V"}, only=SHELL == "bash")
    if SHELL == "bash":
        expect(["-"], options)
    expect(["--bolt", ""], listed("bolts"))
    expect(["--bolt", "M16"], ["M16x4.6", "M16x8.8"])
    expect(["--connector", ""], [*listed("connectors"), "none"])
    expect(["--material", ""], listed("materials"))
    expect(["--member1", ""], listed("profiles"))
    expect(["--member2", ""], listed("profiles"))
    expect(["--joint", ""], listed("joints"))
    expect(["--bolts", ""], ["1", "2", "3", "4", "6"])
    expect(["--layout", ""], ["a", "b"])
    expect(["--spacing", ""], ["%dd" % i for i in range(5, 21)])
    expect(["--load", ""], ["permanent", "long", "medium", "short", "instantaneous"])
    expect(["--service", ""], ["1", "2", "3"])
    expect(["--lang", ""], ["Eng", "Nor"])
    expect(["--lang", "E"], ["Eng"])
    expect(["--list", ""], lists.split(","))
    expect(["--with", ""], groups.split(";")[0].split(","))
    expect(["--with", "screen,ta"], ["screen,tables" if SHELL == "bash" else "tables"])
    expect(["--set", ""], plain)
    expect(["--set", "Standard="], ["true", "false"])
    expect(["--set", "Bolt_ab="], ["a", "b"])
    expect(["--fields", ""], [*state, "Mat", "Prof", "Setup", "checks"])
    expect(["--fields", "uf,Tverr"], ["uf,Tverr_kontroll" if SHELL == "bash" else "Tverr_kontroll"])
    expect(["--sweep", ""], [*numbers, "bolts", "spacing", "tension", "compression", "angle", "service"])
    expect(["--fix", ""], ["bolt", "bolts", "connector", "layout", "spacing"])
    expect(["--fix", "bolts="], ["1", "2", "3", "4", "6"])
    expect(["he"], ["heel.tnvik"])
    expect(["--save", "he"], ["heel.tnvik"])
    expect(["--loads", ""], ["loads.csv"], only=False)
    os.mkdir(os.path.join(folder, "sheets"))
    expect(["--sheets", ""], ["sheets"], only=SHELL == "bash")
    expect(["--data", "sh"], ["sheets"])

print("\n".join(failures) or "%s: all names and values offered" % SHELL)
sys.exit(1 if failures else 0)
