# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The faults that can be planted in a source: each is one replacement of a piece of its text.

The sources are formatted, which tells apart what the language does not: binary operators stand between blanks, brackets
of templates and references do not.
"""
import collections
import random
import re

from source_text import arguments, closing, code_of

# kind of fault, offset of what is replaced, its length, what comes in its place
Fault = collections.namedtuple("Fault", "kind offset length text")

EXCHANGED = {
    "comparison": [("<", "<="), ("<=", "<"), (">", ">="), (">=", ">"), ("==", "!="), ("!=", "==")],
    "condition": [("&&", "||"), ("||", "&&")],
    "sign": [("+", "-"), ("-", "+"), ("+=", "-="), ("-=", "+=")],
    "product": [("*", "/"), ("/", "*"), ("*=", "/=")],
}
NEGATION = re.compile(r"(?<![\w=])!(?=[\w(:])")
MINUS = re.compile(r"(?:(?<=[(\[,=?:] )|(?<=[(\[{])|(?<=return ))-(?=[\w(])")
STEP = re.compile(r"\+\+|--")
WORD = re.compile(r"\b(?:true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])(?:0[xX][\da-fA-F']+|\d[\d']*(?:\.\d*)?(?:[eE][-+]?\d+)?|\.\d+(?:[eE][-+]?\d+)?)")
ARRAY_ROOM = re.compile(r"\w [A-Za-z_]\w*\[(\d+)\](?=[;,\[{]| =)")
LEAST_AND_MOST = re.compile(r"\bstd::(min|max|clamp)(?:<[\w:]+>)?(?=\()")
CALL = re.compile(r"(?<![\w:])[\w:.]*\w(?=\()")
SYMMETRIC = re.compile(r"(?:\b(?:std::)?(?:min|max|hypot|swap)|\b(?:if|for|while|switch|sizeof|decltype|catch))$")
DECLARED = re.compile(r"(?:const )?[\w:<>]+[&*]* [&*]?\w+$")
ASSIGNMENT = re.compile(r"[\w.:()*\[\]>-]+ [-+*/|&^%]?=(?!=) .*;$")
INVOCATION = re.compile(r"(?:[\w:.()\[\]]|->)+\(.*\);$")
JUMP = re.compile(r"(?:break|continue|return);$|(?:\+\+|--)[\w.>-]+;$|[\w.>-]+(?:\+\+|--);$")
GUARD = re.compile(r"if \(.*\) (?:return\b.*|continue|break|[\w.]+ [-+*/|&]?= .*|[\w:.]+\(.*\));$")
NO_STATEMENT = re.compile(r"(?:return|using|throw|delete|case|default|goto|else|do|friend|typedef)\b(?!;)")


def increased(number):
    """A number that differs: the next whole one; a tenth more of what has a point."""
    if re.match(r"0[xX]", number):
        return hex(int(number.replace("'", ""), 16) + 1)
    plain = number.replace("'", "")
    if plain.isdigit():
        return str(int(plain) + 1) if not re.match(r"0\d", plain) else None
    value = float(plain)
    return repr(value * 1.1 if value else 1.0)


def is_statement(line):
    return bool((ASSIGNMENT.match(line) or INVOCATION.match(line) or JUMP.match(line)) and not NO_STATEMENT.match(line))


def operator_faults(code):
    for kind, pairs in EXCHANGED.items():
        for before, after in pairs:
            for match in re.finditer(r"(?<= )%s(?=[ \n])" % re.escape(before), code):
                yield Fault(kind, match.start(), len(before), after)
    for match in NEGATION.finditer(code):
        yield Fault("condition", match.start(), 1, "")
    for match in MINUS.finditer(code):
        yield Fault("sign", match.start(), 1, "")
    for match in STEP.finditer(code):
        yield Fault("step", match.start(), 2, "--" if match.group() == "++" else "++")


def constant_faults(code):
    for match in WORD.finditer(code):
        yield Fault("constant", match.start(), len(match.group()), "false" if match.group() == "true" else "true")
    rooms = {match.start(1) for match in ARRAY_ROOM.finditer(code)}  # more room than is used changes nothing
    for match in NUMBER.finditer(code):
        if match.start() in rooms:
            continue
        after = increased(match.group())
        if after:
            yield Fault("constant", match.start(), len(match.group()), after)


def call_faults(code, text):
    for match in LEAST_AND_MOST.finditer(code):
        given = arguments(code, match.end())
        for begin, end in given[:1] if match.group(1) == "clamp" else given:
            length = closing(code, match.end()) + 1 - match.start()
            yield Fault("clamp", match.start(), length, "(" + text[begin:end] + ")")
    for match in CALL.finditer(code):
        if SYMMETRIC.search(match.group()):
            continue
        given = arguments(code, match.end())
        for (a, b), (c, d) in zip(given, given[1:]):
            first, second = text[a:b], text[c:d]
            if first != second and not DECLARED.match(first) and not DECLARED.match(second):
                yield Fault("arguments", a, d - a, second + text[b:c] + first)


def statement_faults(code, text):
    offset, last = 0, None
    for line in code.splitlines(keepends=True):
        stripped = line.strip()
        begin = offset + len(line) - len(line.lstrip())
        statement = (begin, begin + len(stripped)) if is_statement(stripped) else None
        if statement:
            yield Fault("removed", begin, len(stripped), ";")
            if last and text[last[0]:last[1]] != text[begin:begin + len(stripped)]:
                order = text[begin:begin + len(stripped)] + text[last[1]:begin] + text[last[0]:last[1]]
                yield Fault("order", last[0], statement[1] - last[0], order)
        elif GUARD.match(stripped) and stripped.count(";") == 1:
            yield Fault("guard", begin, len(stripped), ";")
        last = statement
        offset += len(line)


def faults_in(text):
    """Every fault that can be planted in a source, in the order of their places."""
    code = code_of(text)
    found = [*operator_faults(code), *constant_faults(code), *call_faults(code, text), *statement_faults(code, text)]
    return sorted(set(found), key=lambda fault: (fault.offset, fault.kind, fault.length, fault.text))


def planted(text, fault):
    return text[:fault.offset] + fault.text + text[fault.offset + fault.length:]


def lines_at(text, fault):
    """The number of the line, and the line or lines before and after, as one line of a table each."""
    after = planted(text, fault)
    begin = text.rfind("\n", 0, fault.offset) + 1

    def cut(source, end):
        stop = source.find("\n", end)
        return " ".join(source[begin:stop if stop >= 0 else len(source)].split())
    return (text.count("\n", 0, fault.offset) + 1, cut(text, fault.offset + fault.length),
            cut(after, fault.offset + len(fault.text)))


def mixed(faults_by_file, seed):
    """(file, fault) in the order in which they are tried: one of each kind in turn, each kind shuffled. Another fault
    elsewhere moves few of the others, and tables full of numbers do not crowd out the rest."""
    kinds = collections.defaultdict(list)
    for file in sorted(faults_by_file):
        for fault in faults_by_file[file]:
            kinds[fault.kind].append((file, fault))
    for kind in sorted(kinds):
        random.Random(f"{seed} {kind}").shuffle(kinds[kind])
    order = []
    for turn in range(max(map(len, kinds.values()), default=0)):
        order += [kinds[kind][turn] for kind in sorted(kinds) if turn < len(kinds[kind])]
    return order
