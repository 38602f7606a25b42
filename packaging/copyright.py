# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes of REUSE.toml and LICENSES what Debian keeps as debian/copyright, in its machine-readable form
(https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/). In both the last entry that fits a path counts.
"""
import os
import re
import tomllib

HEADER = """Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/
Upstream-Name: common_interfaces
Comment: Files are those of the source tree. Tables of the data root carry the
 licence of the folders of data/source that they are made of; beside each stands
 where it comes from.
"""
# Debian has these texts on every system and wants them told by their place.
COMMON = {"Apache-2.0", "CC0-1.0"}


def as_list(value):
    return value if isinstance(value, list) else [value]


def debian_name(expression):
    """Of a licence, or of several: the names are those of SPDX, as far as it has them."""
    return expression.replace(" AND ", " and ").replace("LicenseRef-PublicDomain", "public-domain").replace(
        "LicenseRef-", "")


def indented(text):
    return "\n".join(" " + (line.rstrip().expandtabs(4) or ".") for line in text.strip("\n").split("\n"))


def make_files(entry):
    # Here an asterisk stands for slashes too.
    paths = [path.replace("**/", "").replace("**", "*") for path in as_list(entry["path"])]
    return ("Files: " + "\n ".join(paths) + "\nCopyright: " + "\n ".join(as_list(entry["SPDX-FileCopyrightText"]))
            + "\nLicense: " + debian_name(entry["SPDX-License-Identifier"]) + "\n")


def make_licence(folder, name):
    text = f"The full text is in /usr/share/common-licenses/{name} on Debian systems."
    if name not in COMMON:
        with open(os.path.join(folder, name + ".txt"), encoding="utf-8") as file:
            text = file.read()
    return f"License: {debian_name(name)}\n{indented(text)}\n"


def make_copyright(root):
    with open(os.path.join(root, "REUSE.toml"), "rb") as file:
        entries = tomllib.load(file)["annotations"]
    # The first entry is for what is the authors' own; files that name their licence themselves are too.
    entries[0]["path"] = "*"
    names = sorted({name for entry in entries for name in re.split(" AND ", entry["SPDX-License-Identifier"])})
    licences = os.path.join(root, "LICENSES")
    return "\n".join([HEADER, *map(make_files, entries), *(make_licence(licences, name) for name in names)])
