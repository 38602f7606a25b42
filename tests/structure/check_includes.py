#!/usr/bin/env python3
"""Checks who includes whom: lower storeys never include higher ones, and no circle runs through the files.

usage: check_includes.py SOURCE_DIR
"""
import os
import re
import sys

# From the ground up. A place may include its own storey and those below it that it names here.
MAY_INCLUDE = {
    "utils": set(),
    "astro": {"utils"},
    "text_base": {"utils", "astro"},
    "settings": {"text_base", "utils", "astro"},
    "output": {"settings", "text_base", "utils", "astro"},
    "catalogs": {"output", "settings", "text_base", "utils", "astro"},
    "render": {"output", "settings", "text_base", "utils", "astro"},
    "camera": {"output", "settings", "text_base", "utils", "astro"},
    "thread": set(),
    "text_status": {"camera", "output", "settings", "text_base", "utils", "astro"},
    "umbrella": {"catalogs", "render", "text_status", "thread", "camera", "output", "settings", "text_base", "utils", "astro"},
}
LIBRARY = MAY_INCLUDE["umbrella"] - {"thread"} | {"umbrella"}

# The rooms of scene from the ground up: each uses the library and the rooms before it.
SCENE_ROOMS = ["view", "catalogs", "visibility", "display", "bodies", "chart", "frame", "search", "almanac", "words", "session", "interface_c", "umbrella"]
for place, room in enumerate(SCENE_ROOMS):
    MAY_INCLUDE["scene/" + room] = LIBRARY | {"scene/" + below for below in SCENE_ROOMS[:place]}

# The rooms of skydata, which all may use the library and what the scene reads.
ROOMS = {"files": set(), "settings/text": {"files"}, "settings/reader": {"files", "settings/text"}, "strings": {"files"}, "stars": {"files"}}
ROOMS["settings"] = {"files", "settings/text", "settings/reader"}
for room in ["build", "lint", "show"]:
    ROOMS[room] = {"strings", "stars", "settings", *ROOMS["settings"]}
ROOMS["commands"] = {*ROOMS}
ROOMS[""] = {*ROOMS}
for room, below in ROOMS.items():
    MAY_INCLUDE["skydata/" + room] = LIBRARY | {"scene/view", "scene/catalogs"} | {"skydata/" + name for name in below}

# Above the libraries: a painter, and the program.
SCENE = {"scene/" + room for room in SCENE_ROOMS}
MAY_INCLUDE["paint"] = LIBRARY | SCENE
MAY_INCLUDE["skyview"] = LIBRARY | SCENE | {"paint"}

# Places that see of the places below them exported headers only; a painter has no others.
SEES_EXPORTED_ONLY = ("scene/", "paint/", "skyview/", "skydata/")
EXPORTED = ("include/", "companions/utils/include/", "companions/astro/include/", "scene/include/", "paint/")

# The storey of each public header of the library; a private file has that of its folder.
PUBLIC = {
    "api.h": None,
    "string_table.h": "text_base", "text_formats.h": "text_base", "units.h": "text_base", "dates.h": "text_base",
    "date.h": "text_base", "record_lines.h": "text_base", "refraction.h": "text_base",
    "status_strings.h": "text_status",
    "field_data.h": "settings", "settings_field.h": "settings", "queries.h": "settings",
    "settings_data.h": "settings", "field_names.h": "settings", "item_engine.h": "settings",
    "object_kinds.h": "output", "star_data.h": "output", "record_source.h": "output", "output_pool.h": "output",
    "object_outputs.h": "output", "orbit_info.h": "output", "object_shadow_map.h": "output", "clipping.h": "output",
    "record_conversion.h": "output", "variable_stars.h": "output", "star_download.h": "output",
    "object_lists.h": "catalogs", "planets_and_moons.h": "catalogs", "sky_images.h": "catalogs",
    "object_articles.h": "catalogs", "flight_objects.h": "catalogs", "panoramas.h": "catalogs",
    "gazetteers.h": "catalogs", "meteor_showers.h": "catalogs", "observation_times.h": "catalogs",
    "render_settings.h": "render", "path_line.h": "render", "fading_value.h": "render",
    "daylight_savings.h": "camera", "zoom_dependence.h": "camera", "moving_modes.h": "camera",
    "camera.h": "camera", "camera_state.h": "camera", "home_parameters.h": "camera", "marker_info.h": "camera",
    "play_desc.h": "camera",
    "projection.h": "camera",
    "thread.h": "thread",
    "common_interfaces.h": "umbrella",
}
FOLDER = {"text/status_strings": "text_status", "text": "text_base", "settings": "settings", "output": "output", "catalogs": "catalogs", "render": "render", "camera": "camera",
          "thread": "thread",
          **{"scene/" + room: "scene/" + room for room in SCENE_ROOMS if room != "umbrella"},
          "paint": "paint", "skyview": "skyview",
          **{"skydata/" + room if room else "skydata": "skydata/" + room for room in ROOMS},
          "companions/utils": "utils", "companions/astro": "astro"}


