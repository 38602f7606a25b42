#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Hands an exported header to Doxygen as if its comments were written for it; Doxygen calls it with the path.

What the headers say in plain comments becomes this:
  - a comment above a declaration is that of the declaration and of all that follow without a blank line between;
  - a comment behind a member or an enumerator is its own;
  - lines that are indented by two blanks or more are shown as they are;
  - the comment above "#pragma once" is that of the file;
  - everything in the header belongs to the group of its room.
"""
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, "tests", "structure"))
sys.dont_write_bytecode = True

NO_DECLARATION = re.compile(r"(static_assert|friend\b|namespace\b|extern \"C\"|public:|protected:|private:|#|\}|__extension__ \()")
FORWARD = re.compile(r"(template <[^>]*>\s*)?(class|struct|enum) \w+;")


def find_group(path):
    """The room of the header, as the page of groups calls it."""
    import check_includes

    relative = os.path.relpath(os.path.abspath(path), ROOT)
    if relative.startswith("companions/"):
        companion = relative.split("/")[1]
        source = os.path.basename(path)[:-1] + "cpp"
        for folder in sorted(os.listdir(os.path.join(ROOT, "companions", companion))):
            if os.path.exists(os.path.join(ROOT, "companions", companion, folder, source)):
                return f"{companion}_{folder}"
        return companion
    room = check_includes.storey(relative) or "umbrella"
    return {"text_base": "text", "text_status": "text", "scene/umbrella": "scene"}.get(room, room.replace("/", "_"))


def escaped(text):
    return re.sub(r"([\\@<>#&%])", r"\\\1", text)


def as_doxygen(comment):
    """Lines of a plain comment, without their slashes, as the text of one for Doxygen."""
    lines, shown, in_list = [], False, False
    for line in comment:
        text = line[1:] if line.startswith(" ") else line
        is_item = re.match(r"\s*(-|\d+\.) ", text)
        in_list = bool(is_item) or in_list and text.startswith(" ")
        indented = text.startswith("  ") and not in_list
        if indented and not shown:
            lines += ["", "@code{.unparsed}"]
        if shown and not indented and text.strip():
            lines.append("@endcode")
            shown = False
        shown = shown or indented
        lines.append(text if shown else escaped(text))
    return lines + (["@endcode"] if shown else [])


def with_line_comments(text):
    """The comments of C as those of C++."""
    def convert(match):
        return "\n".join("//" + re.sub(r"^ \*", "", line) for line in match.group(1).rstrip().split("\n"))

    return re.sub(r"/\*(.*?)\*/", convert, text, flags=re.DOTALL)


class Filter:
    def __init__(self):
        self.out = []
        self.comment = []   # lines of the comment that stands right above
        self.block = []     # the comment of the block of declarations
        self.scopes = []    # of the open braces: "outer", "enum" or "body"
        self.blocks = []    # and what self.block was before each
        self.parentheses = 0
        self.starts = True  # whether a declaration may begin

    def scope(self):
        return self.scopes[-1] if self.scopes else "outer"

    def put_comment(self, comment):
        self.out += ["/// " + line if line else "///" for line in as_doxygen(comment)]

    def take(self, line):
        stripped = line.strip()
        if stripped.startswith("//") and self.scope() != "body" and self.starts:
            self.comment.append(stripped[2:])
            return
        if not stripped:
            # A comment with a blank line behind it belongs to no declaration.
            self.out += ["//" + text for text in self.comment] + [""]
            self.comment, self.block = [], []
            return
        code, behind = self.split(line)
        begins = self.starts and self.scope() != "body" and not NO_DECLARATION.match(stripped) and not FORWARD.match(stripped)
        if begins:
            if self.comment:
                self.block = self.comment
            if self.block and not (behind and self.scope() != "body" and not self.comment):
                self.put_comment(self.block)
        self.comment = []
        self.follow(code)
        is_own = behind is not None and (self.scope() != "body" or self.starts)
        self.out.append(code.rstrip() + (" ///< " + escaped(behind.strip()) if is_own else ""))

    @staticmethod
    def split(line):
        """Code and the comment behind it, if there is one."""
        bare = re.sub(r'"(?:\\.|[^"\\])*"', lambda text: "_" * len(text.group()), line)
        at = bare.find("//")
        return (line, None) if at < 0 else (line[:at], line[at + 2:])

    def follow(self, code):
        """Where the code leads: which braces are open, and whether a declaration may begin on the next line."""
        bare = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'', "_", code)
        if bare.lstrip().startswith("#"):
            return
        for i, c in enumerate(bare):
            if c in "([":
                self.parentheses += 1
            elif c in ")]":
                self.parentheses -= 1
            elif c == "{":
                self.scopes.append(self.kind_of(self.head + bare[:i]))
                self.blocks.append(self.block)
                if self.scope() != "body":
                    self.block = []  # the members have comments of their own
                self.head = ""
                bare = " " * (i + 1) + bare[i + 1:]
            elif c == "}":
                self.scopes.pop()
                self.block = self.blocks.pop()
            if c in ";}" and self.parentheses == 0:
                self.head = ""
                bare = " " * (i + 1) + bare[i + 1:]
        self.head += bare.strip() + " "
        last = code.rstrip()[-1:]
        ends = ";{}" + ("," if self.scope() == "enum" else "")
        self.starts = self.parentheses == 0 and (last in ends or re.fullmatch(r"\s*(public|protected|private):\s*", code) is not None)
        if self.starts:
            self.head = ""

    head = ""  # of the statement so far

    def kind_of(self, head):
        if self.scope() == "body":
            return "body"
        if re.search(r"\benum\b", head):
            return "enum"
        if re.search(r"\bnamespace\b|extern _", head):
            return "outer"
        return "outer" if re.search(r"\b(class|struct|union)\b", head) and "(" not in head else "body"


def main():
    path = sys.argv[1]
    if path.endswith(".md"):
        import page_filter

        sys.stdout.write(page_filter.filter_page(path, ROOT))
        return
    with open(path, encoding="utf-8") as file:
        lines = with_line_comments(file.read()).split("\n")
    head = []
    while lines[0].startswith("//"):
        head.append(lines.pop(0)[2:])
    about = [line for line in head if "SPDX-" not in line]
    group = find_group(path)
    filtered, before = Filter(), []
    while lines and (not lines[0].strip() or re.match(r"#(pragma|include)", lines[0])):
        before.append(lines.pop(0))
    for line in lines:
        filtered.take(line)
    text = ["/// @file", *("/// " + line for line in as_doxygen(about)), *before, f"/// @addtogroup {group}",
            "/// @{", "", *filtered.out, "", "/// @}"]
    sys.stdout.write("\n".join(text) + "\n")


if __name__ == "__main__":
    main()
