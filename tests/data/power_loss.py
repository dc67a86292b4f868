#!/usr/bin/env python3
"""power_loss.py: what a power loss may leave of a save, at every point of it.

    power_loss.py TOOL [COUNT]    at most COUNT different losses at each point (100)

A save is traced, and its calls are played again on a model of a disk. What has been flushed is there afterwards: a file's
bytes, length and rights by a flush of the file, names by one of their folder. Of all the rest any part may be there and any
other not: single sectors of what was written, the length, the rights, each making, renaming and removing of a name by
itself. That is more than any file system in use loses.

After every such loss at every point, the next opening (save_tool mend) has to find the former content or the new one,
whole, with the former rights, and the new one where the save had ended; and at no point may any file of the save be open to
somebody whom the former one is closed to. Then each flush of the save is left out in turn:
each time the same look has to find something wrong, or else it would see nothing. Exit status 1 where one does not hold,
77 where calls cannot be traced.
"""
import concurrent.futures
import itertools
import os
import pathlib
import random
import re
import struct
import sys
import tempfile

from traced import FORMER, HALF, SCENARIOS, SKIPPED, Place, can_trace, trace

SECTOR = 512
MODE_OF_FORMER = 0o640

# Flushes that may be left out of one kind of save alone, by their number.
SPARE = {
    ("in place, former content kept", 2): "of the folder for NAME~: it is flushed again for the undo copy",
    ("in place, in a closed folder", 3): "the same, in the state folder",
    ("mended", 4): "of the folder when the undo copy is gone: one that comes back is found equal to the file",
}


class Inode:
    """A file on the disk, and what has been done to it since it was flushed."""

    def __init__(self, content=b"", mode=0o600):
        self.content = content
        self.mode = mode
        self.pending = []  # ("write", offset, bytes), ("cut", size), ("mode", mode)

    def flush(self):
        self.content, self.mode = self.with_changes(self.pending)
        self.pending = []

    def with_changes(self, changes):
        content, mode = bytearray(self.content), self.mode
        for kind, *values in changes:
            if kind == "write":
                offset, data = values
                content.extend(bytes(max(0, offset + len(data) - len(content))))
                content[offset:offset + len(data)] = data
            elif kind == "cut":
                del content[values[0]:]
                content.extend(bytes(values[0] - len(content)))
            else:
                mode = values[0]
        return bytes(content), mode

    def sectors(self):
        """The pending changes, writes in pieces of a sector."""
        for change in self.pending:
            if change[0] != "write":
                yield change
                continue
            _, offset, data = change
            for start in range(0, len(data), SECTOR):
                yield "write", offset + start, data[start:start + SECTOR]


class Disk:
    """Names and files, and what has been done to the names since their folders were flushed."""

    def __init__(self):
        self.names = {}    # path -> inode, on the disk
        self.now = {}      # path -> inode, as the process sees it
        self.pending = []  # (folder, {path: inode or None})

    def add(self, path, inode):
        self.names[path] = self.now[path] = inode

    def change(self, folder, changes):
        self.pending.append((folder, changes))
        for path, inode in changes.items():
            self.now.pop(path, None)
            if inode is not None:
                self.now[path] = inode

    def flush_folder(self, folder):
        for changed, changes in self.pending:
            if changed == folder:
                self.apply(self.names, changes)
        self.pending = [change for change in self.pending if change[0] != folder]

    @staticmethod
    def apply(names, changes):
        for path, inode in changes.items():
            names.pop(path, None)
            if inode is not None:
                names[path] = inode

    def with_names(self, chosen):
        """The names of a loss that spares the chosen changes. A file is there only with its folders."""
        names = dict(self.names)
        for i in chosen:
            self.apply(names, self.pending[i][1])
        return {path: inode for path, inode in names.items()
                if all(parent in names for parent in parents(path) if parent in self.now)}


FOLDER = Inode()


def parents(path):
    return [str(parent) for parent in pathlib.PurePosixPath(path).parents]


