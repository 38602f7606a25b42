#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes the Debian packages of a build tree and checks that lintian has nothing against them, that each has what it is
for and needs what it must, and that nothing is left over.

usage: check_packages.py SOURCE_DIR BUILD_DIR REFERENCE_DIR SCRATCH_DIR
"""
import fnmatch
import glob
import os
import re
import subprocess
import sys

SOURCE, BUILD, REFERENCE, SCRATCH = sys.argv[1:5]

# {package: patterns}. Each file of a package fits a pattern and each pattern has a file; * stands for slashes too. What
# all packages have is left out. Headers, data and reference are compared with the folders that they come from.
CONTENTS = {
    "libcommon-interfaces": ["usr/lib/*-linux-gnu/libastro.so.*", "usr/lib/*-linux-gnu/libcommon_interfaces.so.*",
                             "usr/lib/*-linux-gnu/libutils.so.*"],
    "libcommon-interfaces-scene": ["usr/lib/*-linux-gnu/libcommon_interfaces_scene.so.*"],
    "libcommon-interfaces-dev": [
        "usr/include/*.h", "usr/lib/*-linux-gnu/cmake/common_interfaces/common_interfacesConfig.cmake",
        "usr/lib/*-linux-gnu/cmake/common_interfaces/common_interfacesConfigVersion.cmake",
        "usr/lib/*-linux-gnu/cmake/common_interfaces/common_interfaces_targets*.cmake",
        "usr/lib/*-linux-gnu/libastro.so", "usr/lib/*-linux-gnu/libcommon_interfaces.so",
        "usr/lib/*-linux-gnu/libcommon_interfaces_scene.so",
        "usr/lib/*-linux-gnu/libutils.so", "usr/lib/*-linux-gnu/pkgconfig/common_interfaces.pc",
        "usr/lib/*-linux-gnu/pkgconfig/common_interfaces_scene.pc"],
    "common-interfaces-programs": [
        "usr/bin/skydata", "usr/bin/skyview", "usr/share/man/man1/skydata.1.gz", "usr/share/man/man1/skyview.1.gz",
        "usr/share/man/man1/skydata-*.1.gz", "usr/share/man/man1/skyview-*.1.gz"],
    "common-interfaces-data": [
        "usr/share/common_interfaces/data/*", "usr/share/doc/common-interfaces-data/NOTICE.md.gz",
        "usr/share/doc/common-interfaces-data/LICENSES/*"],
    "common-interfaces-doc": [
        "usr/share/doc/common-interfaces-doc/html/*", "usr/share/doc-base/common-interfaces-doc.common-interfaces",
        "usr/share/doc/common-interfaces-doc/examples/tutorial/*.cpp",
        "usr/share/doc/common-interfaces-doc/examples/cookbook/*.cpp",
        "usr/share/doc/common-interfaces-doc/examples/cookbook/recipes.h",
        "usr/share/doc/common-interfaces-doc/examples/camera_only/*",
        "usr/share/doc/common-interfaces-doc/examples/draw_svg/*"],
}
# {package: what its Depends must name}; @ stands for the number behind the names of the libraries.
DEPENDS = {
    "libcommon-interfaces": ["libc6", "libstdc++6"],
    "libcommon-interfaces-scene": ["libcommon-interfaces@"],
    "libcommon-interfaces-dev": ["libcommon-interfaces@", "libcommon-interfaces-scene@"],
    "common-interfaces-programs": ["libcommon-interfaces@", "libcommon-interfaces-scene@", "common-interfaces-data",
                                   "libcairo2", "tzdata"],
}
INCLUDES = ["include", "companions/astro/include", "companions/utils/include", "scene/include"]


def run(*command, **more):
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **more)
    if done.returncode:
        sys.exit(f"{' '.join(command)}: exit status {done.returncode}\n{done.stdout}")
    return done.stdout


def files_below(folder, pattern="*"):
    paths = glob.glob(os.path.join(folder, "**", pattern), recursive=True, include_hidden=True)
    return {os.path.relpath(path, folder) for path in paths if os.path.isfile(path)}


def files_of(package):
    listing = subprocess.run(["dpkg-deb", "--fsys-tarfile", package], capture_output=True, check=True).stdout
    names = subprocess.run(["tar", "t"], input=listing, capture_output=True, check=True).stdout.decode().split("\n")
    return {name.removeprefix("./") for name in names if name and not name.endswith("/")}


def below(files, folder):
    return {file.removeprefix(folder) for file in files if file.startswith(folder)}


def compare(what, packed, expected):
    return ([f"{what}: lacks {name}" for name in sorted(expected - packed)]
            + [f"{what}: has {name}, which its folder has not" for name in sorted(packed - expected)])


def check_contents(name, package, files):
    common = {f"usr/share/doc/{package}/copyright", f"usr/share/doc/{package}/changelog.gz"}
    faults = [f"{package}: lacks {file}" for file in sorted(common - files)]
    files = files - common
    faults += [f"{package}: has {file}" for file in sorted(files)
               if not any(fnmatch.fnmatchcase(file, pattern) for pattern in CONTENTS[name])]
    return faults + [f"{package}: has nothing like {pattern}" for pattern in CONTENTS[name]
                     if not fnmatch.filter(files, pattern)]


def squeeze(text):
    return re.sub(r"\s+", "", text).replace("\N{RIGHT SINGLE QUOTATION MARK}", "'")


def check_page(path, programs, environment):
    """A manual page, as it is read, has each line of the help that it is made of."""
    name = os.path.basename(path).removesuffix(".1.gz")
    program, *command = name.split("-")
    told = run(os.path.join(programs, program), *command, "--help", env=environment)
    shown = squeeze(run("man", "-l", path, env={**environment, "MANWIDTH": "1000", "LC_ALL": "C.UTF-8"}))
    lines = [line for line in told.split("\n") if line.strip() and not re.match(r"Usage: |\S.*:$", line)]
    return [f"{name}.1: lacks: {line.strip()}" for line in lines if squeeze(line) not in shown]


def check_use(root):
    """What the packages hold, unpacked together, serves before it is installed: programs find libraries and data."""
    library = glob.glob(os.path.join(root, "usr/lib/*-linux-gnu"))[0]
    environment = {**os.environ, "PKG_CONFIG_PATH": os.path.join(library, "pkgconfig"), "LD_LIBRARY_PATH": library}
    told = run("pkg-config", "--variable=data_root", "common_interfaces_scene", env=environment).strip()
    faults = [] if os.path.isfile(os.path.join(told, "qxstrings.txt")) else [f"pkg-config: no data root: {told}"]
    for page in sorted(glob.glob(os.path.join(root, "usr/share/man/man1/*.gz"))):
        faults += check_page(page, os.path.join(root, "usr/bin"), environment)
    run(os.path.join(root, "usr/bin/skyview"), "limits", env=environment)
    return faults


def main():
    environment = {**os.environ, "DEB_BUILD_OPTIONS": "noautodbgsym", "DPKG_DEB_COMPRESSOR_LEVEL": "1",
                   "SOURCE_DATE_EPOCH": "1767225600", "DEBEMAIL": "authors@common-interfaces.example"}
    run(os.path.join(SOURCE, "packaging", "build_deb"), BUILD, REFERENCE, SCRATCH, env=environment)
    run(os.path.join(SOURCE, "packaging", "lint_deb"), SCRATCH)
    faults, packed = [], {}
    for path in glob.glob(os.path.join(SCRATCH, "*.deb")):
        package = os.path.basename(path).split("_")[0]
        name = re.sub(r"\d[\d.]*$", "", package)
        packed[name] = files_of(path)
        run("dpkg-deb", "-x", path, os.path.join(SCRATCH, "root"))
        faults += check_contents(name, package, packed[name])
        soversion = next(iter(re.findall(r"libcommon-interfaces([\d.]+)", run("dpkg-deb", "-f", path))), "")
        needed = re.findall(r"(?:^|, )([^\s,]+)", run("dpkg-deb", "-f", path, "Depends"))
        faults += [f"{package}: does not depend on {other}" for other in DEPENDS.get(name, [])
                   if other.replace("@", soversion) not in needed]
    if packed.keys() != CONTENTS.keys():
        sys.exit(f"packages: {', '.join(sorted(packed))}")
    headers = set().union(*(files_below(os.path.join(SOURCE, folder), "*.h") for folder in INCLUDES))
    faults += compare("headers", below(packed["libcommon-interfaces-dev"], "usr/include/"), headers)
    faults += compare("data root", below(packed["common-interfaces-data"], "usr/share/common_interfaces/data/"),
                      files_below(os.path.join(BUILD, "data")) - {"catalogs/deep_stars.tiles"})
    reference = below(packed["common-interfaces-doc"], "usr/share/doc/common-interfaces-doc/html/")
    faults += compare("reference", {file.removesuffix(".gz") for file in reference}, files_below(REFERENCE))
    faults += check_use(os.path.join(SCRATCH, "root"))
    print("\n".join(faults) if faults else f"{len(packed)} packages, {sum(map(len, packed.values()))} files")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
