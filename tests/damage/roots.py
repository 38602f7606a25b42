# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A data root of links and a work area beside it, in which one thing is damaged at a time."""
import os
import pathlib
import shutil

import damages


def files_below(folder):
    """Names from that folder on, in order; links count as what they lead to."""
    return sorted(path.relative_to(folder).as_posix() for path in pathlib.Path(folder).rglob("*") if path.is_file())


class Root:
    """FOLDER/data, whose files are links to those of BASE/data, FOLDER/work, a copy of BASE/work, and FOLDER/out for
    what programs write."""

    def __init__(self, base, folder):
        self.base, self.folder = pathlib.Path(base), pathlib.Path(folder)
        shutil.rmtree(folder, ignore_errors=True)
        self.names = files_below(self.base / "data")
        for name in self.names:
            place = self.folder / "data" / name
            place.parent.mkdir(parents=True, exist_ok=True)
            place.symlink_to((self.base / "data" / name).resolve())
        self._renew("work")
        self._renew("out")
        self.damaged = {}

    def _renew(self, name):
        """A copy of what the base has, into which everybody may write."""
        shutil.rmtree(self.folder / name, ignore_errors=True)
        if (self.base / name).is_dir():
            shutil.copytree(self.base / name, self.folder / name)
        else:
            (self.folder / name).mkdir(parents=True)
        for path in [self.folder / name, *(self.folder / name).rglob("*")]:
            path.chmod(0o777 if path.is_dir() else 0o666)

    def damage(self, changes):
        """Puts into the place of each file, "data/..." or "work/...", its bytes or what damages.py names."""
        for name, content in changes.items():
            place = self.folder / name
            place.unlink()
            self.damaged[name] = content
            if content == damages.FOLDER:
                place.mkdir()
            elif content == damages.DEVICE:
                place.symlink_to(os.devnull)
            elif content == damages.NOWHERE:
                place.symlink_to("nowhere")
            elif content == damages.LOCKED:
                place.write_bytes(b"locked")
                place.chmod(0)
            elif content != damages.GONE:
                place.write_bytes(content)

    def find_changes(self):
        """What somebody wrote, removed or replaced in the data root since; a text to print, "" for nothing."""
        wanted = {name for name in self.names if self.damaged.get("data/" + name) not in
                  (damages.FOLDER, damages.DEVICE, damages.NOWHERE, damages.GONE)}
        found = set(files_below(self.folder / "data"))
        differing = sorted(found ^ wanted)
        for name, content in self.damaged.items():
            if isinstance(content, bytes) and name.startswith("data/") and name[5:] in found:
                differing += [name] if (self.folder / name).read_bytes() != content else []
        return ", ".join(differing)

    def mend(self):
        for name in self.damaged:
            place = self.folder / name
            if place.is_dir() and not place.is_symlink():
                shutil.rmtree(place)
            elif os.path.lexists(place):
                place.unlink()
            if name.startswith("data/"):
                place.symlink_to((self.base / name).resolve())
        self.damaged = {}
        self._renew("work")
        self._renew("out")
