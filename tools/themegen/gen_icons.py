#!/usr/bin/env python3
"""Writes the SVG sources of the icon set into resources/icons/.

Usage: tools/themegen/gen_icons.py

Glyph icons are drawn on a 16-pixel grid with 1.5-pixel strokes in two
variants (iconnames.py): dark grey glyphs for light backgrounds and light grey
glyphs for the Dark theme; hover states take the accent colour, pressed states
the deeper accent. Colourful icons exist once. The mini toggle buttons are also
the sources of the multi-size ICO files the build makes with tools/iconpack.
"""
import math
import os
import random
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
OUT = os.path.join(ROOT, "resources", "icons")
sys.path.insert(0, HERE)

from iconnames import NEUTRAL, svg_file  # noqa: E402

# Glyph colours per variant.
LIGHT = {"fg": "#3c3c3c", "soft": "#8a8a8a", "ac": "#0b6bd4", "acDeep": "#0857ae", "bg": "#ffffff",
         "track": "#ffffff", "trackLine": "#8a8a8a", "knob": "#6a6a6a"}
DARK = {"fg": "#d2d2d2", "soft": "#8c8c8c", "ac": "#5aa2f0", "acDeep": "#3b8eea", "bg": "#1d1d1d",
        "track": "#1d1d1d", "trackLine": "#8c8c8c", "knob": "#bdbdbd"}
RED = "#d13438"
AMBER = "#f0a30a"


def svg(body, size=16):
    return ('<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" width="%d" height="%d" '
            'viewBox="0 0 %d %d">\n%s\n</svg>\n' % (size, size, size, size, body))


def stroke(d, color, width=1.5, extra=""):
    return ('<path d="%s" fill="none" stroke="%s" stroke-width="%s" stroke-linecap="round" '
            'stroke-linejoin="round"%s/>' % (d, color, width, extra))


def fill(d, color, extra=""):
    return '<path d="%s" fill="%s"%s/>' % (d, color, extra)


def circle(cx, cy, r, fill_color="none", stroke_color="none", width=1.5, extra=""):
    return ('<circle cx="%s" cy="%s" r="%s" fill="%s" stroke="%s" stroke-width="%s"%s/>'
            % (cx, cy, r, fill_color, stroke_color, width, extra))


def rect(x, y, w, h, fill_color="none", stroke_color="none", width=1, rx=0):
    return ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s" stroke="%s" stroke-width="%s"/>'
            % (x, y, w, h, rx, fill_color, stroke_color, width))


# ---- glyph drawings: each takes the ink colour and the variant ---------------------------------
def g_plus(c, v):
    return stroke("M8 3v10M3 8h10", c)


def g_pencil(c, v):
    return stroke("M3 13l1-3.5 7-7 2.5 2.5-7 7z M9.5 4l2.5 2.5", c, 1.25)


def g_add_edit(c, v):
    return stroke("M5 1.5v7M1.5 5h7", c) + stroke("M6 14l.7-2.6 5-5 1.9 1.9-5 5z", c, 1.25)


def g_trash(c, v):
    return stroke("M2.5 4.5h11M6 4.5V2.5h4v2M4 4.5l.8 9h6.4l.8-9M6.8 7v4.5M9.2 7v4.5", c, 1.25)


def g_download(c, v):
    return stroke("M8 2v8M4.5 6.5L8 10l3.5-3.5M2.5 11v2.5h11V11", c)


def g_replace(c, v):
    return stroke("M3 6.5a5 5 0 0 1 9-2.5M12.5 1.5V4.5H9.5M13 9.5a5 5 0 0 1-9 2.5M3.5 14.5v-3h3", c, 1.35)


def g_duplicate(c, v):
    return rect(5.5, 5.5, 8, 8, "none", c, 1.25, 1) + stroke("M3.5 10.5h-1v-8h8v1", c, 1.25)


def g_check(c, v):
    return stroke("M3 8.5l3.3 3.3L13 4.5", c, 2)


def g_search(c, v):
    return circle(6.5, 6.5, 4.25, "none", c, 1.5) + stroke("M9.7 9.7L14 14", c, 1.75)


