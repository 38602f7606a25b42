#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""A small library of its own is changed in one place at a time: what script/abi rests on notices what breaks programs,
and lets pass what does not.

usage: notices_test.py COMPILER
"""
import pathlib
import shutil
import sys
import tempfile

from comparison import compare
from description import describe
from probe import make_probe, run

ALLOWED = pathlib.Path(__file__).parent / "allowed.suppr"
HEADER = """#pragma once
#include <string>
#include <vector>
#define API __attribute__((visibility("default")))
namespace small {
enum Colour { kRed, kBlue = 2 };
struct Point { double x, y; Colour colour; std::string name, title; };
class API Path {
 public:
  virtual ~Path();
  virtual int GetLength() const;
  virtual void Close();
  const std::vector<Point>& GetPoints() const;
  int GetWidth() const { return m_Width; }
 private:
  std::vector<Point> m_Points;
  int m_Width = 1;
};
API int Count(const Path& path, double limit);
API extern const int kLimit;
}  // namespace small
extern "C" {
struct SceneSize { unsigned size; int width; int height; };
API int small_measure(struct SceneSize* size);
}
"""
SOURCE = """#include "small.h"
namespace small {
Path::~Path() = default;
int Path::GetLength() const { return m_Width; }
void Path::Close() {}
const std::vector<Point>& Path::GetPoints() const { return m_Points; }
int Count(const Path&, double) { return 0; }
const int kLimit = 3;
}
int small_measure(SceneSize*) { return 0; }
"""
# What is changed, in the header or the source, and whether programs break.
CHANGES = {
    "nothing": ([], False),
    "an inline function": ([("return m_Width; }\n private", "return m_Width + 1; }\n private")], False),
    "a function gone": ([("API int Count(const Path& path, double limit);\n", ""),
                         ("int Count(const Path&, double) { return 0; }\n", "")], True),
    "an operation gone": ([("  const std::vector<Point>& GetPoints() const;\n", ""),
                           ("const std::vector<Point>& Path::GetPoints() const { return m_Points; }\n", "")], True),
    "a variable gone": ([("API extern const int kLimit;\n", ""), ("const int kLimit = 3;\n", "")], True),
    "another parameter": ([("double limit", "float limit"), ("Path&, double", "Path&, float")], True),
    "another result of a function": ([("API int Count", "API long Count"),
                                      ("int Count(const Path&,", "long Count(const Path&,")], True),
    "another result of an operation": ([("virtual int GetLength", "virtual short GetLength"),
                                        ("int Path::GetLength", "short Path::GetLength")], True),
    "a larger class": ([("int m_Width = 1;", "int m_Width = 1; double m_Height = 0;")], True),
    "a larger record that only a list leads to": ([("std::string name, title", "std::string name, title, note")], True),
    "members of one type in another order": ([("name, title", "title, name")], True),
    "another number of an enumerator": ([("kBlue = 2", "kBlue = 3")], True),
    "an enumerator behind the others": ([("kBlue = 2", "kBlue = 2, kGreen")], False),
    "operations in another order": ([("  virtual int GetLength() const;\n  virtual void Close();\n",
                                      "  virtual void Close();\n  virtual int GetLength() const;\n")], True),
    "a new operation that can be overridden": ([("virtual void Close();", "virtual void Close(); virtual void Open();"),
                                                ("void Path::Close() {}", "void Path::Close() {} void Path::Open() {}")],
                                               True),
    "a new function": ([("API extern", "API int Measure(); API extern"),
                        ("const int kLimit = 3", "int Measure() { return 1; }\nconst int kLimit = 3")], False),
    "a new record": ([("class API Path", "struct Line { Point from, to; };\nclass API Path")], False),
    "a member at the end of a structure for C": ([("int height;", "int height; int depth;")], False),
    "a member within a structure for C": ([("int height;", "int depth; int height;")], True),
    "a member of a structure for C gone": ([("int height;", "")], True),
}


def build(compiler, folder, changes, soname):
    """The description of the library with these changes, and what no header declares."""
    shutil.rmtree(folder, ignore_errors=True)
    folder.mkdir()
    header, source = HEADER, SOURCE
    for old, new in changes:
        if (old in header) + (old in source) != 1:
            raise SystemExit(f"stands nowhere, or twice: {old}")
        header, source = header.replace(old, new), source.replace(old, new)
    (folder / "include").mkdir()
    (folder / "include/small.h").write_text(header)
    (folder / "small.cpp").write_text(source)
    library = folder / "libsmall.so"
    run(compiler, "-std=c++20", "-fPIC", "-shared", "-O2", "-fvisibility=hidden", "-fvisibility-inlines-hidden",
        f"-Wl,-soname={soname}", f"-I{folder}/include", folder / "small.cpp", "-o", library)
    probe, undeclared = make_probe(compiler, folder / "include", [], library, folder)
    describe(probe, folder / "small.abi")
    return folder / "small.abi", undeclared


def main():
    compiler, wrong = sys.argv[1], []
    if not (shutil.which("abidw") and shutil.which("abidiff")):
        print("skipped: abigail-tools are missing")
        sys.exit(77)
    with tempfile.TemporaryDirectory() as scratch:
        scratch = pathlib.Path(scratch)
        recorded, undeclared = build(compiler, scratch / "recorded", [], "libsmall.so.1")
        if undeclared:
            wrong.append(f"not declared: {undeclared}")
        for what, (changes, breaks) in CHANGES.items():
            verdict = compare(recorded, build(compiler, scratch / "changed", changes, "libsmall.so.1")[0], ALLOWED)
            if verdict.fits == breaks:
                wrong.append(f"{what}: {'was not noticed' if breaks else 'was taken for a breaking change'}\n"
                             f"{verdict.report}")
            if breaks and not verdict.report:
                wrong.append(f"{what}: nobody says what")
        gone = CHANGES["a function gone"][0]
        if not compare(recorded, build(compiler, scratch / "changed", gone, "libsmall.so.2")[0], ALLOWED).fits:
            wrong.append("a function gone, and the name moved: the name was overlooked")
        hidden = [("API int Count(const Path& path, double limit);\n", ""),
                  ("int Count(const Path&, double)", "API int Count(const Path&, double)")]
        if build(compiler, scratch / "changed", hidden, "libsmall.so.1")[1] != ["small::Count(small::Path const&, double)"]:
            wrong.append("a function that no header declares: it was overlooked")
    print(f"{len(CHANGES) + 2 - len(wrong)} of {len(CHANGES) + 2} changes are judged as docs/versions.md has it")
    sys.exit("\n".join(wrong) or 0)


main()
