#!/usr/bin/env python3
"""The splash picture and the picture of the about window, both with the program's name."""

from _emblem import key, rosette
from _lettering import word
from _ornament import fills, octagons_and_squares, star, strands
from _style import AMBER, GOLD, INK, SAND, TEAL, save


def home_row(top, size, gap, width):
    """The eleven keys of the guide row; the fourth and the seventh have the ridge."""
    count = 11
    left = (width - count * size - (count - 1) * gap) / 2
    parts = []
    for i in range(count):
        x = left + i * (size + gap)
        ridged = i in (3, 6)
        parts.append('<rect x="%.2f" y="%s" width="%s" height="%s" rx="7" fill="#173F4B" '
                     'fill-opacity=".55"/><rect x="%.2f" y="%s" width="%s" height="%s" rx="6" '
                     'fill="url(#cap)" fill-opacity="%s"/>'
                     % (x, top, size, size + 4, x + 2.5, top + 1.5, size - 5, size - 5,
                        1 if ridged else 0.62))
        if ridged:
            parts.append('<path d="M%.2f %sh10" stroke="%s" stroke-width="3.4" '
                         'stroke-linecap="round"/>' % (x + size / 2 - 5, top + size - 11, AMBER))
    return "".join(parts)


def splash():
    save(204, 450, 330,
         '<defs><linearGradient id="slope" x1="0" y1="0" x2=".7" y2="1">'
         '<stop offset="0" stop-color="#5FB0AF"/><stop offset=".5" stop-color="#2F7F86"/>'
         '<stop offset="1" stop-color="#1F4F5E"/></linearGradient>'
         '<radialGradient id="glow" cx=".5" cy=".28" r=".5"><stop offset="0" stop-color="#D9F0EC" '
         'stop-opacity=".55"/><stop offset="1" stop-color="#D9F0EC" stop-opacity="0"/>'
         '</radialGradient><linearGradient id="cap" x1="0" y1="0" x2=".4" y2="1">'
         '<stop offset="0" stop-color="#FBF8F2"/><stop offset="1" stop-color="#BFDEDB"/>'
         '</linearGradient><linearGradient id="line" gradientUnits="userSpaceOnUse" '
         'x1="0" y1="-150" x2="0" y2="80"><stop offset="0" stop-color="#E3F4F1" stop-opacity=".5"/>'
         '<stop offset=".6" stop-color="#E3F4F1" stop-opacity=".42"/>'
         '<stop offset="1" stop-color="#E3F4F1" stop-opacity="0"/></linearGradient>'
         '<clipPath id="c"><rect x="5.5" y="5.5" width="439" height="319"/></clipPath></defs>'
         '<rect width="450" height="330" fill="url(#slope)"/>'
         '<rect width="450" height="330" fill="url(#glow)"/><g clip-path="url(#c)">%s%s</g>'
         '%s%s%s<rect x="1" y="1" width="448" height="328" fill="none" stroke="%s" '
         'stroke-width="2"/><rect x="5.5" y="5.5" width="439" height="319" fill="none" '
         'stroke="#E8D09A" stroke-opacity=".8" stroke-width="1"/>'
         % (rosette(225, 92, 150, "url(#line)", 0.9),
            home_row(281, 34, 5, 450),
            key(225, 92, 96),
            word("name-en", 225, 199, 50, 'fill="#fff"'),
            word("name-ar", 225, 246, 38, 'fill="#FCE2B6"'), INK))


def about():
    octagons, squares = octagons_and_squares(8, 8, 353 / 15, 381 / 16, 15, 16)
    eights = [star(tile, 67.5) for tile in octagons]
    fours = [star(tile, 67.5) for tile in squares]
    save(205, 369, 397,
         '<defs><radialGradient id="field" cx=".42" cy=".3" r=".85">'
         '<stop offset="0" stop-color="#FFFEFB"/><stop offset="1" stop-color="%s"/>'
         '</radialGradient><linearGradient id="ground" x1="0" y1="0" x2=".6" y2="1">'
         '<stop offset="0" stop-color="#3B8F94"/><stop offset="1" stop-color="#1F5A66"/>'
         '</linearGradient></defs><rect width="369" height="397" fill="url(#ground)"/>%s%s%s'
         '<rect x="1" y="1" width="367" height="395" fill="none" stroke="#17434F" '
         'stroke-width="2"/>'
         '<rect x="4" y="4" width="361" height="389" fill="none" stroke="#E8D09A" '
         'stroke-width="1.5"/>'
         '<rect x="31.5" y="31.8" width="306" height="333.4" fill="#E8D09A" stroke="#17434F" '
         'stroke-width="1.5"/><rect x="36" y="36.3" width="297" height="324.4" '
         'fill="url(#field)" stroke="#17434F" stroke-width="1"/>%s%s%s%s'
         % (SAND, fills(eights, "#5FACAD", 0.6), fills(fours, GOLD, 0.95),
            strands(eights + fours, 1.7, 0.8, "#17434F", "#E8D09A"),
            rosette(184.5, 146, 94, GOLD, 0.8, 'stroke-opacity=".55"'),
            key(184.5, 146, 86), word("name-en", 184.5, 286, 46, 'fill="%s"' % INK),
            word("name-ar", 184.5, 331, 36, 'fill="%s"' % TEAL)))


splash()
about()