def g_clear(c, v):
    return circle(8, 8, 6.5, v["soft"]) + stroke("M5.5 5.5l5 5M10.5 5.5l-5 5", v["bg"], 1.5)


def g_dots(c, v):
    return circle(3, 8, 1.4, c) + circle(8, 8, 1.4, c) + circle(13, 8, 1.4, c)


def g_delete_node(c, v):
    return stroke("M4.5 4.5l7 7M11.5 4.5l-7 7", c, 1.75)


def g_branch_closed(c, v):
    return fill("M6 4l5 4-5 4z", c)


def g_branch_open(c, v):
    return fill("M4 6h8l-4 5z", c)


def g_grid(c, v):
    return (rect(2.5, 2.5, 4.5, 4.5, "none", c, 1.25) + rect(9, 2.5, 4.5, 4.5, "none", c, 1.25)
            + rect(2.5, 9, 4.5, 4.5, "none", c, 1.25) + rect(9, 9, 4.5, 4.5, "none", c, 1.25))


def g_browser(c, v):
    return rect(1.75, 2.75, 12.5, 10.5, "none", c, 1.25, 1) + stroke("M2 5.5h12M6 5.5v7.5", c, 1.25)


def g_edit_material(c, v):
    # A material sphere with a pencil over its shoulder.
    return (circle(6.5, 9.5, 4.75, "none", c, 1.25) + stroke("M4.5 8a2.5 2.5 0 0 1 2-1.9", c, 1)
            + stroke("M8.5 9l.6-2.2 4.3-4.3 1.6 1.6-4.3 4.3z", c, 1.15))


def g_edit_material_open(c, v):
    return rect(2, 2, 12, 12, "none", c, 1.25, 1) + stroke("M6.5 9.5l3-3M6.5 6.5h3v3", c, 1.35)


def g_edit_material_close(c, v):
    return rect(2, 2, 12, 12, "none", c, 1.25, 1) + stroke("M5.5 5.5l5 5M10.5 5.5l-5 5", c, 1.35)


def g_exchange(c, v):
    return stroke("M2.5 5.5h10M10 3l2.5 2.5L10 8M13.5 10.5h-10M6 8l-2.5 2.5L6 13", c, 1.35)


def g_node(c, v, filled):
    d = "M8 2.5l4.5 4.5v6.5h-9V7z"
    return fill(d, c) if filled else fill(d, v["bg"]) + stroke(d, c, 1.25)


def g_panel(c, v, chevron):
    return rect(1.75, 2.75, 12.5, 10.5, "none", c, 1.25, 1) + stroke("M5.5 3v10", c, 1.25) + stroke(chevron, c, 1.35)


def g_tree(c, v, chevron):
    return (stroke("M3 3v9h3M3 7.5h3", c, 1.25) + rect(6.5, 5.75, 3.5, 3.5, c, "none")
            + rect(6.5, 10.25, 3.5, 3.5, c, "none") + stroke(chevron, c, 1.35))


def g_cube(c, v):
    return stroke("M8 1.75l5.5 3v6.5L8 14.25l-5.5-3V4.75zM2.5 4.75L8 7.75l5.5-3M8 7.75v6.5", c, 1.25)


def g_archive(c, v):
    return (rect(1.75, 2.75, 12.5, 3.5, "none", c, 1.25) + stroke("M2.75 6.25v7h10.5v-7M6 9h4", c, 1.25))


def g_book(c, v):
    return stroke("M3 2.5h8.5v11H4.5A1.5 1.5 0 0 1 3 12zM3 12a1.5 1.5 0 0 1 1.5-1.5h7", c, 1.25)


def g_lib_editing(c, v):
    return g_book(c, v) + stroke("M9 11.5l.5-2 4-4 1.5 1.5-4 4z", v["ac"], 1.25)


def g_library(c, v):
    return stroke("M2.5 2.5v11M5.5 2.5v11M8.5 3.5l3.6 10", c, 1.75) + stroke("M1.5 13.75h13", c, 1)


def g_refresh(c, v):
    return stroke("M13 8a5 5 0 1 1-1.5-3.5M13 2v3h-3", c, 1.5)


