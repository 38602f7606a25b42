# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A copy of the sources with a build of its own, in which one test program is built and run with a fault planted.

The copy stays between runs, so that only what changed is compiled again. A file with a fault goes back to its content
and time, and so do the objects that were made with it: the next fault compiles nothing but its own file.
"""
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
LONGEST_BUILD = 1200


class PrivateTree:
    def __init__(self, source, place, sanitizers=""):
        self.source, self.place, self.sanitizers = pathlib.Path(source), pathlib.Path(place), sanitizers
        name = "sanitized" if sanitizers else "build"
        self.tree, self.build, self.kept = self.place / "tree", self.place / name, self.place / (name + "-kept")
        self.scratch = self.place / "scratch"
        self.target = None

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
        for folder, _, files in os.walk(self.tree):
            for name in files:
                path = pathlib.Path(folder, name)
                if str(path.relative_to(self.tree)) not in names:
                    path.unlink()

    def prepare(self, target):
        """Builds the test program without a fault and keeps its objects. Ends the run where that fails."""
        self.target = target
        self.refresh()
        subprocess.run(["cmake", "--no-warn-unused-cli", "-S", self.tree, "-B", self.build, "-G", "Ninja",
                        "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0", "-DCI_BUILD_BENCHMARKS=OFF",
                        f"-DCI_SANITIZE={self.sanitizers or 'OFF'}", "-DCMAKE_EXPORT_COMPILE_COMMANDS=ON",
                        "-DCMAKE_CXX_COMPILER_LAUNCHER=env"],  # copies that are used once fill no cache
                       check=True, stdout=subprocess.DEVNULL)
        ended, output = self.make()
        if not ended:
            raise SystemExit(output + "\nscript/mutants: without a fault " + target + " cannot be built")
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {os.path.join(c["directory"], self.output_of(c)): c for c in commands}
        self.compiled = {os.path.relpath(c["file"], self.tree) for c in commands}
        shutil.rmtree(self.kept, ignore_errors=True)
        self.times = {}
        for path in self.objects():
            to = self.kept / path.relative_to(self.build)
            to.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy2(path, to)
            self.times[path] = path.stat().st_mtime_ns
        self.read_test()

    @staticmethod
    def output_of(command):
        words = shlex.split(command["command"])
        return words[words.index("-o") + 1]

    def objects(self):
        return [path for path in self.build.rglob("*.o") if path.is_file()]

    def read_test(self):
        shown = subprocess.run(["ctest", "--test-dir", self.build, "--show-only=json-v1", "-R", f"^{self.target}$"],
                               check=True, capture_output=True).stdout
        test = json.loads(shown)["tests"][0]
        properties = {p["name"]: p["value"] for p in test.get("properties", [])}
        self.command = [word for word in test["command"] if not word.startswith("--gtest_output")]
        self.folder = properties.get("WORKING_DIRECTORY", self.build)
        self.environment = dict(os.environ, GTEST_FAIL_FAST="1", GTEST_BRIEF="1", HOME=str(self.scratch),
                                TMPDIR=str(self.scratch))
        self.environment.update(pair.split("=", 1) for pair in properties.get("ENVIRONMENT", []))

    def make(self):
        """(whether the test program was built, what was said about it)"""
        made = subprocess.run(["ninja", "-C", self.build, "-j1", self.target], stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, errors="replace", timeout=LONGEST_BUILD)
        return made.returncode == 0, made.stdout

    def changed_objects(self):
        """The objects that were made anew since the tree was prepared."""
        return [path for path, then in self.times.items() if path.exists() and path.stat().st_mtime_ns != then]

    def differ(self, paths):
        return any(digest(path) != digest(self.kept / path.relative_to(self.build)) for path in paths)

    def optimised(self, objects):
        """What the compiler makes of these objects' sources when it optimises, one digest each."""
        digests, out = [], self.scratch / "optimised.o"
        for path in objects:
            command = self.commands[str(path)]
            words = shlex.split(command["command"])
            words[words.index("-o") + 1] = str(out)
            done = subprocess.run([*words, "-O2", "-w"], cwd=command["directory"], capture_output=True)
            digests.append(digest(out) if done.returncode == 0 else None)
        return digests

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
        for changed, then in self.times.items():
            if not changed.exists() or changed.stat().st_mtime_ns != then:
                shutil.copy(self.kept / changed.relative_to(self.build), changed)
                self.times[changed] = changed.stat().st_mtime_ns

    def run_test(self, seconds, *arguments):
        """"passed", "failed" or "too long". A program with a fault may write, delete and allocate what it likes: it
        runs as nobody where that can be arranged, within limits, with a folder of its own for what it leaves."""
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir()
        as_nobody = {}
        if os.geteuid() == 0:
            as_nobody = {"user": NOBODY, "group": NOBODY, "extra_groups": []}
            os.chown(self.scratch, NOBODY, NOBODY)

        def limit():
            if not self.sanitizers:  # which map terabytes that they do not use
                resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (LARGEST_FILE, LARGEST_FILE))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        with open(self.place / "output", "wb") as output, \
                subprocess.Popen([*self.command, *arguments], cwd=self.folder, env=self.environment,
                                 stdin=subprocess.DEVNULL, stdout=output, stderr=output, preexec_fn=limit,
                                 start_new_session=True, **as_nobody) as process:
            try:
                return "passed" if process.wait(timeout=seconds) == 0 else "failed"
            except subprocess.TimeoutExpired:
                return "too long"
            finally:
                try:
                    os.killpg(process.pid, signal.SIGKILL)
                except ProcessLookupError:
                    pass

    def slow_cases(self, seconds):
        """The cases of the last run, started with report(), that took longer."""
        try:
            cases = xml.etree.ElementTree.parse(self.scratch / "report.xml").getroot().iter("testcase")
        except OSError:
            return []
        return [case.get("classname") + "." + case.get("name") for case in cases if float(case.get("time")) > seconds]

    def report(self):
        return f"--gtest_output=xml:{self.scratch}/report.xml"


def digest(path):
    return hashlib.sha256(path.read_bytes()).digest()
