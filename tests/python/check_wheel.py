# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Builds the wheel, installs it into a new environment and uses it from there, with nothing of this tree in reach.

usage: check_wheel.py SOURCE_DIR BUILD_DIR
"""
import os
import pathlib
import re
import subprocess
import sys
import tempfile

SIZE_LINE = re.compile(r"^wheel: (.*-py3-none-manylinux_(\d+)_(\d+)_\w+\.whl), (\d+) kB$")
PROGRAM = """
import common_interfaces as ci, pathlib, sys
from common_interfaces import _library
home = pathlib.Path(sys.prefix).resolve()
for place in (ci.__file__, _library.find_library(), _library.find_data()):
    assert home in pathlib.Path(place).resolve().parents, place
with ci.Sky(language="en") as sky:
    sky.look_at(sky.find("Jupiter"))
    assert "Jupiter" in sky.compute().strings()
maps = open("/proc/self/maps").read().split()
loaded = {word for word in maps if "common_interfaces" in word or "libastro" in word or "libutils" in word}
assert len(loaded) == 4 and all(pathlib.Path(word).is_relative_to(home) for word in loaded), loaded
print("used")
"""


def run(*command, **more):
    done = subprocess.run(command, capture_output=True, text=True, **more)
    if done.returncode != 0:
        raise SystemExit(f"{' '.join(map(str, command))}: exit status {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


def check_libraries(folder, glibc):
    """They look for each other where they lie, and ask for no later C library than the name of the wheel says."""
    libraries = sorted(folder.glob("*.so.*"))
    assert len(libraries) == 4, libraries
    for library in libraries:
        dynamic = run("readelf", "-d", library)
        assert re.findall(r"RUNPATH.*\[(.*)\]", dynamic) in ([], ["$ORIGIN"]), dynamic
        asked = re.findall(r"GLIBC_(\d+)\.(\d+)", run("readelf", "-V", library))
        assert asked and max((int(a), int(b)) for a, b in asked) <= glibc, asked


def main():
    source, build = (pathlib.Path(path).resolve() for path in sys.argv[1:3])
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name).resolve()
        line = run(source / "script/wheel", build, folder / "out").strip()
        found = SIZE_LINE.match(line)
        assert found, line
        wheel, glibc, kilobytes = found.group(1), (int(found.group(2)), int(found.group(3))), int(found.group(4))
        assert os.path.getsize(wheel) // 1000 == kilobytes
        environment = {"PATH": "/usr/bin:/bin", "HOME": name, "LC_ALL": "C.UTF-8"}
        run(sys.executable, "-m", "venv", "--system-site-packages", folder / "venv")
        python = folder / "venv/bin/python"
        run(python, "-m", "pip", "install", "--no-index", "--no-deps", wheel, env=environment)
        installed = run(python, "-c", PROGRAM, env=environment, cwd=name)
        assert installed == "used\n", installed
        carried = next((folder / "venv").glob("lib/python*/site-packages/common_interfaces"))
        check_libraries(carried / "lib", glibc)
        assert not list(carried.rglob("deep_stars.tiles"))
        notices = {path.name for path in carried.parent.glob("common_interfaces-*.dist-info/*")}
        assert {"LICENSE", "NOTICE.md", "CC-BY-SA-4.0.txt"} <= notices, notices
    print(f"{os.path.basename(wheel)}: {kilobytes} kB, installed and used")


if __name__ == "__main__":
    main()