def g_link(c, v):
    return (stroke("M7 9a2.5 2.5 0 0 0 3.5 0l2.5-2.5a2.5 2.5 0 0 0-3.5-3.5L8.5 4", c, 1.5)
            + stroke("M9 7a2.5 2.5 0 0 0-3.5 0L3 9.5A2.5 2.5 0 0 0 6.5 13l1-1", c, 1.5))


def g_gear(c, v):
    spokes = "".join("M%.2f %.2fL%.2f %.2f" % (8 + 4.5 * math.cos(a), 8 + 4.5 * math.sin(a),
                                            8 + 6.5 * math.cos(a), 8 + 6.5 * math.sin(a))
                     for a in [i * math.pi / 4 for i in range(8)])
    return stroke(spokes, c, 2.2) + circle(8, 8, 3.75, "none", c, 1.75) + circle(8, 8, 1.2, c)


def g_collapse(c, v):
    return stroke("M4 9.5L8 6l4 3.5M4 13L8 9.5l4 3.5", c, 1.35) + stroke("M3 3h10", c, 1.35)


def g_expand(c, v):
    return stroke("M4 3l4 3.5L12 3M4 6.5L8 10l4-3.5", c, 1.35) + stroke("M3 13h10", c, 1.35)


def g_eye(c, v):
    return stroke("M1.5 8S4 3.5 8 3.5 14.5 8 14.5 8 12 12.5 8 12.5 1.5 8 1.5 8z", c, 1.25) + circle(8, 8, 2, c)


def g_eye_off(c, v):
    return g_eye(c, v) + stroke("M2.5 13.5l11-11", v["bg"], 3) + stroke("M2.5 13.5l11-11", c, 1.35)


def g_picker(c, v):
    return (stroke("M9.5 3.5l3 3M2.5 13.5l1-3 6-6 2 2-6 6z", c, 1.35)
            + fill("M10.5 2.5a1.9 1.9 0 0 1 2.7 0l.3.3a1.9 1.9 0 0 1 0 2.7l-1.3 1.3-3-3z", c))


def g_lock(c, v):
    return rect(3, 7, 10, 7, c, "none", 1, 1) + stroke("M5 7V5a3 3 0 0 1 6 0v2", c, 1.5) + circle(8, 10.5, 1.1, v["bg"])


def g_select_material(c, v):
    return circle(10.5, 5.5, 4, "none", c, 1.25) + fill("M2 6.5l7 2.5-3 1 2.5 3.5-1.3.9-2.5-3.4-2 2.2z", c)


def g_extension(c, v):
    return stroke("M3.5 4l4 4-4 4M8.5 4l4 4-4 4", c, 1.5)


def g_folder(c, v):
    return stroke("M1.75 4.5V3h4.5l1.5 1.5h6.5v8.5H1.75z", c, 1.25) + stroke("M1.75 6.5h12.5", c, 1)


def g_help(c, v):
    return (circle(8, 8, 6.5, "none", c, 1.35) + stroke("M6 6.3a2 2 0 1 1 2.8 1.8c-.6.3-.8.7-.8 1.3v.3", c, 1.5)
            + circle(8, 11.6, 0.9, c))


def g_home(c, v):
    return stroke("M2 7.5L8 2.5l6 5M3.75 6.5v7h3v-4h2.5v4h3v-7", c, 1.35)


# ---- colourful icons -------------------------------------------------------------------------
def n_alert():
    return circle(8, 8, 7, RED) + stroke("M8 4v5", "#ffffff", 2) + circle(8, 11.75, 1.1, "#ffffff")


def n_warning(size=16):
    s = size / 16.0
    tri = "M%s %sL%s %sH%sz" % (8 * s, 1 * s, 15.2 * s, 14.5 * s, 0.8 * s)
    return (fill(tri, AMBER, ' stroke="#b67800" stroke-width="%s" stroke-linejoin="round"' % (0.75 * s))
            + stroke("M%s %sv%s" % (8 * s, 5.5 * s, 4 * s), "#1e1e1e", 1.75 * s)
            + circle(8 * s, 12 * s, 1.05 * s, "#1e1e1e"))


def doc(color="#ffffff", outline="#6b6b6b"):
    return fill("M3.5 1.5h6l3 3v10h-9z", color, ' stroke="%s" stroke-width="1"' % outline) + \
        stroke("M9.5 1.5v3h3", outline, 1)


