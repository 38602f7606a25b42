# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The examples in the package and on its page say what happens."""
import doctest
import importlib
import pkgutil
import sys

import common_interfaces as ci
import pytest

import headers

sys.path.append(str(headers.ROOT / "tests/docs"))
import page  # noqa: E402

MODULES = [module.name for module in pkgutil.iter_modules(ci.__path__) if module.name != "sky"]


def check(results):
    assert results.failed == 0


@pytest.mark.parametrize("name", MODULES)
def test_examples_of_module(name, sky):
    module = importlib.import_module(f"common_interfaces.{name}")
    check(doctest.testmod(module, extraglobs={**vars(ci), "sky": sky}))


def test_examples_of_sky():
    check(doctest.testmod(importlib.import_module("common_interfaces.sky")))


def test_examples_of_the_page():
    blocks = [block for block in page.read_blocks(headers.ROOT / "docs/python.md") if block.language == "python"]
    text = "".join("\n" * (block.first - 1 - at) + block.text() for at, block in
                   zip([0, *(block.first + len(block.lines) - 1 for block in blocks)], blocks))
    examples = doctest.DocTestParser().get_doctest(text, {}, "python.md", "docs/python.md", 0)
    assert len(blocks) > 5 and len(examples.examples) > 30
    check(doctest.DocTestRunner().run(examples))


def test_modules_have_examples():
    found = [test for name in MODULES for test in
             doctest.DocTestFinder().find(importlib.import_module(f"common_interfaces.{name}")) if test.examples]
    assert len(found) > 20
