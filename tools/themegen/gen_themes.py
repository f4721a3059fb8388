#!/usr/bin/env python3
"""Writes themes/LightTheme.xbel, DarkTheme.xbel and HIGLightTheme.xbel.

Usage: tools/themegen/gen_themes.py   (from anywhere; paths are relative to the repository)

The values come from palettes.py (colour roles per theme) and keymap.py (which
role each key takes). The script refuses to write when a key of the library's
catalogue (src/theme/ThemeKeyCatalogue.cpp) is not covered, so a new key can't
be forgotten. The written files contain no $(...) references.
"""
import os
import re
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.normpath(os.path.join(HERE, "..", ".."))
sys.path.insert(0, HERE)

import keymap  # noqa: E402
import palettes  # noqa: E402
from iconnames import ico_file, svg_file  # noqa: E402

THEMES = [
    ("Light", "LightTheme.xbel", palettes.LIGHT, False,
     "The Light theme: neutral grey panels, white fields, one blue accent for focus and selection."),
    ("Dark", "DarkTheme.xbel", palettes.DARK, True,
     "The Dark theme: charcoal panels, near-black fields, one blue accent for focus and selection."),
    ("HIGLight", "HIGLightTheme.xbel", palettes.HIGLIGHT, False,
     "The high-contrast light theme: white surfaces, black text and borders, a deep blue accent;\n"
     "     text reaches 7:1 and outlines 3:1 against what lies behind them."),
]
# Keys the embedded base file refers to, outside the catalogue.
EXTRA_KEYS = ["ScrollBarBackground", "ScrollBarHandleNormalBackground", "ScrollBarHandleHoverBackground",
              "HScrollBarSubLine", "HScrollBarAddLine"]


def catalogue_texts():
    with open(os.path.join(ROOT, "src", "theme", "ThemeKeyCatalogue.cpp"), encoding="utf-8") as f:
        return re.findall(r'\{"[^"]+", "([^"]+)", ThemeKeyUse::\w+\}', f.read())


def hex_of(palette, role, alpha=None):
    value = palette[role]
    if alpha is not None:
        value = value[:7] + "%02x" % alpha
    return value


def element(theme, palette, dark, key, form):
    kind = form[0]
    if kind == "per":
        return element(theme, palette, dark, key, form[1][theme])
    if kind == "c":
        return '<Color name="%s"><hex value="%s"/></Color>' % (key, hex_of(palette, form[1], *form[2:]))
    if kind == "g":
        return ('<Color name="%s"><hex value="%s" anchor="0"/><hex value="%s" anchor="1"/></Color>'
                % (key, palette[form[1]], palette[form[2]]))
    if kind == "i":
        return '<Int name="%s" value="%d"/>' % (key, form[1])
    if kind == "si":
        return '<ScalableInt name="%s" value="%d"/>' % (key, form[1])
    if kind == "s":
        return '<String name="%s" value="%s"/>' % (key, form[1])
    if kind == "icon":
        return '<String name="%s" value=":/icons/%s"/>' % (key, svg_file(form[1], dark))
    if kind == "ico":
        return '<Icon name="%s" file=":/icons/%s"/>' % (key, ico_file(form[1], dark))
    raise ValueError("unknown value form %r for %s" % (form, key))


def main():
    keys = catalogue_texts()
    if len(keys) != 389:
        sys.exit("expected 389 catalogue keys, found %d" % len(keys))
    missing = [k for k in keys + EXTRA_KEYS if k not in keymap.K]
    if missing:
        sys.exit("keys without a value: " + ", ".join(missing))
    stray = sorted(set(keymap.K) - set(keys) - set(EXTRA_KEYS))
    if stray:
        sys.exit("values for unknown keys: " + ", ".join(stray))
    for theme, file_name, palette, dark, comment in THEMES:
        lines = ['<?xml version="1.0" encoding="UTF-8"?>', "<!DOCTYPE xbel>",
                 "<!-- %s\n     Written by tools/themegen/gen_themes.py; edit the palettes there. -->" % comment,
                 '<xbel version="1.0">']
        for key in sorted(keys + EXTRA_KEYS, key=str.lower):
            if key in keymap.ONLY_IN and theme not in keymap.ONLY_IN[key]:
                continue
            lines.append("  " + element(theme, palette, dark, key, keymap.K[key]))
        lines.append("</xbel>")
        with open(os.path.join(ROOT, "themes", file_name), "w", encoding="utf-8", newline="\n") as f:
            f.write("\n".join(lines) + "\n")
        print("wrote themes/%s (%d entries)" % (file_name, len(lines) - 5))


if __name__ == "__main__":
    main()