def n_missing_file():
    return doc() + stroke("M6 8l4 4M10 8l-4 4", RED, 1.75)


def n_missing_asset():
    return (rect(2, 2, 12, 12, "#ffffff", "#8a8a8a", 1, 1.5)
            + stroke("M6 6.2a2 2 0 1 1 2.8 1.8c-.6.3-.8.7-.8 1.3v.4", "#6b6b6b", 1.5)
            + circle(8, 12, 0.9, "#6b6b6b"))


def n_missing_image():
    return (rect(1.5, 2.5, 13, 11, "#eaf2fb", "#6b6b6b", 1, 1) + fill("M2 13l4-5 3 3.5 2-2 3 3.5z", "#7fa7d8")
            + stroke("M2 14l12-12", RED, 1.75))


def n_invalid_library():
    return (stroke("M3 2.5h8.5v11H4.5A1.5 1.5 0 0 1 3 12zM3 12a1.5 1.5 0 0 1 1.5-1.5h7", "#6b6b6b", 1.25)
            + circle(11, 11, 4, "#ffffff", RED, 1.5) + stroke("M8.3 13.7l5.4-5.4", RED, 1.5))


def n_hue_wheel():
    parts = []
    n = 24
    for i in range(n):
        a0, a1 = 2 * math.pi * i / n - math.pi / 2, 2 * math.pi * (i + 1.05) / n - math.pi / 2
        hue = i / n
        r, g, b = hsv(hue, 1, 1)
        parts.append(fill("M8 8L%.3f %.3fA7 7 0 0 1 %.3f %.3fz" % (8 + 7 * math.cos(a0), 8 + 7 * math.sin(a0),
                                                                   8 + 7 * math.cos(a1), 8 + 7 * math.sin(a1)),
                          "#%02x%02x%02x" % (r, g, b)))
    parts.append(circle(8, 8, 2.75, "#ffffff"))
    return "".join(parts)


def hsv(h, s, v):
    i = int(h * 6) % 6
    f = h * 6 - int(h * 6)
    p, q, t = v * (1 - s), v * (1 - f * s), v * (1 - (1 - f) * s)
    r, g, b = [(v, t, p), (q, v, p), (p, v, t), (p, q, v), (t, p, v), (v, p, q)][i]
    return int(r * 255 + 0.5), int(g * 255 + 0.5), int(b * 255 + 0.5)


def n_color_book():
    colors = ["#d13438", "#f0a30a", "#2e9e4f", "#0b6bd4"]
    return "".join('<rect x="6.5" y="1.5" width="4" height="12" rx="1" fill="%s" stroke="#404040" '
                   'stroke-width="0.75" transform="rotate(%d 8.5 13)"/>' % (col, -45 + 30 * i)
                   for i, col in enumerate(colors)) + circle(8.5, 13, 1, "#404040")


STAR = "M8 1.5l1.9 4.1 4.5.5-3.3 3 .9 4.4L8 11.3l-3.9 2.2.9-4.4-3.3-3 4.5-.5z"


def n_favorite():
    return fill(STAR, "#f5b400", ' stroke="#b88400" stroke-width="0.9" stroke-linejoin="round"')


def n_favorites16():
    return fill(STAR, "none", ' stroke="#d99a00" stroke-width="1.5" stroke-linejoin="round"')


def n_cloud():
    return fill("M4.5 12.5a3 3 0 0 1-.4-6 4 4 0 0 1 7.6-1 3.5 3.5 0 0 1 .3 7z", "#2f86e0",
                ' stroke="#1f62aa" stroke-width="0.8"')


def n_gradient_diamond():
    return ('<defs><linearGradient id="g" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#ffffff"/>'
            '<stop offset="1" stop-color="#3a3a3a"/></linearGradient></defs>'
            + fill("M8 1.5l6 6.5-6 6.5-6-6.5z", "url(#g)", ' stroke="#7a7a7a" stroke-width="1"'))


