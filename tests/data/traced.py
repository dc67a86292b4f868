"""The calls of one save, as strace tells them, and the saves that stops.py and power_loss.py trace.

A scenario is a folder with files in it and the arguments of one run of save_tool on its file "a".
"""
import os
import pathlib
import re
import shutil
import subprocess

SKIPPED = 77  # exit status: nothing could be tested here
NOBODY = 65534

FORMER = bytes((7 * i + i // 256) % 251 for i in range(9000))
SHORT = b"n" * 3000
LONG = bytes((11 * i + i // 253) % 249 for i in range(20000))
HALF = LONG[:5000] + FORMER[5000:]  # what a crash may leave


class Scenario:
    """One save of `content` over `former` (None: a new file), or a mending (content None)."""

    def __init__(self, name, former, content, words=(), linked=False, closed=False, attributes=False):
        self.name = name
        self.former = former
        self.content = content
        self.words = list(words)
        self.linked = linked          # a second hard link: written in place
        self.closed = closed          # a folder that takes no new file
        self.attributes = attributes  # an access list and an attribute

    @property
    def mends(self):
        return self.content is None

    @property
    def keeps(self):
        return "keep" in self.words

    @property
    def expected(self):
        """The content after a success."""
        if self.mends:
            return FORMER
        if "drop" in self.words or self.former is None:
            return self.content
        return self.content + self.former[len(self.content):]

    @property
    def whole(self):
        """The contents that are no third state; None is a missing file."""
        return [self.expected] if self.mends else [self.former, self.expected]


SCENARIOS = [
    Scenario("new file", None, LONG),
    Scenario("replaced", FORMER, LONG),
    Scenario("replaced, with the old tail", FORMER, SHORT),
    Scenario("replaced, cut", FORMER, SHORT, ["drop"]),
    Scenario("replaced, former content kept", FORMER, LONG, ["keep"]),
    Scenario("replaced, with attributes", FORMER, LONG, attributes=True),
    Scenario("in place, longer", FORMER, LONG, linked=True),
    Scenario("in place, cut", FORMER, SHORT, ["drop"], linked=True),
    Scenario("in place, former content kept", FORMER, LONG, ["keep"], linked=True),
    Scenario("in place, in a closed folder", FORMER, LONG, ["keep"], closed=True),
    Scenario("mended", HALF, None),
]
FEW_SCENARIOS = [scenario for scenario in SCENARIOS if scenario.keeps and not scenario.closed]


class Place:
    """Where a scenario is played: `files` with the file "a", `state` for what the program puts elsewhere."""

    def __init__(self, tool, root, scenario):
        self.tool = str(tool)
        self.root = pathlib.Path(root)
        self.scenario = scenario
        self.root.chmod(0o755)
        self.files = self.root / "files"
        self.state = self.root / "state"
        self.target = self.files / "a"
        # The superuser's folders are never closed: there the save is another user's.
        self.user = NOBODY if scenario.closed and os.geteuid() == 0 else None

    def clear(self):
        if self.files.exists():
            self.files.chmod(0o755)
        for folder in (self.files, self.state):
            shutil.rmtree(folder, ignore_errors=True)
            folder.mkdir()

    def set_up(self):
        self.clear()
        scenario = self.scenario
        (self.root / "content").write_bytes(scenario.content or b"")
        if scenario.former is not None:
            self.target.write_bytes(scenario.former)
            self.target.chmod(0o640)
        if scenario.mends:
            (self.files / ".a.undo").write_bytes(FORMER)
            (self.files / ".a.undo").chmod(0o640)
        if scenario.linked:
            os.link(self.target, self.root / "state" / "link")
        if scenario.attributes:
            self.give_attributes()
        if scenario.closed:
            self.close()

    def give_attributes(self):
        for command in (["setfacl", "-m", "u:20001:r", self.target],
                        ["setfattr", "-n", "user.comment", "-v", "x", self.target]):
            try:
                subprocess.run(command, check=True, capture_output=True)
            except (OSError, subprocess.CalledProcessError):
                print("stops: no access lists or attributes here, left out")
                return

    def close(self):
        self.give_to_user()
        self.files.chmod(0o555)

    def give_to_user(self):
        if self.user is not None:
            for path in (self.root, self.files, self.state, *self.files.rglob("*"), *self.state.rglob("*")):
                os.chown(path, self.user, self.user)

    def arguments(self):
        if self.scenario.mends:
            return ["mend", str(self.target)]
        return ["save", str(self.target), str(self.root / "content"), *self.scenario.words]

    def run(self, arguments=None, tracer=()):
        environment = dict(os.environ, XDG_STATE_HOME=str(self.state), ASAN_OPTIONS="detect_leaks=0")
        return subprocess.run([*tracer, self.tool, *(arguments or self.arguments())], env=environment, text=True,
                              capture_output=True, timeout=60, user=self.user, group=self.user,
                              extra_groups=None if self.user is None else [], check=False)

    def content(self):
        return self.target.read_bytes() if self.target.exists() else None

    def kept(self):
        """The contents of all NAME~."""
        return [path.read_bytes() for folder in (self.files, self.state / "tarnvik") if folder.exists()
                for path in folder.iterdir() if re.fullmatch(r"a~\d*", path.name)]

    def left_over(self):
        """What is neither the file, nor its link, nor a NAME~."""
        return [path.name for folder in (self.files, self.state / "tarnvik") if folder.exists()
                for path in folder.iterdir() if not re.fullmatch(r"a|a~\d*", path.name)]

    def rights(self):
        status = self.target.stat()
        attributes = {name: os.getxattr(self.target, name) for name in os.listxattr(self.target)}
        return status.st_mode, status.st_uid, status.st_gid, attributes


class Call:
    """One call: its name, how often the process has made it so far, its arguments as printed, its result."""

    def __init__(self, name, number, arguments, result):
        self.name = name
        self.number = number
        self.arguments = arguments
        self.result = result

    def texts(self):
        """The strings among the arguments."""
        return [bytes.fromhex(text.replace("\\x", "")) for text in re.findall(r'"((?:\\x[0-9a-f]{2})*)"', self.arguments)]

    def numbers(self):
        """The plain arguments between the strings, as they are printed."""
        return [text.strip() for text in re.sub(r'"[^"]*"', "", self.arguments).split(",")]


LINE = re.compile(r"^(\w+)\((.*)\)\s+= (-?\d+|\?)")


def trace(place):
    """The calls of the scenario's save from its beginning to its end; the place is played once."""
    log = place.state / "log"
    run = place.run(tracer=["strace", "-o", str(log), "-xx", "-s", "1000000"])
    if run.returncode != 0:
        raise RuntimeError(f"{place.scenario.name}: {run.stderr}")
    calls, counts, inside = [], {}, False
    for line in log.read_text().splitlines():
        match = LINE.match(line)
        if not match:
            continue
        name, arguments, result = match.groups()
        counts[name] = counts.get(name, 0) + 1
        call = Call(name, counts[name], arguments, None if result == "?" else int(result))
        if name == "access" and any(text.startswith(b"/save_tool/") for text in call.texts()):
            inside = b"/save_tool/begin" in call.texts()
        elif inside:
            calls.append(call)
    return calls


def can_trace():
    try:
        return subprocess.run(["strace", "-o", "/dev/null", "true"], capture_output=True, check=False).returncode == 0
    except OSError:
        return False
