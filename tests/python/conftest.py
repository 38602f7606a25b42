# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
import gc

import common_interfaces as ci
import pytest

# The 15th of January 2026, 21:00 Universal Time, from Berlin to the south.
VIEW = ci.View(latitude=52.5, longitude=13.4, julian_date=2461056.375, azimuth=180.0, altitude=35.0)


@pytest.fixture
def sky():
    """A sky of its own for each test; what a failed test still holds of the one before is let go."""
    gc.collect()
    with ci.Sky(language="en") as opened:
        opened.view = VIEW
        yield opened


@pytest.fixture
def lines():
    """The diagnostic lines of the library."""
    received = []
    ci.set_log(received.append)
    yield received
    ci.set_log(None)