class Replay:
    """The calls of a save on the model, one after the other; `without` leaves out the flush of that number."""

    def __init__(self, files, without=None):
        self.disk = Disk()
        self.files = {}
        self.without = without
        self.flushes = 0
        for path, content, mode in files:
            self.disk.add(path, Inode(content, mode))

    def step(self, call):
        """Whether the call changes what a loss may leave."""
        if call.result is None or call.result < 0:
            return False
        does = getattr(self, call.name, None)
        return bool(does and does(call))

    def openat(self, call):
        path = os.fsdecode(call.texts()[0])
        flags = call.numbers()[2]
        made = "O_CREAT" in flags
        if made:
            self.disk.change(os.path.dirname(path), {path: Inode(b"", int(call.numbers()[3], 8))})
        self.files[call.result] = path if "O_DIRECTORY" in flags else self.disk.now.get(path)
        return made

    def file(self, call):
        return self.files.get(int(call.numbers()[0]))

    def pwrite64(self, call):
        offset = int(call.numbers()[3])
        self.file(call).pending.append(("write", offset, call.texts()[0][:call.result]))
        return True

    def ftruncate(self, call):
        self.file(call).pending.append(("cut", int(call.numbers()[1])))
        return True

    def fchmod(self, call):
        self.file(call).pending.append(("mode", int(call.numbers()[1], 8)))
        return True

    def fsetxattr(self, call):
        """Of the access list, whose mask is the mode's middle."""
        name, value = call.texts()
        if name != b"system.posix_acl_access":
            return False
        bits = dict(struct.unpack_from("<HH", value, at) for at in range(4, len(value), 8))
        group = bits.get(0x10, bits[0x04])
        self.file(call).pending.append(("mode", bits[0x01] << 6 | group << 3 | bits[0x20]))
        return True

    def fsync(self, call):
        self.flushes += 1
        if self.flushes - 1 == self.without:
            return False
        file = self.file(call)
        if isinstance(file, str):
            self.disk.flush_folder(file)
        else:
            file.flush()
        return True

    def rename(self, call):
        old, new = (os.fsdecode(text) for text in call.texts())
        self.disk.change(os.path.dirname(new), {old: None, new: self.disk.now[old]})
        return True

    renameat2 = rename

    def unlink(self, call):
        path = os.fsdecode(call.texts()[0])
        self.disk.change(os.path.dirname(path), {path: None})
        return True

    def mkdir(self, call):
        path = os.fsdecode(call.texts()[0])
        self.disk.change(os.path.dirname(path), {path: FOLDER})
        return True


def subsets(count, most, chance):
    """All subsets of so many things; where they are too many, none, all, all but one, each alone, and some at random."""
    if 2 ** count <= most:
        return [list(chosen) for size in range(count + 1) for chosen in itertools.combinations(range(count), size)]
    everything = list(range(count))
    chosen = [[], everything] + [[i] for i in everything] + [everything[:i] + everything[i + 1:] for i in everything]
    chosen += [[i for i in everything if chance.random() < 0.5] for _ in range(most)]
    return chosen


def contents(inode, most, chance):
    """Some of what a loss may leave of a file; what has been flushed alone and all of it come first."""
    pieces = list(inode.sectors())
    if not pieces:
        return [(inode.content, inode.mode)]
    few = subsets(len(pieces), most, chance)
    chance.shuffle(few)
    return [inode.with_changes([pieces[i] for i in chosen]) for chosen in [[], range(len(pieces)), *few[:most]]]