def grad(id_, stops, x2=1, y2=0, kind="linear"):
    s = "".join('<stop offset="%s" stop-color="%s"/>' % (o, c) for o, c in stops)
    if kind == "radial":
        return '<defs><radialGradient id="%s" cx="8" cy="8" r="7" gradientUnits="userSpaceOnUse">%s' \
               '</radialGradient></defs>' % (id_, s)
    return '<defs><linearGradient id="%s" x1="0" y1="0" x2="%s" y2="%s">%s</linearGradient></defs>' % (
        id_, x2, y2, s)


FRAME = ' stroke="#5a5a5a" stroke-width="1"'


def tile(content, fill_color):
    """A 13-pixel swatch with a thin frame: the common shape of the material type icons."""
    # The SVG renderer has no clip paths: every drawing stays inside the swatch by construction.
    return ('<rect x="1.5" y="1.5" width="13" height="13" rx="1" fill="%s"/>' % fill_color
            + content
            + '<rect x="1.5" y="1.5" width="13" height="13" rx="1" fill="none" stroke="#5a5a5a" stroke-width="1"/>')


def n_checker():
    cells = "".join(rect(1.5 + 3.25 * x, 1.5 + 3.25 * y, 3.25, 3.25, "#2a2a2a")
                    for x in range(4) for y in range(4) if (x + y) % 2)
    return tile(cells, "#ffffff")


def n_diagonal():
    lines = []
    for k in range(-9, 13, 4):  # lines x - y = k inside the square [2, 14]
        x0, y0 = max(2, 2 + k), max(2, 2 - k)
        x1, y1 = min(14, 14 + k), min(14, 14 - k)
        if x1 - x0 > 0.5:
            lines.append(stroke("M%s %sL%s %s" % (x0, y0, x1, y1), "#3f6fb5", 1.6))
    return tile("".join(lines), "#dfe9f7")


def n_gradient16():
    return grad("g", [(0, "#1e1e1e"), (1, "#ffffff")], 1, 1) + tile("", "url(#g)")


def n_linear16():
    return grad("g", [(0, "#0b6bd4"), (1, "#ffffff")]) + tile("", "url(#g)")


def n_linear_asym():
    return grad("g", [(0, "#0b6bd4"), (0.25, "#ffffff"), (1, "#0b6bd4")]) + tile("", "url(#g)")


def n_radial16():
    return grad("g", [(0, "#ffffff"), (1, "#0b6bd4")], kind="radial") + tile("", "url(#g)")


def n_sweep16():
    parts = []
    for i in range(16):
        a0, a1 = 2 * math.pi * i / 16, 2 * math.pi * (i + 1.05) / 16
        v = int(40 + 200 * i / 15)
        parts.append(fill("M8 8L%.3f %.3fA6 6 0 0 1 %.3f %.3fz" % (8 + 6 * math.cos(a0), 8 + 6 * math.sin(a0),
                                                                 8 + 6 * math.cos(a1), 8 + 6 * math.sin(a1)),
                          "#%02x%02x%02x" % (v, v, v)))
    return tile("".join(parts), "#808080")


def n_pong16():
    return grad("g", [(0, "#0b6bd4"), (0.5, "#ffffff"), (1, "#0b6bd4")], 1, 0) + tile("", "url(#g)")


def n_noise16():
    rnd = random.Random(16)
    cells = "".join(rect(1.5 + x * 1.625, 1.5 + y * 1.625, 1.7, 1.7,
                         "#%02x%02x%02x" % ((lambda v: (v, v, v))(rnd.randint(60, 230))))
                    for x in range(8) for y in range(8))
    return tile(cells, "#909090")


def n_speckle16():
    rnd = random.Random(7)
    dots = "".join(circle(round(rnd.uniform(3.2, 12.8), 2), round(rnd.uniform(3.2, 12.8), 2), round(rnd.uniform(0.5, 1.1), 2),
                          rnd.choice(["#5a4632", "#8b6d4c", "#2f2f2f"])) for _ in range(22))
    return tile(dots, "#e8dcc6")


def n_spiral16():
    pts = []
    for i in range(90):
        t = i / 89 * 4.2 * math.pi
        r = 0.45 * t
        pts.append("%.2f %.2f" % (8 + r * math.cos(t), 8 + r * math.sin(t)))
    return tile(stroke("M" + "L".join(pts), "#7a3fb5", 1.2), "#efe6f8")


