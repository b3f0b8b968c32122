#!/usr/bin/env python3
"""The faces of the image buttons, the check boxes and the picture buttons in their looks."""

from _lettering import word
from _style import (AMBER, GREY, INK, LIGHT_AMBER, LIGHT_GREY, PALE_TEAL, TEAL, WHITE, gradient,
                    save)

# A look is: light and dark end of the face, outline, pictogram, a tone for the pictogram's
# second part, and the colour that shows inside the pictogram.
PLAIN = (WHITE, "#D3E9E7", INK, TEAL, "#8CC6C4", WHITE)
LIT = (LIGHT_AMBER, AMBER, INK, INK, "#BC7822", "#FFF1D6")
GREYED = ("#E9ECEE", "#D9DEE1", GREY, GREY, "#C2C9CD", "#F1F3F4")

SHADOW = ('<filter id="s" x="-20%" y="-20%" width="150%" height="150%">'
          '<feGaussianBlur stdDeviation="1.4"/></filter>')


def button(id_, look, pictogram):
    """A 90 x 81 button; the pictogram is a function of the look's three inner colours."""
    light, dark, outline, *inner = look
    shade = 0.08 if look is GREYED else 0.2
    body = (
        '<defs>%s%s</defs>'
        '<rect x="5" y="5.5" width="82" height="73" rx="11" fill="#000" fill-opacity="%s" '
        'filter="url(#s)"/>'
        '<rect x="2.5" y="2.5" width="82" height="73" rx="10.5" fill="url(#f)" stroke="%s" '
        'stroke-width="2.5"/>'
        '<path d="M6 40V14a8 8 0 0 1 8-8H60" fill="none" stroke="#fff" stroke-opacity="%s" '
        'stroke-width="2" stroke-linecap="round"/>'
        '<g transform="translate(43.5 39)" stroke-linecap="round" stroke-linejoin="round">%s</g>'
        % (gradient("f", light, dark), SHADOW, shade, outline,
           0.55 if look is not GREYED else 0.5, pictogram(*inner)))
    save(id_, 90, 81, body)


# ---- Pictograms, centred on the face, about 62 x 54 --------------------------------------------

def palm(tone):
    """An open hand held up: four fingers, a thumb and the palm."""
    return ('<g stroke="%s" stroke-width="4.3"><path d="M-8.2 -3V-12.5M-2.8 -4V-16M2.8 -4V-16.6'
            'M8.4 -3V-13.2M-8.5 9.5L-14.3 2.2" fill="none"/>'
            '<path d="M-8.2 -1H8.4V8C8.4 13 5 17 0 17S-8 13.5 -8.2 9Z" fill="%s"/></g>'
            % (tone, tone))


def stop(main, second, inside):
    octagon = "M-11.6 -28H11.6L28 -11.6V11.6L11.6 28H-11.6L-28 11.6V-11.6Z"
    return ('<path d="%s" fill="%s" stroke="%s" stroke-width="4"/>'
            '<path d="%s" transform="scale(.88)" fill="none" stroke="%s" stroke-width="2"/>%s'
            % (octagon, main, main, octagon, inside, palm(inside)))


def keys(y, main, inside, columns=6, rows=2):
    """A keyboard, 60 wide, whose top edge is at y."""
    height = rows * 8.5 + 4.5
    parts = ['<rect x="-30" y="%s" width="60" height="%s" rx="5" fill="%s"/>' % (y, height, main)]
    for row in range(rows):
        if row == rows - 1:
            parts.append('<rect x="-13.5" y="%s" width="27" height="5.5" rx="1.6" fill="%s"/>'
                         % (y + 3.5 + row * 8.5, inside))
            for x in (-25.4, 17.9):
                parts.append('<rect x="%s" y="%s" width="7.5" height="5.5" rx="1.6" fill="%s"/>'
                             % (x, y + 3.5 + row * 8.5, inside))
        else:
            for column in range(columns):
                parts.append('<rect x="%.2f" y="%s" width="5.9" height="5.5" rx="1.6" fill="%s"/>'
                             % (-25.4 + column * 8.98, y + 3.5 + row * 8.5, inside))
    return "".join(parts)


def exercise(main, second, inside):
    """A dumb-bell over a keyboard: training for the fingers."""
    return ('<path d="M-12 -13H12" stroke="%s" stroke-width="5"/>'
            '<path d="M-15.5 -23V-3M15.5 -23V-3" stroke="%s" stroke-width="7"/>'
            '<path d="M-24 -18.5V-7.5M24 -18.5V-7.5" stroke="%s" stroke-width="5.5"/>'
            '<path d="M-29.5 -14.5V-11.5M29.5 -14.5V-11.5" stroke="%s" stroke-width="4"/>%s'
            % (second, main, main, second, keys(6.5, main, inside)))


def exercises(main, second, inside, chosen):
    """Three exercises under one another with their numbers, as in the list of exercises. The
    student is at the second one; the chosen one is filled."""
    out = []
    for place, top in enumerate((-28.2, -8.2, 11.8), 1):
        fill, figure = (main, inside) if place == chosen else (inside, main)
        faint = 'opacity=".55"' if place not in (chosen, 2) else ""
        out.append('<rect x="-31" y="%s" width="36" height="16.4" rx="4.5" fill="%s" stroke="%s" '
                   'stroke-width="2.2" %s/>'
                   % (top, fill, main, faint))
        out.append(word(str(place), -13, top + 13.5, 14.8, 'fill="%s" %s' % (figure, faint)))
    return "".join(out)


