# SPDX-FileCopyrightText: the common_interfaces authors
# SPDX-License-Identifier: MIT
"""Draws a chart of the sky with matplotlib.

usage: chart.py [PICTURE [OBJECT [ZOOM]]]
"""
import datetime
import sys

import matplotlib
import numpy as np

matplotlib.use("Agg")
import matplotlib.collections as mc  # noqa: E402
import matplotlib.pyplot as plt  # noqa: E402

import common_interfaces as ci  # noqa: E402

DPI = 100
CLOSED, ITALIC, BOLD = 1, 1, 2


def colours(records, name="colour"):
    """Shape (n, 4), 0 to 1."""
    return records[name] / 255.0


def draw_lines(axes, frame, records, order):
    paths = []
    for line in records:
        path = frame.vertices[line["first"]:line["first"] + line["count"]]
        paths.append(np.vstack([path, path[:1]]) if line["flags"] & CLOSED else path)
    dashes = [(0, (d / w, d / w)) if d > 0 else "solid" for d, w in zip(records["dash"], np.maximum(records["width"], 0.1))]
    axes.add_collection(mc.LineCollection(paths, colors=colours(records), linewidths=records["width"] * 72 / DPI,
                                          linestyles=dashes, zorder=order))


def draw_points(axes, frame, records, order):
    axes.add_collection(mc.EllipseCollection(2 * records["radius"], 2 * records["radius"], np.zeros(len(records)),
                                             units="xy", offsets=np.column_stack([records["x"], records["y"]]),
                                             offset_transform=axes.transData, facecolors=colours(records),
                                             edgecolors="none", zorder=order))


def draw_discs(axes, frame, records, order):
    """A lit half, and half an ellipse that the phase makes: both turned towards the Sun."""
    for disc in records:
        angle = np.linspace(-np.pi / 2, np.pi / 2, 60)
        across = np.concatenate([np.cos(angle), -disc["phase_cosine"] * np.cos(angle[::-1])])
        along = np.concatenate([np.sin(angle), np.sin(angle[::-1])])
        sun = np.array([disc["sun_x"], disc["sun_y"]])
        side = np.array([-sun[1], sun[0]])
        lit = [disc["x"], disc["y"]] + disc["radius"] * (np.outer(across, sun) + np.outer(along, side))
        axes.add_patch(plt.Circle((disc["x"], disc["y"]), disc["radius"], color=disc["dark"] / 255, zorder=order, lw=0))
        axes.fill(*lit.T, color=disc["lit"] / 255, zorder=order, lw=0)


def draw_ellipses(axes, frame, records, order):
    axes.add_collection(mc.EllipseCollection(2 * records["larger"], 2 * records["smaller"], np.degrees(records["angle"]),
                                             units="xy", offsets=np.column_stack([records["x"], records["y"]]),
                                             offset_transform=axes.transData, facecolors="none",
                                             edgecolors=colours(records), linewidths=records["width"] * 72 / DPI,
                                             zorder=order))


def draw_polygons(axes, frame, records, order):
    """Rings one behind the other in a path: what lies within two of them is a hole."""
    for area in records:
        rings = frame.rings[area["first"]:area["first"] + area["count"]]
        paths = [matplotlib.path.Path(np.vstack([v, v[:1]]), closed=True) for v in
                 (frame.vertices[ring["first"]:ring["first"] + ring["count"]] for ring in rings)]
        patch = matplotlib.patches.PathPatch(matplotlib.path.Path.make_compound_path(*paths), zorder=order, lw=0,
                                             facecolor=area["colour"] / 255)
        axes.add_patch(patch)


def draw_meshes(axes, frame, records, order):
    for mesh in records:
        nodes = frame.colours[mesh["first"]:mesh["first"] + mesh["columns"] * mesh["rows"]]
        nodes = nodes.reshape(mesh["rows"], mesh["columns"], 4)
        # The outermost nodes lie on the edges, and those of a picture half a cell within.
        x, y = [(b - a) / (n - 1) / 2 for a, b, n in ((mesh["left"], mesh["right"], mesh["columns"]),
                                                      (mesh["top"], mesh["bottom"], mesh["rows"]))]
        axes.imshow(nodes, extent=(mesh["left"] - x, mesh["right"] + x, mesh["bottom"] + y, mesh["top"] - y),
                    interpolation="bilinear", zorder=order, aspect="auto")


def draw_texts(axes, frame, records, order):
    data = frame.text_bytes.tobytes()
    for text in records:
        says = data[text["first"]:text["first"] + text["length"]].decode()
        axes.text(text["x"], text["y"], says, fontsize=text["size"] * 72 / DPI, color=text["colour"] / 255, va="baseline",
                  ha={0.0: "left", 0.5: "center", 1.0: "right"}[float(text["anchor"])], zorder=order,
                  style="italic" if text["style"] & ITALIC else "normal",
                  weight="bold" if text["style"] & BOLD else "normal", clip_on=True, parse_math=False)


# By the type of a run; shadows and gradients are left out.
PAINTERS = {0: ("points", draw_points), 1: ("discs", draw_discs), 3: ("polylines", draw_lines),
            4: ("ellipses", draw_ellipses), 5: ("polygons", draw_polygons), 7: ("texts", draw_texts),
            8: ("meshes", draw_meshes), 9: ("globes", draw_discs)}


def draw(frame, view, file):
    figure = plt.figure(figsize=(view.width / DPI, view.height / DPI), dpi=DPI, facecolor="black")
    axes = figure.add_axes((0, 0, 1, 1))
    axes.set_axis_off()
    for order, run in enumerate(frame.runs):
        if run["type"] in PAINTERS:
            name, painter = PAINTERS[run["type"]]
            painter(axes, frame, getattr(frame, name)[run["first"]:run["first"] + run["count"]], order)
    axes.set(xlim=(0, view.width), ylim=(view.height, 0))
    figure.savefig(file, facecolor="black")
    plt.close(figure)


def main():
    file, name, zoom = (sys.argv[1:] + ["chart.png", "Betelgeuse", "1.3"][len(sys.argv) - 1:])[:3]
    moment = datetime.datetime(2026, 1, 15, 21, 0, tzinfo=datetime.timezone.utc)
    with ci.Sky(language="en") as sky:
        sky.view = ci.View(latitude=50.1, longitude=8.7, julian_date=ci.to_julian_date(moment), azimuth=180, altitude=40,
                           zoom=float(zoom), width=1200, height=800)
        sky.look_at(sky.find(name))
        draw(sky.compute(), sky.view, file)
        shown = sky.describe_frame()
        print(f"{file}: {shown.stars} stars, {shown.deepsky} deep-sky objects, {shown.bodies} bodies")


if __name__ == "__main__":
    main()
