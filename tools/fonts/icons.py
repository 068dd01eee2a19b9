#!/usr/bin/env python3
"""Makes the application's font of icons: of an icon font, those that a QML file names, under a name of its own.

Usage: tools/fonts/icons.py FONT ICONS.qml OUTPUT

The name keeps a system that has the whole font installed from showing that one, and its licence asks for it.
"""
import re
import sys
from pathlib import Path

from fontTools.subset import Options, Subsetter
from fontTools.ttLib import TTFont

FAMILY = "Tavi Icons"
NAMES = {1: FAMILY, 2: "Regular", 3: FAMILY, 4: FAMILY, 6: FAMILY.replace(" ", "")}


def main():
    source, icons, output = sys.argv[1:]
    points = {int(digits, 16) for digits in re.findall(r'"\\u([0-9a-f]{4})"', Path(icons).read_text())}
    font = TTFont(source, recalcBBoxes=False)
    missing = points - font.getBestCmap().keys()
    if missing:
        sys.exit(f"{source} has no icon for " + ", ".join(f"U+{point:04X}" for point in sorted(missing)))
    subsetter = Subsetter(Options(name_IDs=[0, 13, 14], notdef_outline=True))
    subsetter.populate(unicodes=points)
    subsetter.subset(font)
    for number, text in NAMES.items():
        font["name"].setName(text, number, 3, 1, 0x409)
    font.save(output)


main()
