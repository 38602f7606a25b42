# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""The records of a frame as NumPy dtypes: the layouts of docs/formats/display_list.md, little-endian, without padding.

Lengths and places are pixels, angles radians. Every record of a thing in the sky has `object`, kind and number, by which
Object(*record["object"]) names it; 0 and 0 name none.

>>> POINT.itemsize, POINT.fields["object"][1]
(44, 36)
"""
from __future__ import annotations

from typing import Any

import numpy as np

COLOUR = np.dtype(("u1", 4))  # red, green, blue, opacity
OBJECT = np.dtype([("kind", "<i4"), ("number", "<i4")])
GLOW = np.dtype([("inner", "<f4"), ("radius", "<f4"), ("middle", "<f4"), ("colour", COLOUR), ("middle_colour", COLOUR)])


def _dtype(*fields: Any) -> np.dtype[np.void]:
    """Names with their type behind them, ("x y radius", "<f4"), one behind the other."""
    return np.dtype([(name, kind) for names, kind in fields for name in names.split()])


_DISC = (("x y radius sun_x sun_y phase_cosine", "<f4"), ("lit dark", COLOUR), ("glow", GLOW), ("object", OBJECT))

RUN = _dtype(("type layer first count", "<i4"))
POINT = _dtype(("x y radius", "<f4"), ("colour", COLOUR), ("glow", GLOW), ("object", OBJECT))
DISC = _dtype(*_DISC)
SHADOW = _dtype(("x y inner outer middle disc_x disc_y disc_radius", "<f4"),
                ("inner_colour middle_colour outer_colour", COLOUR), ("object", OBJECT))
POLYLINE = _dtype(("first count", "<i4"), ("width dash", "<f4"), ("colour", COLOUR), ("flags", "<u4"),
                  ("object", OBJECT))
ELLIPSE = _dtype(("x y larger smaller angle width dash", "<f4"), ("colour", COLOUR), ("object", OBJECT))
POLYGON = _dtype(("first count", "<i4"), ("colour edge", COLOUR), ("softness", "<f4"), ("object", OBJECT))
GRADIENT = _dtype(("corner_x corner_y", ("<f4", 4)), ("begin_x begin_y end_x end_y middle", "<f4"),
                  ("begin_colour middle_colour end_colour", COLOUR), ("object", OBJECT))
TEXT = _dtype(("x y anchor size", "<f4"), ("first length", "<i4"), ("style", "<u4"), ("colour", COLOUR),
              ("object", OBJECT))
MESH = _dtype(("left top right bottom", "<f4"), ("columns rows first", "<i4"), ("object", OBJECT))
GLOBE = _dtype(*_DISC, ("turn", ("<f4", (3, 3))), ("flattening limb_darkening ring_inner ring_outer", "<f4"),
               ("ring_first ring_count map", "<i4"), ("sky", COLOUR))
RING = _dtype(("first count", "<i4"))
VERTEX = _dtype(("x y", "<f4"))

# Number and records of each array (SceneArrayKind).
ARRAYS: dict[str, tuple[int, np.dtype[Any]]] = {
    "points": (0, POINT), "discs": (1, DISC), "shadows": (2, SHADOW), "polylines": (3, POLYLINE),
    "ellipses": (4, ELLIPSE), "polygons": (5, POLYGON), "gradients": (6, GRADIENT), "texts": (7, TEXT),
    "meshes": (8, MESH), "globes": (9, GLOBE), "runs": (100, RUN), "rings": (101, RING), "vertices": (102, VERTEX),
    "colours": (103, np.dtype([("rgba", COLOUR)])), "text_bytes": (104, np.dtype("u1")),
}