def losses(disk, most, chance):
    """What may be there after a loss: path -> (content, mode), each state once."""
    states = {}
    for chosen in subsets(len(disk.pending), 32, chance):
        names = {path: inode for path, inode in disk.with_names(chosen).items() if inode is not FOLDER}
        choices = {id(inode): contents(inode, most, chance) for inode in names.values()}
        for i in range(max(most // 4, 8)):
            picked = {key: values[min(i, len(values) - 1)] if i < 2 else chance.choice(values)
                      for key, values in choices.items()}
            state = {path: picked[id(inode)] for path, inode in names.items()}
            states[tuple(sorted(state.items()))] = state
    kept = list(states.values())
    chance.shuffle(kept)
    return kept[:most]


class Loss:
    """One loss, and what the next opening makes of it."""

    def __init__(self, place, state, ended):
        self.place = place
        self.scenario = place.scenario
        self.state = state
        self.ended = ended

    def is_kept(self, content):
        return any(re.fullmatch(r"a~\d*", os.path.basename(path)) and left == content
                   for path, (left, _) in self.state.items())

    def opened(self):
        """The target's content and mode; a file with an undo copy is mended by the program itself."""
        if not any(path.endswith(".undo") for path in self.state):
            return self.state.get(str(self.place.target), (None, None))
        self.place.clear()
        for path, (content, mode) in self.state.items():
            os.makedirs(os.path.dirname(path), exist_ok=True)
            pathlib.Path(path).write_bytes(content)
            os.chmod(path, mode)
        self.place.give_to_user()
        if self.place.run(["mend", str(self.place.target)]).returncode != 0:
            return b"not mended", None
        if not self.place.target.exists():
            return None, None
        return self.place.content(), self.place.target.stat().st_mode & 0o7777

    def trouble(self):
        scenario = self.scenario
        content, mode = self.opened()
        if content not in scenario.whole:
            return "a third state"
        if self.ended and content != scenario.expected:
            return "a save that had ended is lost"
        if scenario.former is not None and mode != MODE_OF_FORMER:
            return f"other rights: {mode:o}"
        if scenario.keeps and content == scenario.expected and not self.is_kept(scenario.former):
            return "the former content was not kept"
        left = self.state.get(str(self.place.target), (None, None))[0]
        if scenario.mends and left == FORMER and not self.is_kept(HALF):
            return "what was there before the mending was not kept"
        return None


def opens_a_file(scenario, disk):
    """Whether a file is readable, as the processes see it, for somebody whom the former one is closed to."""
    modes = [inode.with_changes(inode.pending)[1] for inode in disk.now.values() if inode is not FOLDER]
    return scenario.former is not None and any(mode & ~MODE_OF_FORMER for mode in modes)


def look(place, calls, files, most, without=None):
    """All losses of one save: the numbers of points, losses and flushes, and the troubles."""
    chance = random.Random(place.scenario.name)
    replay = Replay(files, without)
    points = count = 0
    troubles = []
    for i in range(len(calls) + 1):
        ended = i == len(calls)
        if not ended and i > 0 and not replay.step(calls[i - 1]):
            continue
        if ended:
            replay.step(calls[-1])
        points += 1
        if opens_a_file(place.scenario, replay.disk):
            troubles.append(f"{place.scenario.name}, point {i}: a file that is open to more than the former one")
        for state in losses(replay.disk, most, chance):
            count += 1
            trouble = Loss(place, state, ended).trouble()
            if trouble:
                troubles.append(f"{place.scenario.name}, point {i}: {trouble}")
                if without is not None:
                    return points, count, replay.flushes, troubles
    return points, count, replay.flushes, troubles


def play(tool, root, scenario, most):
    """One kind of save: the numbers of points, losses and flushes, and of what went wrong."""
    pathlib.Path(root).mkdir()
    place = Place(tool, root, scenario)
    place.set_up()
    files = [(str(path), path.read_bytes(), path.stat().st_mode & 0o7777) for path in sorted(place.files.iterdir())]
    calls = trace(place)
    points, count, flushes, troubles = look(place, calls, files, most)
    for trouble in troubles[:5]:
        print(f"power_loss: {trouble}")
    wrong = len(troubles)
    for flush in range(flushes):
        spare = (scenario.name, flush + 1) in SPARE
        if bool(look(place, calls, files, most, without=flush)[3]) == spare:
            print(f"power_loss: {scenario.name}: flush {flush + 1} of {flushes} left out, "
                  f"and {'something' if spare else 'nothing'} seen")
            wrong += 1
    return points, count, flushes, wrong


def main():
    if not can_trace():
        print("power_loss: no process can be traced here (strace)")
        return SKIPPED
    tool = sys.argv[1]
    most = int(sys.argv[2]) if len(sys.argv) > 2 else 100
    with tempfile.TemporaryDirectory(prefix="tarnvik-loss-") as root:
        os.chmod(root, 0o755)
        with concurrent.futures.ThreadPoolExecutor(max_workers=2 * os.cpu_count()) as pool:
            jobs = [pool.submit(play, tool, f"{root}/{i}", scenario, most) for i, scenario in enumerate(SCENARIOS)]
            results = [job.result() for job in jobs]
    points, count, flushes, wrong = (sum(column) for column in zip(*results))
    print(f"power_loss: {len(SCENARIOS)} kinds of saves, {points} points, {count} losses, "
          f"{flushes} flushes left out in turn, {wrong} wrong")
    return 1 if wrong or not count else 0


if __name__ == "__main__":
    sys.exit(main())
