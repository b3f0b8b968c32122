#!/usr/bin/env python3
"""Changes the core in one place at a time and looks whether the tests notice.

usage: check.py BUILD [--mutants N] [--seed N] [--jobs N] [--rooms PATH...] [--report FILE]
       check.py BUILD --again REPORT

BUILD is a folder in which the core, the console and their tests have been built from this tree, for
instance build-core. N mutants that compile are drawn by the seed: operators, constants and cells of
tables in turn. Each is compiled alone, linked in front of what BUILD holds and put to the tests in
the order in which they are likely to notice, until the first that fails or takes far too long.

The exit status is 1 when less than 95 in a hundred are caught, or when a mutant survives that
survivors.txt does not explain.
"""

import argparse
import contextlib
import concurrent.futures
import itertools
import os
import pathlib
import re
import resource
import shlex
import shutil
import subprocess
import sys
import tempfile
import threading
import time

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))

import mutants  # noqa: E402

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
REQUIRED = 0.95
MEMORY = 4 << 30  # bytes; a mutant that asks for more fails
PROGRAMS = {"core": "tests/keyfluent_core_tests", "course": "tests/course/keyfluent_course_tests",
            "console": "keyfluent-headless"}
INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)


def limit_child():
    resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
    resource.setrlimit(resource.RLIMIT_CORE, (0, 0))


class Includes:
    """Which sources a header reaches, directly and through other headers."""

    def __init__(self, root, folders):
        self.direct = {}
        for folder in folders:
            for path in itertools.chain((root / folder).rglob("*.cpp"), (root / folder).rglob("*.h")):
                text = path.read_text(encoding="utf-8")
                self.direct[path.relative_to(root).as_posix()] = {
                    self.resolved(root, path, name) for name in INCLUDE.findall(text)}

    @staticmethod
    def resolved(root, path, name):
        beside = path.parent / name
        return beside.relative_to(root).as_posix() if beside.exists() else name

    def reached_by(self, header):
        reached = {header}
        while True:
            more = {path for path, included in self.direct.items() if included & reached} - reached
            if not more:
                return sorted(path for path in reached if path.endswith(".cpp"))
            reached |= more


class Build:
    """How the programs of the build folder are compiled and linked."""

    def __init__(self, folder):
        self.folder = folder
        self.links = {name: self.link_command(target) for name, target in PROGRAMS.items()}

    def link_command(self, target):
        listing = subprocess.run(["ninja", "-C", str(self.folder), "-t", "commands", target],
                                 capture_output=True, text=True, check=True).stdout
        command = listing.strip().splitlines()[-1]
        words = shlex.split(command.removeprefix(": && ").removesuffix(" && :"))
        if "-o" not in words or words[words.index("-o") + 1] != target:
            raise SystemExit(f"no link command for {target} in {self.folder}")
        return words

    def compile(self, source, root, output):
        return ["c++", "-std=c++20", "-O0", "-w", f"-I{root}", "-c", str(root / source), "-o",
                str(output)]

    # What stands in front of the libraries takes the place of what they hold by the same name, and
    # an object of the program itself the place of the one from the same source.
    def link(self, name, objects, output):
        words = list(self.links[name])
        words[words.index("-o") + 1] = str(output)
        places = {word.split(".dir/")[-1]: i for i, word in enumerate(words) if ".dir/" in word}
        fresh = []
        for path in objects:
            own = path.name.removeprefix("tests@").replace("@", "/")
            if path.name.startswith("tests@") and own in places:
                words[places[own]] = str(path)
            else:
                fresh.append(str(path))
        first = next(i for i, word in enumerate(words) if word.endswith(".a"))
        return words[:first] + fresh + words[first:]


