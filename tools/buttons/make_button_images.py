#!/usr/bin/env python3
"""Writes the player's button pictures, resources/buttons/<name>[-hover|-pressed].svg.

Each picture is a white glyph on a 32x32 canvas with a soft dark edge under it, so that it reads
both on the window's blue and on its light grey when the window is inactive. The hover variant
puts a faint white disc behind the glyph; the pressed one a stronger disc and a smaller, dimmer
glyph. Run it after changing a glyph and commit the pictures it writes.
"""

import argparse
import pathlib

# Each glyph: a list of (kind, svg-attributes). "fill" shapes are filled; "line" shapes are
# stroked with the given width. Coordinates are in the 32x32 box, centred on (16, 16).
GLYPHS = {
    "play": [("fill", 'd="M12 8.5 L24 16 L12 23.5 Z"')],
    "pause": [("fill", 'd="M10 9 H14.5 V23 H10 Z M17.5 9 H22 V23 H17.5 Z"')],
    "stop": [("fill", 'd="M10 10 H22 V22 H10 Z"')],
    "prev": [("fill", 'd="M8.5 9.5 H11.5 V22.5 H8.5 Z M23.5 9.5 V22.5 L12.5 16 Z"')],
    "next": [("fill", 'd="M20.5 9.5 H23.5 V22.5 H20.5 Z M8.5 9.5 L19.5 16 L8.5 22.5 Z"')],
    "backward": [("fill", 'd="M16 10 V22 L7 16 Z M25 10 V22 L16 16 Z"')],
    "forward": [("fill", 'd="M7 10 L16 16 L7 22 Z M16 10 L25 16 L16 22 Z"')],
    # A camera: a body with a round lens (a ring around a dot) and a viewfinder bump on top.
    "snapshot": [("fill", 'fill-rule="evenodd" d="M7 12 Q7 10.5 8.5 10.5 H11.5 L13 8.5 H19 L20.5 10.5 '
                          'H23.5 Q25 10.5 25 12 V22 Q25 23.5 23.5 23.5 H8.5 Q7 23.5 7 22 Z '
                          'M16 12.5 A4.5 4.5 0 1 0 16 21.5 A4.5 4.5 0 1 0 16 12.5 Z '
                          'M16 14.5 A2.5 2.5 0 1 1 16 19.5 A2.5 2.5 0 1 1 16 14.5 Z"')],
    # Four corner brackets pointing outwards.
    "fullscreen": [("line", 'd="M8 13 V8 H13 M19 8 H24 V13 M24 19 V24 H19 M13 24 H8 V19"', 2.2)],
    "mute": [("fill", 'd="M7 13 H10.5 L15.5 9 V23 L10.5 19 H7 Z"'),
             ("line", 'd="M18.5 13 L24.5 19 M24.5 13 L18.5 19"', 2.2)],
    "sound": [("fill", 'd="M7 13 H10.5 L15.5 9 V23 L10.5 19 H7 Z"'),
              ("line", 'd="M18.5 12.5 A5 5 0 0 1 18.5 19.5"', 2),
              ("line", 'd="M21 10 A8.5 8.5 0 0 1 21 22"', 2)],
}

VARIANTS = {
    # suffix: (disc opacity or None, glyph scale, glyph colour)
    "": (None, 1.0, "#ffffff"),
    "-hover": (0.22, 1.0, "#ffffff"),
    "-pressed": (0.42, 0.88, "#dfe6ee"),
}

EDGE = "#0a2a4a"  # the dark edge under every glyph
EDGE_OPACITY = 0.45


def shape(kind, attributes, width, colour, edge):
    if kind == "fill":
        if edge:
            return (f'<path {attributes} fill="none" stroke="{EDGE}" stroke-opacity="{EDGE_OPACITY}" '
                    f'stroke-width="1.5" stroke-linejoin="round"/>')
        return f'<path {attributes} fill="{colour}"/>'
    if edge:
        return (f'<path {attributes} fill="none" stroke="{EDGE}" stroke-opacity="{EDGE_OPACITY}" '
                f'stroke-width="{width + 1.5:g}" stroke-linecap="round" stroke-linejoin="round"/>')
    return (f'<path {attributes} fill="none" stroke="{colour}" stroke-width="{width:g}" '
            f'stroke-linecap="round" stroke-linejoin="round"/>')


def picture(name, glyph, disc, scale, colour):
    lines = ['<?xml version="1.0" encoding="UTF-8"?>',
             f'<!-- The {name} button, made by tools/buttons/make_button_images.py. -->',
             '<svg xmlns="http://www.w3.org/2000/svg" version="1.2" baseProfile="tiny" '
             'width="32" height="32" viewBox="0 0 32 32">']
    if disc is not None:
        lines.append(f'  <circle cx="16" cy="16" r="15" fill="#ffffff" fill-opacity="{disc}"/>')
    transform = "" if scale == 1.0 else f' transform="translate(16 16) scale({scale}) translate(-16 -16)"'
    lines.append(f"  <g{transform}>")
    for edge in (True, False):
        for part in glyph:
            kind, attributes = part[0], part[1]
            width = part[2] if len(part) > 2 else 0
            lines.append("    " + shape(kind, attributes, width, colour, edge))
    lines.append("  </g>")
    lines.append("</svg>")
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    default = pathlib.Path(__file__).resolve().parents[2] / "resources" / "buttons"
    parser.add_argument("--output", type=pathlib.Path, default=default)
    options = parser.parse_args()
    options.output.mkdir(parents=True, exist_ok=True)
    for name, glyph in GLYPHS.items():
        for suffix, (disc, scale, colour) in VARIANTS.items():
            (options.output / f"{name}{suffix}.svg").write_text(picture(name, glyph, disc, scale, colour))


if __name__ == "__main__":
    main()
