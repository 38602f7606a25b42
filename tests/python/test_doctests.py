# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The examples in the package and on its page say what happens."""
import doctest
import importlib
import pkgutil

import common_interfaces as ci
import pytest

import headers

MODULES = [module.name for module in pkgutil.iter_modules(ci.__path__) if module.name != "sky"]


def check(results):
    assert results.failed == 0


@pytest.mark.parametrize("name", MODULES)
def test_examples_of_module(name, sky):
    module = importlib.import_module(f"common_interfaces.{name}")
    check(doctest.testmod(module, extraglobs={**vars(ci), "sky": sky}))


def test_examples_of_sky():
    check(doctest.testmod(importlib.import_module("common_interfaces.sky")))


def test_examples_of_the_page(tmp_path, monkeypatch):
    monkeypatch.chdir(tmp_path)
    results = doctest.testfile(str(headers.ROOT / "docs/python.md"), module_relative=False, encoding="utf-8")
    assert results.attempted > 20
    check(results)


def test_modules_have_examples():
    found = [test for name in MODULES for test in
             doctest.DocTestFinder().find(importlib.import_module(f"common_interfaces.{name}")) if test.examples]
    assert len(found) > 20
