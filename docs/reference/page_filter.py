# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A page of documentation for Doxygen: with a label of its own, links to the pages and headers that the reference has
as references, and all other links as plain text."""
import os
import re

LINK = re.compile(r"(!?)\[([^\]]*)\]\(([^)#\s]*)(#[^)\s]*)?\)")
LEFT_OUT = {"gallery.md", "interface_map.md"}  # pictures by the dozen; and what the reference itself shows

CODE = re.compile(r"(?<!`)`([^`]*['\"\\<>@&][^`]*)`(?!`)")


def as_code(match):
    """A span of code with signs that Doxygen would read within it."""
    return "<code>" + re.sub(r"([\"\\<>@&])", r"\\\1", match.group(1)) + "</code>"


def label_of(relative):
    return "page_" + re.sub(r"[^a-z0-9]+", "_", relative.removesuffix(".md").lower())


def is_shown(relative):
    return (relative == "README.md" or relative.startswith("docs/")) and relative.endswith(".md") \
        and os.path.basename(relative) not in LEFT_OUT


def filter_page(path, root):
    folder = os.path.dirname(os.path.relpath(os.path.abspath(path), root))

    def link(match):
        is_picture, text, target, _ = match.groups()
        relative = os.path.normpath(os.path.join(folder, target)) if target else ""
        if is_picture:
            return match.group()
        if "://" in target:
            return match.group()
        if is_shown(relative) and os.path.exists(os.path.join(root, relative)):
            return f"[{text}](@ref {label_of(relative)})"
        return text or ""

    lines, in_code = [], False
    with open(path, encoding="utf-8") as file:
        content = re.sub(r"<!--.*?-->\n*", "", file.read(), flags=re.DOTALL)
    content = re.sub(r"\[!\[([^\]]*)\]\(([^)]*)\)\]\([^)]*\)", lambda at: f"![{at[1]}]({os.path.basename(at[2])})", content)
    for line in content.split("\n"):
        in_code ^= line.lstrip().startswith("```")
        if not in_code:
            line = CODE.sub(as_code, LINK.sub(link, line))
            if line.startswith("# "):
                line = line.replace("`", "") + f" {{#{label_of(os.path.relpath(os.path.abspath(path), root))}}}"
        lines.append(line)
    return "\n".join(lines)
