# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Julian dates of Universal Time, and Python's own moments."""
from __future__ import annotations

import datetime

_EPOCH = datetime.datetime(1970, 1, 1, tzinfo=datetime.timezone.utc)
_EPOCH_DATE = 2440587.5


def to_julian_date(moment: datetime.datetime) -> float:
    """The Julian date of a moment that has a time zone.

    >>> to_julian_date(datetime.datetime(2026, 1, 15, 21, 0, tzinfo=datetime.timezone.utc))
    2461056.375
    """
    if moment.tzinfo is None:
        raise ValueError("a moment without a time zone")
    return _EPOCH_DATE + (moment - _EPOCH) / datetime.timedelta(days=1)


def to_datetime(julian_date: float) -> datetime.datetime:
    """The moment of a Julian date, Universal Time, to the millisecond; OverflowError outside of the years 1 to 9999.

    >>> to_datetime(2461056.375).isoformat()
    '2026-01-15T21:00:00+00:00'
    """
    return _EPOCH + datetime.timedelta(milliseconds=round((julian_date - _EPOCH_DATE) * 86400000.0))
