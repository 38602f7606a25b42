#!/usr/bin/env python3
# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Makes moving_types.txt: what each of the 12 x 12 changes of moving type leaves, with and without keep, from the
rules stated at Camera::SetMovingType. A model of its own: it shares nothing with the library.

usage: make_moving_types.py [--check]

The settings of the test hold one record a type (moving_type_test.cpp builds the same ones): see record().
The columns: from, to, keep, then the state: type, zoom, longitude, latitude, distance, unit, coordinate system,
observer, centre object, first look, lock, plane, the three view angles, day, fraction, time kind, FST, flags
(o observer changed, z zoom changed). Angles in degrees.
"""
import os
import sys

PATH = os.path.join(os.path.dirname(os.path.abspath(__file__)), "moving_types.txt")
WITH_RECORD = {0, 1, 2, 3, 4, 5, 9, 10}
PLANES = {0: 1, 1: 1, 2: 0, 3: 2, 4: 3, 5: 0, 9: 2, 10: 3}
COORDINATES = {0: 2, 1: 2, 2: 2, 3: 0, 4: 3, 5: 2, 9: 3, 10: 3}
EARTH, MARS, SUN, MOON = ("plnt", 3), ("plnt", 4), ("plnt", 10), ("moon", 301)
OBSERVERS = {3: SUN, 9: ("gala", 0x3D000000)}
NONE, STAR = ("-", -1), ("star", 7)


def record(number):
    """The record of a type; 99 is that of the camera itself."""
    is_camera = number == 99
    return dict(zoom=2.0 + number, lon=20 + number, lat=10 + number % 60, dist=0.5 * number, unit=number % 8,
                coor=2 if is_camera else COORDINATES[number], observer=OBSERVERS.get(number, EARTH), centre=NONE,
                first=0, lock=1 if number == 10 else 0, plane=0 if is_camera else PLANES[number],
                angles=(30 + number, 5, number % 7), day=2400000 + number, fraction=0.125, kind=0, fst=1)


def change(state, memory, to, keep):
    before = dict(state)
    on_body = before["type"] in (0, 1) and before["coor"] == 2
    around_sun = before["observer"] == SUN and before["type"] not in (0, 1)
    if before["observer"][0] in ("plnt", "moon") and (not around_sun or not memory["observer"]):
        memory["observer"] = before["observer"]
    if on_body:
        memory["places"][before["type"]] = memory["last"] = before
    if keep:
        memory["views"][before["type"]] = (before["plane"], before["angles"])
    if to in WITH_RECORD:
        planet = before["observer"][0] == "plnt"
        state.update(record(99 if to in (0, 1) and not planet else to))
        state["changed"] = True
    if keep:
        state["changed"] = True
        if on_body:
            state.update(lon=before["lon"], lat=before["lat"], unit=before["unit"])
    state.update({k: before[k] for k in ("day", "fraction", "kind", "fst")}, type=to)
    if state["observer"][0] == "plnt" and memory["observer"]:
        if state["observer"] == EARTH:
            state["observer"] = memory["observer"]
        state["changed"] = True
    last, own = memory["last"], memory["places"].get(to)
    if to in (0, 1) and last and (on_body or last["observer"] == state["observer"]):
        state.update(lon=last["lon"], lat=last["lat"], coor=2)
        if own and own is not before and own["observer"] == state["observer"]:
            state.update(dist=own["dist"], unit=own["unit"])
    if before["lock"]:
        state.update(first=1, lock=1, centre=before["centre"])
    elif to in (1, 3) and memory["observer"]:
        state.update(centre=memory["observer"], first=1)
    elif to == 4:
        state.update(centre=state["observer"], lock=1)
    if keep or before["lock"]:
        state["zoom"] = before["zoom"]
    state["zoomed"] = state["zoomed"] or state["zoom"] != before["zoom"]
    left = memory["views"].get(to)
    if keep and left and left[0] != before["plane"]:
        state.update(plane=left[0], angles=left[1])
    elif keep and (left or state["plane"] == before["plane"]):
        state.update(plane=before["plane"], angles=before["angles"])


def start(type_):
    """A new camera with its defaults, changed to the type and then given a state of its own."""
    memory = dict(observer=None, last=None, places={}, views={})
    state = dict(record(99), type=0, changed=True, zoomed=False)
    change(state, memory, type_, False)
    state.update(zoom=50.0 + type_, lon=-50 - type_, lat=40 + type_, dist=7.0, unit=3,
                 angles=(70 + type_, -20, 15), day=2460000, fraction=0.25, kind=1, fst=0,
                 observer=MARS if type_ in (0, 1) else ("gala", 5) if type_ == 9 else MOON,
                 lock=type_ % 2, centre=STAR if type_ % 2 else NONE, first=0, changed=False, zoomed=False)
    return state, memory


def line(source, to, keep, s):
    name = lambda o: f"{o[0]}:{o[1]}"
    flags = ("o" if s["changed"] else "") + ("z" if s["zoomed"] else "") or "-"
    return (f"{source} {to} {'keep' if keep else '-'} | {s['type']} {s['zoom']:g} {s['lon']:g} {s['lat']:g} "
            f"{s['dist']:g} {s['unit']} {s['coor']} {name(s['observer'])} {name(s['centre'])} {s['first']} {s['lock']} "
            f"{s['plane']} {s['angles'][0]:g} {s['angles'][1]:g} {s['angles'][2]:g} {s['day']} {s['fraction']:g} "
            f"{s['kind']} {s['fst']} {flags}")


def table():
    lines = ["# Made by make_moving_types.py; do not edit."]
    for source in range(12):
        for to in range(12):
            for keep in (False, True):
                state, memory = start(source)
                change(state, memory, to, keep)
                lines.append(line(source, to, keep, state))
    return "\n".join(lines) + "\n"


if "--check" in sys.argv:
    with open(PATH, encoding="utf-8") as file:
        sys.exit(0 if file.read() == table() else f"{PATH} is not what {__file__} makes")
with open(PATH, "w", encoding="utf-8") as out:
    out.write(table())