def n_tartan16():
    bands = (rect(1.5, 4, 13, 3, "#1f4f8f", "none") + rect(4, 1.5, 3, 13, "#1f4f8f", "none")
             + rect(1.5, 10, 13, 1.5, "#2e7d3a", "none") + rect(10, 1.5, 1.5, 13, "#2e7d3a", "none")
             + rect(1.5, 4, 13, 3, "#c8323c", "none").replace('fill="#c8323c"', 'fill="#c8323c" fill-opacity="0.35"'))
    return tile(bands, "#c8323c")


def n_tiles16():
    mortar = "#e6e1da"
    rows = []
    for r in range(4):
        y = 1.5 + r * 3.25
        off = 0 if r % 2 == 0 else -3.25
        for cidx in range(4):
            x0 = max(1.9, 1.5 + off + cidx * 6.5 + 0.4)
            x1 = min(14.1, 1.5 + off + cidx * 6.5 + 6.1)
            if x1 - x0 > 0.5:
                rows.append(rect(round(x0, 2), y + 0.4, round(x1 - x0, 2), 2.45, "#b5553a", "none"))
    return tile("".join(rows), mortar)


def n_waves16():
    waves = "".join(stroke("M2.5 %s q1.5 -1.6 3 0 t3 0 t3 0 t2 0" % y, "#ffffff", 1.1) for y in (4.5, 7.5, 10.5, 13.2))
    return tile(waves, "#2a7fc9")


def n_wood16():
    grain = "".join(stroke("M2 %s c4 %s 8 %s 12 0" % (y, d, -d), "#7a4a22", 0.9)
                    for y, d in ((3.5, 1.2), (6, -1.2), (9, 1.5), (12.5, -1)))
    return tile(grain + '<ellipse cx="10" cy="7.5" rx="1.8" ry="1" fill="none" stroke="#7a4a22" stroke-width="0.8"/>',
                "#c98b52")


def n_marble16():
    veins = (stroke("M2 5c3 1 3-2 6 0s3 2 6 1", "#7d7d8c", 0.9) + stroke("M2 12c3-2 5 1 7-1s3-2 5-1.5", "#9a9aab", 0.7)
             + stroke("M6 2c1 3-1 5 2 7.5", "#a7a7b6", 0.6))
    return tile(veins, "#f1f0f4")


def n_image16():
    return tile(circle(11, 5, 1.6, "#f5c400") + fill("M1.5 14.5V13l4.5-5 3.5 4 2-2 3 3.2v1.3z", "#3b8f4a"), "#bfe0ff")


def n_box16():
    return (fill("M8 1.75l5.75 3v6.5L8 14.25l-5.75-3v-6.5z", "#d8ad72")
            + fill("M8 8v6.25l5.75-3v-6.5z", "#b88a4f") + fill("M2.25 4.75L8 1.75l5.75 3L8 7.75z", "#ebc893")
            + stroke("M8 1.75l5.75 3v6.5L8 14.25l-5.75-3v-6.5zM2.25 4.75L8 7.75l5.75-3M8 7.75v6.5", "#6e5430", 0.8))


def n_camera16():
    return (rect(1.5, 4.5, 13, 9, "#5d6b7a", "#3a4450", 1, 1.5) + fill("M5 4.5l1.2-2h3.6l1.2 2z", "#3a4450")
            + circle(8, 9, 3, "#9fc3e6", "#ffffff", 1.2) + circle(12.3, 6.5, 0.7, "#ffd24a"))


def n_lighting16():
    return (circle(8, 6.5, 4.75, "#ffd84a", "#b88f00", 1) + rect(6, 11.5, 4, 1.5, "#7a7a7a", "none")
            + rect(6.5, 13.25, 3, 1.25, "#5a5a5a", "none") + stroke("M7 9.5l1-2 1 2", "#b88f00", 0.9))


