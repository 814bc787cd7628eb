#!/usr/bin/python3
"""Makes DigifaceWide.ttf, the LED face of the read-outs, from Debian's seven-segment fonts.

The base face gives the digits, letters, '.', ':', '-' and ' '. A seven-segment display cannot
draw '/', which the dates need, so it comes from the donor, a fourteen-segment face of the same
design and metrics. The family is renamed because the licence (SIL OFL 1.1) reserves the
original name for unmodified copies.

Usage: make_led_font.py --base BASE.ttf --donor DONOR.ttf --output OUT.ttf
"""

import argparse
import sys

from fontTools.ttLib import TTFont
from fontTools.ttLib.tables._g_l_y_f import Glyph

FAMILY = "DigifaceWide"
STYLE = "Regular"

# Every character a read-out shows (speed, position, date, time) and the letters of the unit and
# the captions (KM/H, MPH, LAT, LON, DATE, TIME).
REQUIRED = "0123456789.:/- KMPHLATONDIE"

# Name records rewritten in every platform's table: family, style, unique id, full name,
# PostScript name, and the sample text, which named the original.
NAMES = {
    1: FAMILY,
    2: STYLE,
    3: f"Dashtrack : {FAMILY} {STYLE}",
    4: f"{FAMILY} {STYLE}",
    6: f"{FAMILY}-{STYLE}",
    19: "12:34 56.78",
}
# Typographic family and style would override the names above in font databases.
DROPPED_NAMES = (16, 17, 21, 22)

DESCRIPTION = (
    "DigifaceWide is a Modified Version of DSEG7 Classic Regular by keshikan, with the slash "
    "of DSEG14 Classic Regular, renamed as the SIL Open Font License 1.1 requires."
)


def copy_glyph(target, donor, char):
    """Adds the donor's glyph for char to target under the donor's glyph name."""
    donor_name = donor.getBestCmap().get(ord(char))
    if donor_name is None:
        return False
    glyph = donor["glyf"][donor_name]
    if glyph.isComposite():
        # Components would point at glyphs the target may not have.
        return False
    name = donor_name
    while name in target.getGlyphOrder():
        name += ".alt"
    target["glyf"].glyphs[name] = glyph
    target.setGlyphOrder(target.getGlyphOrder() + [name])
    target["glyf"].glyphOrder = target.getGlyphOrder()
    target["hmtx"].metrics[name] = donor["hmtx"][donor_name]
    map_char(target, char, name)
    return True


def add_blank(target, char, advance):
    """Adds an empty glyph (a space) of the given advance for char."""
    name = "space" if char == " " else f"uni{ord(char):04X}"
    glyph = Glyph()
    glyph.numberOfContours = 0
    target["glyf"].glyphs[name] = glyph
    target.setGlyphOrder(target.getGlyphOrder() + [name])
    target["glyf"].glyphOrder = target.getGlyphOrder()
    target["hmtx"].metrics[name] = (advance, 0)
    map_char(target, char, name)


def map_char(target, char, name):
    for table in target["cmap"].tables:
        if table.isUnicode():
            table.cmap[ord(char)] = name


def widen_period(font, advance):
    """Gives the decimal point a width of its own. A seven-segment face draws it with no advance,
    over the gap between two digits, where it is all but lost in "48.85837" at small sizes."""
    name = font.getBestCmap()[ord(".")]
    glyph = font["glyf"][name]
    if glyph.isComposite() or glyph.numberOfContours <= 0 or font["hmtx"][name][0] >= advance:
        return
    shift = advance // 2 - (glyph.xMin + glyph.xMax) // 2
    glyph.coordinates.translate((shift, 0))
    glyph.recalcBounds(font["glyf"])
    font["hmtx"].metrics[name] = (advance, glyph.xMin)


def rename(font):
    name_table = font["name"]
    for record_id in DROPPED_NAMES:
        name_table.removeNames(nameID=record_id)
    platforms = {(r.platformID, r.platEncID, r.langID) for r in name_table.names}
    for record_id, text in NAMES.items():
        for platform in platforms:
            name_table.setName(text, record_id, *platform)
    for platform in platforms:
        name_table.setName(DESCRIPTION, 10, *platform)
    font["OS/2"].usWeightClass = 400
    font["OS/2"].fsSelection = (font["OS/2"].fsSelection & ~0b1100001) | 0b1000000  # REGULAR only
    font["head"].macStyle = 0


def check(font):
    cmap = font.getBestCmap()
    missing = [c for c in REQUIRED if ord(c) not in cmap]
    if missing:
        raise SystemExit(f"make_led_font: no glyph for {''.join(missing)!r}")
    names = font["name"]
    for record_id in (1, 4, 6):
        text = names.getDebugName(record_id) or ""
        if "DSEG" in text.upper():
            raise SystemExit(f"make_led_font: name {record_id} still reads {text!r}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--base", required=True)
    parser.add_argument("--donor", required=True)
    parser.add_argument("--output", required=True)
    args = parser.parse_args()

    # Timestamps kept as the source has them, so that two builds give the same bytes.
    font = TTFont(args.base, recalcTimestamp=False)
    donor = TTFont(args.donor)
    if font["head"].unitsPerEm != donor["head"].unitsPerEm:
        raise SystemExit("make_led_font: base and donor differ in units per em")

    digit_advance = font["hmtx"][font.getBestCmap()[ord("0")]][0]
    for char in REQUIRED:
        if ord(char) in font.getBestCmap():
            continue
        if char == " ":
            add_blank(font, char, digit_advance)
        elif not copy_glyph(font, donor, char):
            raise SystemExit(f"make_led_font: neither font has a usable glyph for {char!r}")

    colon_advance = font["hmtx"][font.getBestCmap()[ord(":")]][0]
    widen_period(font, colon_advance)
    rename(font)
    check(font)
    font.save(args.output)
    return 0


if __name__ == "__main__":
    sys.exit(main())