def storey(path):
    if path == "scene/include/scene/api.h":
        return None
    if path.startswith("scene/include/"):  # scene/include/scene/ROOM/NAME.h
        room = path.split("/")[3]
        return "scene/umbrella" if room == "scene.h" else "scene/interface_c" if room.endswith(".h") else "scene/" + room
    if path.startswith("include/common_interfaces/"):
        name = os.path.basename(path)
        if name not in PUBLIC:
            raise SystemExit(f"{path}: not in the list of public headers of {__file__}")
        return PUBLIC[name]
    for folder, name in FOLDER.items():
        if path.startswith((folder + "/", folder + ".", folder + "_")):
            return name
    return None


def sources(root):
    for top in ["include", "scene/include", *FOLDER]:
        for folder, _, files in os.walk(os.path.join(root, top)):
            for name in files:
                if name.endswith((".h", ".cpp", ".inc")):
                    yield os.path.relpath(os.path.join(folder, name), root)


def resolve(root, path, include):
    for base in ["", "include", "companions/utils/include", "companions/astro/include", "scene/include",
                 os.path.dirname(path)]:
        candidate = os.path.normpath(os.path.join(base, include))
        if os.path.exists(os.path.join(root, candidate)):
            return candidate
    return None


def find_circle(graph):
    state, trail = {}, []

    def visit(node):
        state[node] = 1
        trail.append(node)
        for target in graph.get(node, ()):
            if state.get(target) == 1:
                return trail[trail.index(target):] + [target]
            if target not in state:
                circle = visit(target)
                if circle:
                    return circle
        trail.pop()
        state[node] = 2
        return None

    for node in graph:
        if node not in state:
            circle = visit(node)
            if circle:
                return circle
    return None


def main():
    root = sys.argv[1]
    graph, bad = {}, []
    for path in sources(root):
        own = storey(path)
        graph[path] = []
        with open(os.path.join(root, path), encoding="utf-8") as text:
            for number, line in enumerate(text, 1):
                match = re.match(r'\s*#\s*include\s*[<"]([^">]+)[">]', line)
                target = match and resolve(root, path, match.group(1))
                if not target:
                    continue
                graph[path].append(target)
                other = storey(target)
                if own and other and other != own and other not in MAY_INCLUDE[own]:
                    bad.append(f"{path}:{number}: {own} must not include {other} ({target})")
                if path.startswith(EXPORTED) and not target.startswith(EXPORTED):
                    bad.append(f"{path}:{number}: a public header includes the private {target}")
                top = path.split("/")[0] + "/"
                if top in SEES_EXPORTED_ONLY and not target.startswith((top, *EXPORTED)):
                    bad.append(f"{path}:{number}: {top} sees exported headers only, not {target}")
    circle = find_circle(graph)
    if circle:
        bad.append("circle: " + " -> ".join(circle))
    print("\n".join(bad) if bad else f"{len(graph)} files, no include out of order, no circle")
    return 1 if bad else 0


if __name__ == "__main__":
    sys.exit(main())