class Trial:
    """A place to work in: a copy of the sources, the mutant's objects and its programs."""

    def __init__(self, build, includes, folder, limits):
        self.build = build
        self.includes = includes
        self.folder = pathlib.Path(folder)
        self.limits = limits
        self.sources = self.folder / "sources"
        for name in (*mutants.ROOMS, "headless", "tests/core"):
            shutil.copytree(ROOT / name, self.sources / name)

    def run(self, words, limit, cwd):
        """True when it ended well and in time."""
        work = self.folder / "work"
        shutil.rmtree(work, ignore_errors=True)
        work.mkdir()
        environment = dict(os.environ, TMPDIR=str(work))
        with subprocess.Popen(words, cwd=cwd or work, env=environment, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                              start_new_session=True, preexec_fn=limit_child) as process:
            try:
                return process.wait(limit) == 0
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, 9)
                return False

    @contextlib.contextmanager
    def applied(self, mutant):
        place = self.sources / mutant.path
        source = place.read_text(encoding="utf-8")
        place.write_text(mutant.applied(source), encoding="utf-8")
        try:
            yield
        finally:
            place.write_text(source, encoding="utf-8")

    def compiled(self, paths):
        """The objects of the sources; None where one does not compile."""
        objects = []
        for path in paths:
            output = self.folder / (path.replace("/", "@") + ".o")
            if not self.run(self.build.compile(path, self.sources, output), 300, None):
                return None
            objects.append(output)
        return objects

    def changed(self, mutant):
        """The sources of the core and the console that the mutant changes."""
        if not mutant.path.endswith(".h"):
            return [mutant.path]
        return [path for path in self.includes.reached_by(mutant.path)
                if not path.startswith("tests/")]

    def changed_tests(self, mutant):
        return [path for path in self.includes.reached_by(mutant.path)
                if path.startswith("tests/core/")]

    def linked(self, name, objects):
        output = self.folder / name
        if not self.run(self.build.link(name, objects, output), 300, self.build.folder):
            raise SystemExit(f"the {name} program of a mutant cannot be linked")
        return output

    def stages(self, mutant, objects):
        """Name and command of each test, the likeliest to notice first; linked as it is reached.

        A changed header is first put to the tests that drive the console, which see no header: the
        test programs have to be compiled anew for it.
        """
        header = mutant.path.endswith(".h")
        core = [path for path in objects if not path.name.startswith("headless@")]
        if not header:
            yield "core", [self.linked("core", core), "--gtest_fail_fast"]
        if not header and mutant.path.startswith("course/"):
            yield "course", [self.linked("course", core), "--gtest_fail_fast"]
        rest = [path for path in objects if path.name != "headless@Main.cpp.o"]
        console = self.linked("console", rest)
        yield "transcripts", [sys.executable, "-B", ROOT / "tests/transcripts/run_all.py", console]
        compare = [sys.executable, "-B", ROOT / "tests/model/compare.py", console, "--no-shrink"]
        yield "model", compare
        yield "sweeps", [*compare, "--sweeps"]
        if header:
            tests = self.compiled(self.changed_tests(mutant))
            if tests is None:
                yield "the tests' compiler", ["false"]
            else:
                yield "core", [self.linked("core", rest + tests), "--gtest_fail_fast"]

    def caught_by(self, mutant, objects):
        for name, command in self.stages(mutant, objects):
            if not self.run([str(word) for word in command], self.limits.get(name, 900), None):
                return name
        return None

    def measured(self):
        """How long each test takes without a mutant, times ten: more than that is far too long."""
        sound = mutants.Mutant("course/none.cpp", "", 0, 0, "", "", 0, "", "")
        for name, command in self.stages(sound, []):
            started = time.monotonic()
            if not self.run([str(word) for word in command], 900, None):
                raise SystemExit(f"the {name} tests fail without a mutant")
            self.limits[name] = 20 + 10 * (time.monotonic() - started)


def explained():
    """Keys of the survivors that are explained, each with its explanation."""
    found = {}
    text = (HERE / "survivors.txt").read_text(encoding="utf-8")
    for block in text.split("\n\n"):
        lines = [line for line in block.splitlines() if not line.startswith("#")]
        if not lines:
            continue
        path, before, after, *why = lines
        if not (before.startswith("- ") and after.startswith("+ ") and why):
            raise SystemExit(f"survivors.txt: not understood:\n{block}")
        found[path, before[2:], after[2:]] = " ".join(line.strip() for line in why)
    return found


