#!/usr/bin/env python3
"""The opening picture: the words that begin every good work, on a ground of eightfold stars."""

from _lettering import ink, word
from _ornament import (fills, octagons_and_squares, polygon, star, star_polygon,
                       strands)
from _style import GOLD, INK, PAPER, SAND, points_path, save

WIDTH, HEIGHT = 780, 203


def ground():
    """Stars inside the outer frame, 32 by 8 cells."""
    octagons, squares = octagons_and_squares(4.5, 4.5, 771 / 32, 194 / 8, 32, 8)
    eights = [star(tile, 67.5) for tile in octagons]
    fours = [star(tile, 67.5) for tile in squares]
    return ('<rect width="%d" height="%d" fill="url(#ground)"/>%s%s%s'
            % (WIDTH, HEIGHT, fills(eights, "#5FACAD", 0.6), fills(fours, GOLD, 0.95),
               strands(eights + fours, 1.7, 0.8, "#17434F", "#E8D09A")))


def rosette(x):
    """A small rosette of sixteen points at one end of the words."""
    return ('<g transform="translate(%s 0)" fill="none" stroke="%s" stroke-width="1.1" '
            'stroke-linejoin="round"><circle r="18.5" stroke-width=".9"/>'
            '<circle r="16" fill="#F1E3C4" stroke-width="1.3"/>'
            '<path d="%s" stroke-width=".8"/><path d="%s" fill="%s" stroke="none"/>'
            '<circle r="2.2" fill="%s" stroke="none"/></g>'
            % (x, GOLD, star_polygon(0, 0, 16, 6, 16),
               points_path(star(polygon(0, 0, 8, 10.5, 22.5), 67.5), closed=True), GOLD, PAPER))


def cartouche(grow):
    """The field of the words, with lobed ends; grow is by how much it is larger on all sides."""
    w, h, g = 318, 77, grow
    return ("M{a} {t}H{b}C{c} {t1} {d} {t2} {e} {t3}C{f} {t4} {k} {t5} {p} 0"
            "C{k} {b5} {f} {b4} {e} {b3}C{d} {b2} {c} {b1} {b} {h}H{a}"
            "C{nc} {b1} {nd} {b2} {ne} {b3}C{nf} {b4} {nk} {b5} {np} 0"
            "C{nk} {t5} {nf} {t4} {ne} {t3}C{nd} {t2} {nc} {t1} {a} {t}Z").format(
                a=-w, b=w, c=w + 3 + g * .6, d=w + 10 + g * .8, e=w + 25 + g,
                f=w + 29 + g * 1.1, k=w + 36 + g * 1.3, p=w + 50 + g * 1.7,
                nc=-w - 3 - g * .6, nd=-w - 10 - g * .8, ne=-w - 25 - g, nf=-w - 29 - g * 1.1,
                nk=-w - 36 - g * 1.3, np=-w - 50 - g * 1.7,
                t=-h - g, t1=-h + 20 - g, t2=-h + 32 - g, t3=-h + 36 - g * .9, t4=-30 - g * .6,
                t5=-9 - g * .3, h=h + g, b1=h - 20 + g, b2=h - 32 + g, b3=h - 36 + g * .9,
                b4=30 + g * .6, b5=9 + g * .3)


def main():
    size = 68
    _, top, _, bottom = ink("basmala", size)
    save(1127, WIDTH, HEIGHT,
         '<defs><linearGradient id="ground" x1="0" y1="0" x2="1" y2="1">'
         '<stop offset="0" stop-color="#2F7F86"/><stop offset="1" stop-color="#1F5A66"/>'
         '</linearGradient><radialGradient id="field" cx=".42" cy=".35" r=".8">'
         '<stop offset="0" stop-color="#FFFDF8"/><stop offset="1" stop-color="%s"/>'
         '</radialGradient></defs>%s'
         '<g transform="translate(390 101.5)">'
         '<path d="%s" fill="#17434F"/><path d="%s" fill="%s"/><path d="%s" fill="#17434F"/>'
         '<path d="%s" fill="url(#field)"/>'
         '<path d="%s" fill="none" stroke="%s" stroke-width="1"/>%s%s</g>%s'
         '<rect x="1.5" y="1.5" width="777" height="200" fill="none" stroke="#17434F" '
         'stroke-width="3"/><rect x="3.75" y="3.75" width="772.5" height="195.5" fill="none" '
         'stroke="%s" stroke-width="1.5"/>'
         % (SAND, ground(), cartouche(8), cartouche(6.8), "#E3C88A", cartouche(3.5), cartouche(2.5),
            cartouche(-2), GOLD, rosette(-308), rosette(308),
            word("basmala", 390, 101.5 - (top + bottom) / 2, size, 'fill="%s"' % INK), GOLD))


main()
