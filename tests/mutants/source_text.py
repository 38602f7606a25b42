# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""C++ text as those who plant faults see it: what is no code is blank, every place keeps its offset."""
import re

NO_CODE = re.compile(
    r"""//[^\n]*                              # comments
      | /\*.*?\*/
      | R"(\w*)\(.*?\)\1"                     # raw texts
      | "(?:\\.|[^"\\\n])*"                   # texts
      | (?<![0-9a-fA-F])'(?:\\.|[^'\\\n])+'   # characters; not the separators of digits
      | ^[ ]*\#(?:\\\n|[^\n])*                # directives
      | \bstatic_assert\b(?:[^;"]|"[^"\n]*")*;
    """, re.VERBOSE | re.DOTALL | re.MULTILINE)


def code_of(text):
    """The text with blanks for comments, texts, characters, directives and static assertions. Line ends stay; a text
    keeps its quotes, so that an argument does not become empty."""
    def blank(match):
        found = re.sub(r"[^\n]", " ", match.group())
        return match.group()[0] + found[1:-1] + match.group()[-1] if match.group()[0] in "\"'" else found
    return NO_CODE.sub(blank, text)


def closing(code, opening):
    """The offset of the bracket that closes the one at this offset; -1 when nothing does."""
    depth = 0
    for offset in range(opening, len(code)):
        if code[offset] in "([{":
            depth += 1
        elif code[offset] in ")]}":
            depth -= 1
            if depth == 0:
                return offset
    return -1


def arguments(code, opening):
    """(begin, end) of each argument of the call whose round bracket opens at this offset, without blanks around it."""
    end = closing(code, opening)
    if end < 0:
        return []
    depth, begin, found = 0, opening + 1, []
    for offset in range(opening + 1, end + 1):
        if offset == end or (code[offset] == "," and depth == 0):
            piece = code[begin:offset]
            found.append((begin + len(piece) - len(piece.lstrip()), offset - (len(piece) - len(piece.rstrip()))))
            begin = offset + 1
        elif code[offset] in "([{":
            depth += 1
        elif code[offset] in ")]}":
            depth -= 1
    return [(a, b) for a, b in found if a < b]
