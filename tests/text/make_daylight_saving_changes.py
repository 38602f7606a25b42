#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Writes daylight_saving_changes.txt: every daylight-saving change of ten zones from 1970 to 2037, and each as a rule.

usage: make_daylight_saving_changes.py > daylight_saving_changes.txt

The changes come from the zone files of the system (IANA time zone database, public domain) by way of Python's own
zone module: a moment counts when daylight saving begins or ends there and the clock moves. Date and time are those
that the clock shows the moment before it moves. Each is then looked at as a rule would put it: the n-th such weekday of
its month, the last one, or both.
"""
import calendar
import datetime
import pathlib
import zoneinfo

ZONES = ["Africa/Cairo", "America/Los_Angeles", "America/New_York", "America/Sao_Paulo", "America/St_Johns",
         "Australia/Lord_Howe", "Australia/Sydney", "Europe/Berlin", "Europe/London", "Pacific/Auckland"]
UTC = datetime.timezone.utc
JULIAN_DAY_OF_ORDINAL_0 = 1721425  # 2000-01-01 is the ordinal 730120 and the Julian day 2451545


def state(zone, moment):
    local = moment.astimezone(zone)
    return local.utcoffset(), bool(local.dst())


def changes(zone):
    """Yields the first second of each new state, with the offsets before and after."""
    step = datetime.timedelta(hours=6)
    moment = datetime.datetime(1970, 1, 1, tzinfo=UTC)
    end = datetime.datetime(2038, 1, 1, tzinfo=UTC)
    while moment < end:
        low, high = moment, moment + step
        before, after = state(zone, low), state(zone, high)
        moment = high
        if before == after:
            continue
        while high - low > datetime.timedelta(seconds=1):
            middle = low + datetime.timedelta(seconds=(high - low).total_seconds() // 2)
            if state(zone, middle) == before:
                low = middle
            else:
                high = middle
        if before[0] != after[0] and before[1] != after[1]:
            yield high, before[0], after[0]


def row(name, moment, before, after):
    clock = moment.replace(tzinfo=None) + before
    if not 1970 <= clock.year <= 2037:
        return None
    assert clock.second == 0
    weekday = (clock.weekday() + 1) % 7  # Sunday is 0
    week = (clock.day - 1) // 7
    is_last = clock.day + 7 > calendar.monthrange(clock.year, clock.month)[1]
    weeks = ",".join(str(w) for w in ([week] if week < 4 else []) + ([4] if is_last else []))
    day = clock.toordinal() + JULIAN_DAY_OF_ORDINAL_0
    fraction = (clock.hour * 60 + clock.minute) / 1440 - 0.5
    return (f"{name} {clock.year} {clock.month - 1} {weeks} {weekday} {clock.hour} {clock.minute} {day} "
            f"{fraction:.15f} {before.total_seconds() / 60:g} {after.total_seconds() / 60:g}")


def main():
    version = pathlib.Path("/usr/share/zoneinfo/tzdata.zi").read_text(encoding="ascii").split("\n")[0].split()[-1]
    print("# Made by make_daylight_saving_changes.py; do not edit.")
    print(f"# IANA time zone database {version}")
    print("# zone, year, month from 0, weeks from 0 (4: the last), weekday (0: Sunday), hour, minute, Julian day number,")
    print("# fraction, minutes east of Universal Time before and after")
    for name in ZONES:
        for change in changes(zoneinfo.ZoneInfo(name)):
            line = row(name, *change)
            if line:
                print(line)


main()