def sphere(cx, cy, r, base="#3b8eea", hi="#cfe4ff"):
    return ('<defs><radialGradient id="s%d" cx="%s" cy="%s" r="%s" gradientUnits="userSpaceOnUse">'
            '<stop offset="0" stop-color="%s"/><stop offset="1" stop-color="%s"/></radialGradient></defs>'
            % (int(cx * 10 + cy), cx - r * 0.35, cy - r * 0.35, r * 1.4, hi, base)
            + circle(cx, cy, r, "url(#s%d)" % int(cx * 10 + cy), "#1f4f8f", 0.6))


def n_make_copy():
    return sphere(6, 6, 4.25, "#8a8a8a", "#f2f2f2") + sphere(10, 10, 4.25)


def n_new_material():
    return sphere(7, 8, 5.5) + circle(12.25, 4, 3.25, "#2e9e4f") + stroke("M12.25 2.4v3.2M10.65 4h3.2", "#ffffff", 1.2)


def n_apply_material():
    return sphere(9, 9, 5.5) + stroke("M1.5 3.5h5M4.5 1.5l2 2-2 2", "#2e9e4f", 1.5)


SPIN_ACCENT = "#2f80dc"
TRACK = ' stroke-opacity="0.3"'


def n_rendering(frame):
    # An arc of a quarter turn running once around in 24 frames over a faint track.
    circ = 2 * math.pi * 6
    return (circle(8, 8, 6, "none", "#8a8a8a", 2, TRACK)
            + '<circle cx="8" cy="8" r="6" fill="none" stroke="%s" stroke-width="2" stroke-linecap="round" '
              'stroke-dasharray="%.3f %.3f" transform="rotate(%d 8 8)"/>'
            % (SPIN_ACCENT, circ * 0.28, circ, -90 + 15 * (frame - 1)))


def n_progress(step):
    circ = 2 * math.pi * 6
    body = circle(8, 8, 6, "none", "#8a8a8a", 2.5, TRACK)
    if step == 21:
        body += circle(8, 8, 6, "none", SPIN_ACCENT, 2.5)
    elif step > 0:
        body += ('<circle cx="8" cy="8" r="6" fill="none" stroke="%s" stroke-width="2.5" '
                 'stroke-dasharray="%.3f %.3f" transform="rotate(-90 8 8)"/>' % (SPIN_ACCENT, circ * step / 21, circ))
    return body


def mini_toggle(v, on, hover):
    """A small switch: a pill track with a round knob, accent-filled when on."""
    if on:
        track = rect(1, 4, 14, 8, v["acDeep"] if hover else v["ac"], "none", 1, 4)
        return track + circle(11, 8, 2.6, "#ffffff")
    track = rect(1.5, 4.5, 13, 7, v["track"], v["ac"] if hover else v["trackLine"], 1, 3.5)
    return track + circle(5, 8, 2.4, v["ac"] if hover else v["knob"])


GLYPHS = {
    "CheckMark": g_check, "Search": g_search, "ClearSearch": g_clear, "ContextMenu": g_dots,
    "DeleteNode": g_delete_node, "Download": g_download, "ViewBrowser": g_grid, "Browser": g_browser,
    "EditMaterial": g_edit_material, "EditMaterialOpen": g_edit_material_open,
    "EditMaterialClose": g_edit_material_close, "Exchange": g_exchange,
    "GradientNodeIdle": lambda c, v: g_node(c, v, False),
    "HideLibraryPanel": lambda c, v: g_panel(c, v, "M10.5 6L8.5 8l2 2"),
    "ShowLibraryPanel": lambda c, v: g_panel(c, v, "M8.5 6l2 2-2 2"),
    "HideTree": lambda c, v: g_tree(c, v, "M14 6l-2 2 2 2"),
    "ShowTree": lambda c, v: g_tree(c, v, "M12 6l2 2-2 2"),
    "InScene": g_cube, "Legacy": g_archive, "LibEditing": g_lib_editing, "Library": g_library,
    "LibRefresh": g_refresh, "Link": g_link, "Manage": g_gear, "Collapse": g_collapse, "Expand": g_expand,
    "PreviewOn": g_eye, "PreviewOff": g_eye_off, "Picker": g_picker, "ReadOnly": g_lock,
    "SelectByMaterial": g_select_material, "ToolbarExtension": g_extension, "TreeCategory": g_folder,
    "TreeHome": g_home, "Help16": g_help, "TreeLibrary": g_book,
}
# Glyphs that take the accent colour: selected tree branches and the selected gradient node.
ACCENT_GLYPHS = {
    "BranchClosed": (g_branch_closed, "fg"), "BranchOpen": (g_branch_open, "fg"),
    "BranchClosedSelected": (g_branch_closed, "ac"), "BranchOpenSelected": (g_branch_open, "ac"),
    "GradientNodeSelected": (lambda c, v: g_node(c, v, True), "ac"),
}
ACTIONS = {"Add": g_plus, "AddAndEdit": g_add_edit, "Delete": g_trash, "Download": g_download,
           "Edit": g_pencil, "Replace": g_replace, "Duplicate": g_duplicate}