def nearest(source, text, line):
    """Where text stands in source, the nearest to a line; -1 for nowhere."""
    places = [match.start() for match in re.finditer(re.escape(text), source)]
    return min(places, key=lambda at: abs(source.count("\n", 0, at) + 1 - line), default=-1)


def reported_survivors(report):
    """The mutants that a report says have survived, where their line still stands."""
    for block in report.read_text(encoding="utf-8").split("\n\n"):
        lines = block.strip().splitlines()
        if len(lines) != 3 or " SURVIVED: " not in lines[0]:
            continue
        path, place = lines[0].split(" SURVIVED: ")[1].rsplit(":", 1)
        source = (ROOT / path).read_text(encoding="utf-8")
        start = nearest(source, lines[1][2:], int(place.split(" ")[0]))
        if start < 0:
            print(f"no longer there: {path}\n{lines[1]}\n")
            continue
        yield mutants.made(path, "survivor", source, start, start + len(lines[1][2:]), lines[2][2:])


class Check:
    def __init__(self, arguments):
        self.wanted = arguments.mutants
        drawn = mutants.drawn(ROOT, arguments.seed)
        rooms = tuple(arguments.rooms or [""])
        self.queue = (m for m in drawn if m.path.startswith(rooms))
        if arguments.again:
            self.queue = reported_survivors(arguments.again)
        self.lock = threading.Lock()
        self.known = explained()
        self.started = time.monotonic()
        self.count = self.stillborn = 0
        self.survivors = []
        self.report = open(arguments.report, "w", encoding="utf-8") if arguments.report else None

    def next(self):
        with self.lock:
            mutant = next(self.queue, None) if self.count < self.wanted else None
            if mutant is not None:
                self.count += 1
            return mutant

    def told(self, mutant, name):
        with self.lock:
            if name is None:
                self.survivors.append(mutant)
                note = "" if mutant.key() in self.known else ", not explained"
                print(f"survived{note}: {mutant}\n", flush=True)
            if self.report:
                print(f"{time.monotonic() - self.started:7.1f} s  {name or 'SURVIVED'}: {mutant}\n",
                      file=self.report, flush=True)

    def work(self, trial):
        while (mutant := self.next()) is not None:
            with trial.applied(mutant):
                objects = trial.compiled(trial.changed(mutant))
                if objects is not None:
                    self.told(mutant, trial.caught_by(mutant, objects))
                    continue
            with self.lock:
                self.count -= 1
                self.stillborn += 1

    def verdict(self):
        caught = self.count - len(self.survivors)
        unknown = [m for m in self.survivors if m.key() not in self.known]
        share = caught / self.count if self.count else 0
        print(f"{self.count} mutants, {caught} caught ({100 * share:.1f} %), "
              f"{len(self.survivors)} survived, {len(unknown)} of them not explained; "
              f"{self.stillborn} more did not compile ({time.monotonic() - self.started:.0f} s)")
        return 0 if share >= REQUIRED and not unknown else 1


def parsed():
    parser = argparse.ArgumentParser(description="A mutation check of the core.")
    parser.add_argument("build", metavar="BUILD", type=pathlib.Path)
    parser.add_argument("--mutants", type=int, default=300)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--jobs", type=int, default=2)
    parser.add_argument("--rooms", nargs="*", metavar="PATH", help="only below these paths")
    parser.add_argument("--report", help="what became of each mutant")
    parser.add_argument("--again", type=pathlib.Path, metavar="REPORT",
                        help="only the survivors of a report")
    return parser.parse_args()


def main():
    arguments = parsed()
    build = Build(arguments.build.resolve())
    includes = Includes(ROOT, (*mutants.ROOMS, "headless", "tests/core"))
    limits = {}
    with tempfile.TemporaryDirectory(prefix="keyfluent-mutants-") as folder:
        places = [Trial(build, includes, os.path.join(folder, str(job)), limits)
                  for job in range(arguments.jobs)]
        places[0].measured()
        check = Check(arguments)
        with concurrent.futures.ThreadPoolExecutor(arguments.jobs) as pool:
            for done in [pool.submit(check.work, place) for place in places]:
                done.result()
    return check.verdict()


if __name__ == "__main__":
    sys.exit(main())
