# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The version is that of the libraries; a package that carries them (script/wheel) is for the system it was built on."""
import pathlib
import platform
import re

from setuptools import Distribution, setup
from wheel.bdist_wheel import bdist_wheel

HERE = pathlib.Path(__file__).resolve().parent
CARRIES_LIBRARIES = (HERE / "common_interfaces" / "lib").is_dir()


class Carrier(Distribution):
    def has_ext_modules(self):
        return CARRIES_LIBRARIES


class Wheel(bdist_wheel):
    def get_tag(self):
        if not CARRIES_LIBRARIES:
            return super().get_tag()
        glibc = platform.libc_ver()[1].replace(".", "_")
        return "py3", "none", f"manylinux_{glibc}_{platform.machine()}"


version = re.search(r"project\(common_interfaces VERSION ([\d.]+)", (HERE.parent / "CMakeLists.txt").read_text())
setup(version=version.group(1), distclass=Carrier, cmdclass={"bdist_wheel": Wheel})