STATE_INK = {"Idle": "fg", "Hover": "ac", "Pressed": "acDeep"}

NEUTRAL_DRAW = {
    "Alert": n_alert, "Warning": n_warning, "Warning32": lambda: n_warning(32), "MissingFile": n_missing_file,
    "MissingAsset": n_missing_asset, "MissingImage": n_missing_image, "InvalidLibrary": n_invalid_library,
    "HueWheel": n_hue_wheel, "ColorBook": n_color_book, "Favorite": n_favorite, "Favorites16": n_favorites16,
    "Cloud16": n_cloud, "GradientDiamond": n_gradient_diamond, "Box16": n_box16, "Camera16": n_camera16,
    "Checker16": n_checker, "Diagonal16": n_diagonal, "Gradient16": n_gradient16, "Image16": n_image16,
    "Lighting16": n_lighting16, "Linear16": n_linear16, "LinearAsymmetrical16": n_linear_asym,
    "Marble16": n_marble16, "Noise16": n_noise16, "Pong16": n_pong16, "Radial16": n_radial16,
    "Dotted16": n_speckle16, "Spiral16": n_spiral16, "Sweep16": n_sweep16, "Tartan16": n_tartan16,
    "Tiles16": n_tiles16, "Waves16": n_waves16, "Wood16": n_wood16, "MakeMaterialCopy16": n_make_copy,
    "NewMaterial": n_new_material, "ApplyMaterial": n_apply_material,
}
for i in range(1, 25):
    NEUTRAL_DRAW["Rendering_%02d" % i] = (lambda f: lambda: n_rendering(f))(i)
for i in range(22):
    NEUTRAL_DRAW["Progress%02d" % i] = (lambda s: lambda: n_progress(s))(i)


def all_icons():
    """name -> function(variant) returning the SVG text."""
    icons = {}
    for name, draw in NEUTRAL_DRAW.items():
        size = 32 if name == "Warning32" else 16
        icons[name] = (lambda d, s: lambda v: svg(d(), s))(draw, size)
    for name, draw in GLYPHS.items():
        icons[name] = (lambda d: lambda v: svg(d(v["fg"], v)))(draw)
    for name, (draw, ink) in ACCENT_GLYPHS.items():
        icons[name] = (lambda d, k: lambda v: svg(d(v[k], v)))(draw, ink)
    for action, draw in ACTIONS.items():
        for state, ink in STATE_INK.items():
            icons["%s_%s" % (action, state)] = (lambda d, k: lambda v: svg(d(v[k], v)))(draw, ink)
    for on in (False, True):
        for hover in (False, True):
            name = "MiniButtonToggle%s%s" % ("On" if on else "Off", "Hover" if hover else "")
            icons[name] = (lambda o, h: lambda v: svg(mini_toggle(v, o, h)))(on, hover)
    return icons


def main():
    os.makedirs(OUT, exist_ok=True)
    for old in os.listdir(OUT):
        if old.endswith(".svg"):
            os.remove(os.path.join(OUT, old))
    count = 0
    for name, make in sorted(all_icons().items()):
        variants = [False] if name in NEUTRAL else [False, True]
        for dark in variants:
            with open(os.path.join(OUT, svg_file(name, dark)), "w", encoding="utf-8", newline="\n") as f:
                f.write(make(DARK if dark else LIGHT))
            count += 1
    print("wrote %d SVG files to resources/icons" % count)


if __name__ == "__main__":
    main()
