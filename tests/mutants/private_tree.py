# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A copy of the sources with a build of its own, in which test programs are built and run with a fault planted.

The copy stays between runs, so that only what changed is compiled again. It is built as the preset says, so that most
objects come from the compiler's cache. A fault costs no more than compiling the sources that include its file and
linking a program: both commands are given without the build system, which would look at everything else. What a fault
changed goes back to its content and time, as if nothing had been.
"""
import collections
import hashlib
import json
import os
import pathlib
import resource
import shlex
import shutil
import signal
import subprocess
import xml.etree.ElementTree

MOST_MEMORY = 4 << 30
LARGEST_FILE = 8 << 30
NOBODY = 65534
WAITING = 6  # times as long as its processor time may a program take

# A test program: what links it, and how it is run.
Program = collections.namedtuple("Program", "link command folder environment")


class PrivateTree:
    def __init__(self, source, place, preset):
        self.source, self.place, self.preset = pathlib.Path(source), pathlib.Path(place), preset
        self.tree = self.place / "tree"
        self.build, self.kept = self.tree / "build" / preset, self.place / (preset + "-kept")
        self.scratch = self.place / "scratch"

    def refresh(self):
        """Makes the copy what the sources are now. Only files that differ are written."""
        listed = subprocess.run(["git", "-C", self.source, "ls-files", "-z", "--cached", "--others",
                                 "--exclude-standard"], check=True, capture_output=True).stdout.decode().split("\0")
        names = {name for name in listed if name and (self.source / name).is_file()}
        for name in sorted(names):
            to = self.tree / name
            if not to.exists() or to.read_bytes() != (self.source / name).read_bytes():
                to.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy(self.source / name, to)
        for folder, folders, files in os.walk(self.tree):
            if pathlib.Path(folder) == self.tree and "build" in folders:
                folders.remove("build")
            for name in files:
                path = pathlib.Path(folder, name)
                if str(path.relative_to(self.tree)) not in names:
                    path.unlink()

    def prepare(self, targets):
        """Builds the test programs without a fault and keeps their objects. Ends the run where that fails. Programs
        behind the first that this build does not have, because the sanitizers define what they define, are left out."""
        self.refresh()
        configure = ["cmake", "--preset", self.preset, "-DCI_BUILD_BENCHMARKS=OFF", "-DCI_COMPILE_UNITS=OFF",
                     "--no-warn-unused-cli"]
        if subprocess.run(configure, cwd=self.tree, stdout=subprocess.DEVNULL).returncode != 0:
            raise SystemExit("script/mutants: the copy of the sources cannot be configured")
        targets = targets[:1] + [target for target in targets[1:] if self.has(target)]
        links = [self.read_link(target) for target in targets]
        made = subprocess.run(["ninja", "-C", self.build, *targets], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, errors="replace")
        if made.returncode != 0:
            raise SystemExit(made.stdout + "\nscript/mutants: without a fault " + targets[0] + " cannot be built")
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {self.output_of(c): c for c in commands}
        self.read_dependents(links)
        self.keep()
        self.programs = [self.read_test(target, link) for target, link in zip(targets, links)]

    def has(self, target):
        return subprocess.run(["ninja", "-C", self.build, "-t", "query", target], capture_output=True).returncode == 0

    def read_link(self, target):
        """The command that links a program, which is removed: an earlier run may have left a fault in it."""
        link = self.asked("-t", "commands", target)[-1]
        if shutil.which("ld.lld"):  # in a fifth of the time
            link = link.replace(" -o ", " -fuse-ld=lld -o ", 1)
        words = shlex.split(link)
        (self.build / words[words.index("-o") + 1]).unlink(missing_ok=True)
        return link

    def output_of(self, command):
        words = shlex.split(command["command"])
        return pathlib.Path(os.path.normpath(os.path.join(command["directory"], words[words.index("-o") + 1])))

    def asked(self, *question):
        """What ninja says of its graph, line by line."""
        return subprocess.run(["ninja", "-C", self.build, *question], check=True, capture_output=True,
                              text=True).stdout.splitlines()

    def read_dependents(self, links):
        """Which objects of the programs depend on a file of the tree."""
        linked = {self.build / word for link in links for word in shlex.split(link) if word.endswith(".o")}
        self.dependents = collections.defaultdict(list)
        for line in self.asked("-t", "deps"):
            if line.startswith("    "):
                file = os.path.normpath(self.build / line.strip())
                if made in linked and file.startswith(str(self.tree) + "/"):
                    self.dependents[os.path.relpath(file, self.tree)].append(made)
            else:
                made = self.build / line.partition(": ")[0]

    def keep(self):
        for path in set().union(*self.dependents.values()):
            to = self.kept / path.relative_to(self.build)
            if not to.exists() or to.stat().st_mtime_ns != path.stat().st_mtime_ns:
                to.parent.mkdir(parents=True, exist_ok=True)
                shutil.copy2(path, to)

    def read_test(self, target, link):
        shown = subprocess.run(["ctest", "--test-dir", self.build, "--show-only=json-v1", "-R", f"^{target}$"],
                               check=True, capture_output=True).stdout
        tests = json.loads(shown)["tests"]
        if not tests:
            raise SystemExit(f"script/mutants: there is no test {target}")
        properties = {p["name"]: p["value"] for p in tests[0].get("properties", [])}
        command = [word for word in tests[0]["command"] if not word.startswith("--gtest_output")]
        environment = dict(os.environ, GTEST_BRIEF="1", HOME=str(self.scratch), TMPDIR=str(self.scratch))
        environment.update(pair.split("=", 1) for pair in properties.get("ENVIRONMENT", []))
        return Program(link, command, properties.get("WORKING_DIRECTORY", self.build), environment)

    def compile(self, name):
        """Compiles what includes this file: the objects whose code differs now from what was kept; None where one
        does not compile. Warnings do not matter."""
        different = []
        for path in self.dependents[name]:
            command = self.commands[path]
            # A copy that is used once fills no cache.
            done = subprocess.run(shlex.split(command["command"]) + ["-w"], cwd=command["directory"],
                                  capture_output=True, env=dict(os.environ, CCACHE_DISABLE="1"))
            if done.returncode != 0:
                return None
            if self.code(path) != self.code(self.kept / path.relative_to(self.build)):
                different.append(path)
        return different

    def code(self, path):
        """The digest of an object without what it says to a debugger, where lines and columns stand."""
        stripped = self.place / "stripped.o"
        subprocess.run(["objcopy", "--strip-debug", path, stripped], check=True)
        return hashlib.sha256(stripped.read_bytes()).digest()

    def links(self, program):
        return subprocess.run(program.link, shell=True, cwd=self.build, capture_output=True).returncode == 0

    def write(self, name, text):
        """Plants: a file of the tree has this text. What stood there is handed to restore()."""
        path = self.tree / name
        before = (name, path.read_bytes(), path.stat())
        path.write_bytes(text.encode())
        return before

    def restore(self, before):
        name, content, status = before
        path = self.tree / name
        path.write_bytes(content)
        os.utime(path, ns=(status.st_atime_ns, status.st_mtime_ns))
        for made in self.dependents[name]:
            shutil.copy2(self.kept / made.relative_to(self.build), made)

    def run_test(self, program, seconds, *arguments):
        """"passed", "failed" or "too long" for a program that should need so many seconds of the processor. A program
        with a fault may write, delete and allocate what it likes: it runs as nobody where that can be arranged, within
        limits, with a folder of its own for what it leaves."""
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir()
        as_nobody = {}
        if os.geteuid() == 0:
            as_nobody = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
            os.chown(self.scratch, NOBODY, NOBODY)

        def limit():
            if "-fsanitize" not in program.link:  # sanitizers map terabytes that they do not use
                resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            resource.setrlimit(resource.RLIMIT_CPU, (int(seconds) + 1, int(seconds) + 1))
        with open(self.place / "output", "wb") as output, \
                subprocess.Popen([*program.command, *arguments], cwd=program.folder, env=program.environment,
                                 stdin=subprocess.DEVNULL, stdout=output, stderr=output, preexec_fn=limit,
                                 start_new_session=True, **as_nobody) as process:
            try:
                return "passed" if process.wait(timeout=WAITING * seconds) == 0 else "failed"
            except subprocess.TimeoutExpired:
                return "too long"
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass

    def report(self):
        return f"--gtest_output=xml:{self.scratch}/report.xml"

    def case_seconds(self):
        """How long each case of the last run took, which was started with report(), and which ones failed; nothing of a
        program that writes no report."""
        try:
            cases = list(xml.etree.ElementTree.parse(self.scratch / "report.xml").getroot().iter("testcase"))
        except (OSError, xml.etree.ElementTree.ParseError):
            return {}, []
        names = [case.get("classname") + "." + case.get("name") for case in cases]
        failed = [name for name, case in zip(names, cases) if case.find("failure") is not None]
        return {name: float(case.get("time")) for name, case in zip(names, cases) if name not in failed}, failed