def to_neighbour(direction, main):
    """A straight arrow from the middle exercise to the one above (-1) or below (1). The order
    runs from top to bottom, as in the list of exercises, and so misleads no reader of either
    direction."""
    return ('<path d="M15.4 -6.5H24.6V9H31.5L20 28L8.5 9H15.4Z" transform="scale(1 %s)" '
            'fill="%s" stroke="%s" stroke-width="2"/>' % (direction, main, main))


def following(main, second, inside):
    return exercises(main, second, inside, 3) + to_neighbour(1, main)


def previous(main, second, inside):
    return exercises(main, second, inside, 1) + to_neighbour(-1, main)


def repeat(main, second, inside):
    return ('<path d="M18.2 -15.3A23.8 23.8 0 1 0 23.6 3" fill="none" stroke="%s" '
            'stroke-width="6"/><path d="M21.5 -27.5V-12.5H6.5" fill="none" stroke="%s" '
            'stroke-width="6"/>' % (main, main))


def rest(main, second, inside):
    """A glass of tea that steams, with the two bars of a pause on it."""
    steam = "".join('<path d="M%s -15.5c-4 -4 4 -7 0 -12" fill="none" stroke="%s" '
                    'stroke-width="2.8"/>' % (x, second) for x in (-11, -2, 7))
    return (steam +
            '<path d="M-22 -10H18V6C18 15 12 20 4 20H-8C-16 20 -22 15 -22 6Z" fill="%s" '
            'stroke="%s" stroke-width="2.5"/>'
            '<path d="M19 -5.5C30 -7.5 30 10.5 16.5 9.5" fill="none" stroke="%s" '
            'stroke-width="4"/><path d="M-25 26.5H21" stroke="%s" stroke-width="4.5"/>'
            '<path d="M-7.5 -2.5V11M3.5 -2.5V11" stroke="%s" stroke-width="5.5"/>'
            % (main, main, main, main, inside))


def resume(main, second, inside):
    """The sign of playing on, the counterpart of the pause on the glass, over the keys."""
    return ('<circle cy="-12" r="17" fill="%s"/>'
            '<path d="M-4.2 -19.2L7.8 -12L-4.2 -4.8Z" fill="%s" stroke="%s" stroke-width="3"/>%s'
            % (main, inside, inside, keys(8.5, main, inside)))


def picture_buttons():
    for pictogram, lit, plain, grey in (
            (stop, 106, 107, None), (exercise, 109, 110, 111), (previous, 129, 130, 131),
            (following, 132, 133, 134), (repeat, 135, 136, 137), (rest, 200, 201, None),
            (resume, 202, 203, None)):
        button(lit, LIT, pictogram)
        button(plain, PLAIN, pictogram)
        if grey:
            button(grey, GREYED, pictogram)


# ---- Captioned buttons and check boxes -----------------------------------------------------------

def face(id_, light, dark):
    """A button that gets its caption from the program."""
    save(id_, 115, 34,
         '<defs>%s<filter id="s" x="-10%%" y="-30%%" width="120%%" height="170%%">'
         '<feGaussianBlur stdDeviation="1"/></filter></defs>'
         '<rect x="2.5" y="3.5" width="111" height="29.5" rx="6.5" fill="#000" '
         'fill-opacity=".2" filter="url(#s)"/>'
         '<rect x="1.25" y="1.25" width="111" height="29.5" rx="6" fill="url(#f)" stroke="%s" '
         'stroke-width="1.75"/>'
         '<path d="M3.9 16V8.5a4.6 4.6 0 0 1 4.6 -4.6H106" fill="none" stroke="#fff" '
         'stroke-opacity=".6" stroke-width="1.4" stroke-linecap="round"/>'
         % (gradient("f", light, dark), INK))


def check_box(id_, ticked, fixed):
    """A ticked or an empty box; a fixed one can't be changed by the student."""
    light, dark = ("#E1E5E7", LIGHT_GREY) if fixed else (WHITE, PALE_TEAL)
    outline = GREY if fixed else INK
    tick = ('<path d="M5.8 11.2L9.6 15L16.2 6.4" fill="none" stroke="%s" stroke-width="3" '
            'stroke-linecap="round" stroke-linejoin="round"/>' % ("#5F6B72" if fixed else TEAL)
            if ticked else "")
    shadow = "" if fixed else ('<rect x="2.6" y="2.6" width="19" height="18.4" rx="4.6" '
                               'fill="#000" fill-opacity=".16"/>')
    save(id_, 23, 22,
         '<defs>%s</defs>%s<rect x="1.5" y="1.25" width="19" height="18.5" rx="4" '
         'fill="url(#f)" stroke="%s" stroke-width="1.5"/>%s'
         % (gradient("f", light, dark), shadow, outline, tick))


def main():
    face(102, WHITE, "#D3E9E7")
    face(103, LIGHT_AMBER, AMBER)
    check_box(125, ticked=False, fixed=True)
    check_box(126, ticked=False, fixed=False)
    check_box(127, ticked=True, fixed=False)
    check_box(128, ticked=True, fixed=True)
    picture_buttons()


main()
