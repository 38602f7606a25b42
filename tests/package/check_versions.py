#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Compares every place that tells a version with the one that sets it, the first lines of CMakeLists.txt, and the names
that libraries are loaded by with the rule of docs/versions.md.

usage: check_versions.py SOURCE_DIR BUILD_DIR
"""
import pathlib
import re
import subprocess
import sys

LIBRARIES = ["utils", "astro", "common_interfaces", "common_interfaces_scene"]


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout.strip()


def find(pattern, text):
    match = re.search(pattern, text, re.MULTILINE)
    return match.group(1) if match else "nothing"


def loaded_as(version):
    """The number behind .so: the major one, before 1.0 with the minor one."""
    major, minor, _ = version.split(".")
    return f"0.{minor}" if major == "0" else major


def told(source, build):
    """Every place and the version that it tells."""
    for module in ("common_interfaces", "common_interfaces_scene"):
        yield f"{module}.pc", find(r"^Version: (.*)$", (build / f"{module}.pc").read_text())
    yield "CITATION.cff", find(r"^version: (.*)$", (source / "CITATION.cff").read_text())
    yield "CHANGELOG.md, its latest", find(r"^## ([\d.]+)", (source / "CHANGELOG.md").read_text())
    for program in ("skyview", "skydata"):
        yield f"{program} --version", run(build / "bin" / program, "--version").removeprefix(program + " ")


def accepted(build, wanted):
    """Whether find_package(common_interfaces WANTED) would take this version."""
    script = build / "Testing/accepted_version.cmake"
    script.parent.mkdir(exist_ok=True)
    major, minor, patch = wanted.split(".")
    script.write_text(f"set(PACKAGE_FIND_NAME common_interfaces)\nset(PACKAGE_FIND_VERSION {wanted})\n"
                      f"set(PACKAGE_FIND_VERSION_MAJOR {major})\nset(PACKAGE_FIND_VERSION_MINOR {minor})\n"
                      f"set(PACKAGE_FIND_VERSION_PATCH {patch})\nset(CMAKE_SIZEOF_VOID_P 8)\n"
                      f"include({build}/common_interfacesConfigVersion.cmake)\n"
                      "message(${PACKAGE_VERSION_COMPATIBLE})\n")
    return subprocess.run(["cmake", "-P", script], capture_output=True, text=True, check=True).stderr.strip() == "TRUE"


def main():
    source, build = map(pathlib.Path, sys.argv[1:])
    version = find(r"^project\(common_interfaces VERSION ([\d.]+)", (source / "CMakeLists.txt").read_text())
    wrong = [f"{place}: {told_version}, not {version}"
             for place, told_version in told(source, build) if told_version != version]
    for library in LIBRARIES:
        name = f"lib{library}.so"
        soname = find(r"SONAME.*\[(.*)\]", run("readelf", "-d", build / "lib" / name))
        if soname != f"{name}.{loaded_as(version)}":
            wrong.append(f"{name}: its name for programs is {soname}, not {name}.{loaded_as(version)}")
        if (build / "lib" / name).resolve().name != f"{name}.{version}":
            wrong.append(f"{name}: its file is not {name}.{version}")
    python = find(r'^_NAME = "(.*?)"', (source / "python/common_interfaces/_library.py").read_text())
    if python != f"libcommon_interfaces_scene.so.{loaded_as(version)}":
        wrong.append(f"the Python package looks for {python}")
    # CMake finds those that a program built for the wanted version runs with, and no others.
    major, minor, patch = map(int, version.split("."))
    for wanted in (version, f"{major}.{minor}.{patch + 1}", f"{major}.{minor + 1}.0", f"{major + 1}.0.0",
                   *([f"{major}.{minor - 1}.0"] if minor else [])):
        runs = (loaded_as(wanted) == loaded_as(version)
                and list(map(int, wanted.split("."))) <= [major, minor, patch])
        if accepted(build, wanted) != runs:
            wrong.append(f"find_package(common_interfaces {wanted}) {'refuses' if runs else 'takes'} {version}")
    sys.exit("\n".join(wrong) or 0)


main()
