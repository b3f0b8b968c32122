#!/usr/bin/env python3
"""The charts that tell which finger strikes which key.

    python3 charts.py TABLES_FILE OUTDIR

writes 146.svg (the whole keyboard), 147.svg (the numeric pad), 148.svg (the guide row) and 138.svg
to 141.svg (the keys of the index, middle, ring and little fingers).

TABLES_FILE is what keyfluent-table-dump prints, so the places of the keys, what is written on
them and who strikes them are the program's own. Only the numeric pad has no fingers there, as no
exercise asks for them: they are told here, in PAD_FINGERS.
"""

import json
import sys
from dataclasses import dataclass, replace
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "pictures" / "scripts"))

import hands  # noqa: E402  (found by the line above)
from _style import GREY, INK, LIGHT_GREY, WHITE, number, points_path  # noqa: E402
from fingers import LaidHand, framed, rest_point, sleeve  # noqa: E402
from hands import FINGER_COLOURS, mix  # noqa: E402

TWIPS = 15  # to the pixel

# Of the left hand from outside inwards, and then the right hand's from inside outwards.
GUIDE_LETTERS = "شسيبتنمك"
GUIDE_FINGERS = ("little", "ring", "middle", "index")

MAIN_BLOCK = (*range(16, 30), *range(33, 79))
HOME_ROW = range(48, 59)
PAD = range(87, 105)
LEFT_SHIFT, RIGHT_SHIFT, RETURN, SPACE = 60, 71, 59, 75

# The usual way of typing figures: the right hand rests with three fingers on 4, 5 and 6 and the
# little finger on the plus sign. Each finger has its own column from top to bottom; the point
# belongs to the column over it. The thumb has the wide key below.
PAD_FINGERS = {
    "index": (87, 91, 95, 99),
    "middle": (88, 92, 96, 100),
    "ring": (89, 93, 97, 101, 104),
    "little": (90, 94, 98, 102),
    "thumb": (103,),
}
PAD_GUIDE = (95, 96, 97, 98)

# How to name the fingers, from the outermost one inwards.
FINGER_NAMES = {"little": "خنصر", "ring": "بنصر", "middle": "وسطى", "index": "سبابة",
                "thumb": "إبهام"}


# What the tables tell ------------------------------------------------------------------------


def striker(fingers):
    """The hand and the finger that strike a character without Shift, or None."""
    if fingers["shiftCap"] != -1:
        return None
    named = [(hand, fingers[hand]) for hand in ("left", "right") if fingers[hand]]
    return named[0] if len(named) == 1 else None


def shift_holder(tables, shift_cap):
    """The hand and the finger that hold this Shift key while the other hand strikes."""
    hand, other = ("left", "right") if shift_cap == LEFT_SHIFT else ("right", "left")
    holders = {told[hand] for told in tables["fingers"]["arabic"].values()
               if told["shiftCap"] == shift_cap and told["left"] and told["right"]}
    if len(holders) != 1:
        raise SystemExit("charts: no single finger holds the Shift key %d" % shift_cap)
    return hand, holders.pop()


def strikers(tables):
    """Who strikes each cap of the main block: cap -> (hand, finger). A cap that the tables tell
    nothing of is not in it."""
    told = {LEFT_SHIFT: shift_holder(tables, LEFT_SHIFT),
            RIGHT_SHIFT: shift_holder(tables, RIGHT_SHIFT)}
    characters = {RETURN: tables["lineEnd"], SPACE: " "}
    for cap in MAIN_BLOCK:
        texts = tables["caps"][cap]
        arabic = characters.get(cap, texts["arabic"])
        # The key of two Arabic letters is known by its Latin one.
        for language, text in (("arabic", arabic), ("english", texts["english"])):
            fingers = tables["fingers"][language].get(text)
            if cap not in told and fingers and striker(fingers):
                told[cap] = striker(fingers)
    # The key of the backslash, of which no exercise shows the finger, ends the row of its
    # neighbour's finger.
    for cap in MAIN_BLOCK:
        if cap not in told and len(tables["caps"][cap]["english"]) == 1:
            told[cap] = told[cap - 1]
    return told


def guide_caps(tables):
    """The caps on which the fingers rest: cap -> (hand, finger)."""
    caps = [next(cap for cap in HOME_ROW if tables["caps"][cap]["arabic"] == letter)
            for letter in GUIDE_LETTERS]
    owners = ([("left", f) for f in GUIDE_FINGERS]
              + [("right", f) for f in reversed(GUIDE_FINGERS)])
    told = strikers(tables)
    for cap, owner in zip(caps, owners):
        if told[cap] != owner:
            raise SystemExit("charts: the guide key %d belongs to another finger" % cap)
    return dict(zip(caps, owners))


# Keys ----------------------------------------------------------------------------------------


@dataclass(frozen=True)
class Key:
    """A cap in pixels of the picture."""
    cap: int
    x: float
    y: float
    width: float
    height: float

    def centre(self):
        return (self.x + self.width / 2, self.y + self.height / 2)


@dataclass(frozen=True)
class View:
    """Where a part of the keyboard stands in a picture: the point of the typing window in twips
    that lies at (x, y) of the picture, and the two scales."""
    origin: tuple
    x: float
    y: float
    across: float
    down: float

    def key(self, tables, cap):
        design = tables["caps"][cap]
        across, down = self.across / TWIPS, self.down / TWIPS
        return Key(cap, self.x + (design["left"] - self.origin[0]) * across,
                   self.y + (design["top"] - self.origin[1]) * down,
                   design["width"] * across, design["height"] * down)


# The left top corner of the number row, and of the numeric pad.
MAIN_ORIGIN = (1305, 2295)
PAD_ORIGIN = (9090, 2295)

# A hand laid on the keyboard is drawn in units of its own: the keys of the typing window, with the
# number row at the top. This is where they stand in the picture of the guide row.
LAID_SCALE = 1.48
LAID_ORIGIN = (250 - 184.5 * LAID_SCALE, -16)

VIEWS = {
    146: View(MAIN_ORIGIN, 20.5, 24.0, 1.25, 1.25),
    147: View(PAD_ORIGIN, 18.4, 26.0, 1.70, 1.70),
    # The caps are higher than they are on the screen, so that the letters stand clear of the
    # fingertips; the guide row stays where the hands lie.
    148: View(MAIN_ORIGIN, LAID_ORIGIN[0], LAID_ORIGIN[1] - 24 * LAID_SCALE, LAID_SCALE,
              1.3 * LAID_SCALE),
}


# Drawing -------------------------------------------------------------------------------------


GLYPHS = {}


def glyph_of(text):
    if not GLYPHS:
        for line in (HERE / "glyphs.json").read_text(encoding="utf-8").splitlines():
            name, *rest = json.loads(line)
            GLYPHS[name] = rest
    if text not in GLYPHS:
        raise SystemExit("charts: glyphs.json does not hold %r; run glyphs.py" % text)
    return GLYPHS[text]


def written(text, cx, cy, size, colour, base_line=0.36, settle=0.5, rim=None):
    """A text about the middle (cx, cy) at a size in pixels per em. It settles between its base
    line (that many em below the middle) and the middle of its ink, so that rows stay even and no
    letter leaves its key. `rim` is a colour drawn round it."""
    _, left, top, right, bottom, path = glyph_of(text)
    centred = -(top + bottom) / 2
    y = cy + size * (base_line * (1 - settle) + centred / 1000 * settle)
    x = cx - (left + right) / 2 * size / 1000
    place = 'transform="translate(%s %s) scale(%.5f)"' % (number(x), number(y), size / 1000)
    under = ('<path %s d="%s" fill="none" stroke="%s" stroke-width="%.0f" '
             'stroke-linejoin="round"/>' % (place, path, rim, 2200 / size)) if rim else ""
    return under + '<path %s d="%s" fill="%s"/>' % (place, path, colour)


def key_face(key, colour, strong, enlarged=1.0):
    """A cap in its finger's colour, full for the keys of rest; white where colour is None. Its
    face can be found by the cap's number."""
    fill = (colour if strong else mix(colour, WHITE, 0.45)) if colour else WHITE
    edge = mix(colour, INK, 0.45) if colour else GREY
    line = (2.0 if strong else 1.2) * enlarged
    half = line / 2
    return ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="#000" fill-opacity=".16"/>'
            '<rect id="cap%d" x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s" stroke="%s" '
            'stroke-width="%s"/>'
            % (number(key.x + 0.6 * enlarged), number(key.y + 2 * enlarged), number(key.width),
               number(key.height), number(5.5 * enlarged), key.cap, number(key.x + half),
               number(key.y + half), number(key.width - line), number(key.height - line),
               number(5 * enlarged), fill, edge, number(line)))


def ink_on(colour, strong):
    """The colour of a text on a cap, and of its rim."""
    if strong:
        return WHITE, mix(colour, INK, 0.6)
    return (INK if colour else "#5B6B75"), None


def both_letters(tables, key, colour, strong):
    """The Arabic letter large, the Latin one small in the corner."""
    texts = tables["caps"][key.cap]
    fill, rim = ink_on(colour, strong)
    latin = texts["englishShift"] if texts["english"].isalpha() else texts["english"]
    if texts["arabic"] == texts["english"]:
        return written(latin, *key.centre(), key.height * 0.52, fill, rim=rim, settle=1.0)
    _, left, _, right, _, _ = glyph_of(texts["arabic"])
    size = min(key.height * 0.60, key.width * 0.56 / (right - left) * 1000)
    half = (right - left) / 2 * size / 1000
    cx = min(key.x + key.width * 0.64, key.x + key.width - 3.0 - half)
    return (written(texts["arabic"], cx, key.y + key.height * 0.57, size, fill, settle=1.0,
                    rim=rim)
            + written(latin, key.x + key.width * 0.20, key.y + key.height * 0.27,
                      key.height * 0.30, fill, settle=0.0))


def named(tables, key, colour, size):
    """A key with a name; all names stand on the base line of their row."""
    fill, _ = ink_on(colour, strong=False)
    return written(tables["caps"][key.cap]["arabic"], *key.centre(), size, fill,
                   base_line=0.30, settle=0.0)


def plate(x, y, width, height, radius=11):
    """The keyboard's body under the caps."""
    return ('<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="#000" fill-opacity=".14"/>'
            '<rect x="%s" y="%s" width="%s" height="%s" rx="%s" fill="%s" stroke="%s" '
            'stroke-width="2"/>'
            % (number(x + 3), number(y + 4), number(width), number(height), radius,
               number(x), number(y), number(width), number(height), radius, LIGHT_GREY, INK))


def plate_of(keys, margin):
    left, top = min(k.x for k in keys) - margin, min(k.y for k in keys) - margin
    right = max(k.x + k.width for k in keys) + margin
    bottom = max(k.y + k.height for k in keys) + margin
    return plate(left, top, right - left, bottom - top)


def coloured_hand(hand, used, x, y, scale):
    """A hand at rest, its left top corner at (x, y); only the fingers used have their colour."""
    right = hand == "right"
    body = hands.left_hand(None, True, hand, lambda f: FINGER_COLOURS[f] if f in used else None,
                           right=right, edge=1.7, sleeve=sleeve())
    if right:
        body = hands.mirrored(body)
    return '<g transform="translate(%s %s) scale(%s)">%s</g>' % (number(x), number(y), scale, body)


def parting(keys, told):
    """A line between the keys of the two hands, from the number row to the space bar."""
    rows = {}
    for key in keys:
        if key.cap in told and key.cap != SPACE:
            rows.setdefault(round(key.y / 10), []).append(key)
    points = []
    for row in sorted(rows.values(), key=lambda row: min(k.y for k in row)):
        left = max((k for k in row if told[k.cap][0] == "left"), key=lambda k: k.x)
        right = min((k for k in row if told[k.cap][0] == "right"), key=lambda k: k.x)
        x = (left.x + left.width + right.x) / 2
        points += [(x, left.y - 0.8), (x, left.y + left.height + 0.8)]
    points[0] = (points[0][0], points[0][1] - 6)
    data = points_path(points)
    return ('<path d="%s" fill="none" stroke="%s" stroke-width="3.6" stroke-linejoin="round" '
            'stroke-linecap="round"/><path d="%s" fill="none" stroke="%s" stroke-width="1.8" '
            'stroke-linejoin="round" stroke-linecap="round"/>' % (data, WHITE, data, INK))


# The charts ----------------------------------------------------------------------------------


def names_of_fingers(x, y, step):
    """The names under one another at the right of their colours."""
    out = []
    for place, (finger, name) in enumerate(FINGER_NAMES.items()):
        row = y + place * step
        out.append('<circle cx="%s" cy="%s" r="8" fill="%s" stroke="%s" stroke-width="2"/>'
                   % (x, row, FINGER_COLOURS[finger], mix(FINGER_COLOURS[finger], INK, 0.45)))
        _, left, _, right, _, _ = glyph_of(name)
        size = 18
        out.append(written(name, x - 17 - (right - left) / 2 * size / 1000, row, size, INK,
                           base_line=0.26, settle=0.0))
    return "".join(out)


def whole_keyboard(tables):
    told, guide = strikers(tables), guide_caps(tables)
    keys = [VIEWS[146].key(tables, cap) for cap in MAIN_BLOCK]
    body = [plate_of(keys, 10)]
    for key in keys:
        colour = FINGER_COLOURS[told[key.cap][1]] if key.cap in told else None
        body.append(key_face(key, colour, key.cap in guide))
        if len(tables["caps"][key.cap]["english"]) == 1:
            body.append(both_letters(tables, key, colour, key.cap in guide))
        else:
            body.append(named(tables, key, colour, 12))
    body.append(parting(keys, told))
    for hand, x in (("left", 26), ("right", 545 - 26 - 128 * 1.3)):
        used = {finger for side, finger in told.values() if side == hand}
        body.append(coloured_hand(hand, used, x, 196, 1.3))
    # The lowest thirty pixels are the caption's of the window that shows the chart.
    body.append(names_of_fingers(300, 234, 31))
    return framed(545, 416, "".join(body))


def numeric_pad(tables):
    owner = {cap: finger for finger, caps in PAD_FINGERS.items() for cap in caps}
    keys = [VIEWS[147].key(tables, cap) for cap in PAD]
    body = [plate_of(keys, 10)]
    for key in keys:
        texts = tables["caps"][key.cap]
        colour, strong = FINGER_COLOURS[owner[key.cap]], key.cap in PAD_GUIDE
        fill, rim = ink_on(colour, strong)
        text = texts["sign"] or texts["arabic"]
        size = 13 if len(text) > 1 else 22
        body.append(key_face(key, colour, strong) + written(text, *key.centre(), size, fill,
                                                            rim=rim))
    body.append(coloured_hand("right", set(PAD_FINGERS), 220 / 2 - 64 * 1.12 - 2, 236, 1.12))
    return framed(220, 417, "".join(body))


# Where the keyboard stands in the maps of a finger's keys: the size of the picture, the middle of
# the board in it, its top, the two scales, and the scale of the hands under it.
REACH_MAPS = {
    138: ("index", 281, 214, 184.5, 16, 1.0, 0.94, 0.66),
    139: ("middle", 420, 260, 201.5, 20, 0.96, 0.98, 0.86),
    140: ("ring", 420, 260, 201.5, 20, 0.96, 0.98, 0.86),
    141: ("little", 480, 280, 201.5, 22, 1.1, 1.06, 0.90),
}


def reach_map(tables, finger, width, height, middle, top, across, down, hand_scale):
    """The keys of one finger of each hand, the guide key the strongest. The hands stand under the
    keyboard, so that they hide no key, with the finger below its guide key."""
    told, guide = strikers(tables), guide_caps(tables)
    view = View(MAIN_ORIGIN, width / 2 - middle * across, top, across, down)
    keys = [view.key(tables, cap) for cap in MAIN_BLOCK]
    body = [plate_of(keys, 8)]
    for key in keys:
        own = key.cap in told and told[key.cap][1] == finger
        colour, strong = FINGER_COLOURS[finger] if own else None, own and key.cap in guide
        body.append(key_face(key, colour, strong))
        if own and len(tables["caps"][key.cap]["english"]) == 1:
            body.append(both_letters(tables, key, colour, strong))
        elif own:
            body.append(named(tables, key, colour, 12))
    if finger == "index":
        body.append(parting([k for k in keys if told.get(k.cap, ("", ""))[1] == finger], told))
    tip = next(f.axis[-1][0] for f in hands.FINGERS if f.name == finger)
    for hand in ("left", "right"):
        home = next(key.centre()[0] for key in keys if guide.get(key.cap) == (hand, finger))
        across_hand = tip if hand == "left" else hands.PLAIN_SIZE[0] - tip
        x = home - across_hand * hand_scale
        y = max(key.y + key.height for key in keys) + 6
        body.append(coloured_hand(hand, {finger}, x, y, hand_scale))
    return framed(width, height, "".join(body))


# How far down its guide key a fingertip lies, in shares of the key's height: low, so that the
# letters stay in sight, and on an arc, as the fingers are not of one length.
TIP_DOWN = {"little": 1.04, "ring": 0.89, "middle": 0.84, "index": 0.91}


def laid_hand(hand, guide, keys):
    """A hand whose coloured fingers lie on the lower edge of their guide keys; the right thumb has
    the space bar, and the left one rests there too."""
    def laid(x, y):
        return tuple((p - o) / LAID_SCALE for p, o in zip((x, y), LAID_ORIGIN))

    used = {finger: FINGER_COLOURS[finger] for side, finger in guide.values() if side == hand}
    aims = {finger: laid(keys[cap].centre()[0], keys[cap].y + keys[cap].height * TIP_DOWN[finger])
            for cap, (side, finger) in guide.items() if side == hand}
    if hand == "right":
        used["thumb"] = FINGER_COLOURS["thumb"]
    x, _ = rest_point(hand, "thumb")
    aims["thumb"] = (x, laid(0, keys[SPACE].y + keys[SPACE].height * 0.5)[1])
    placed = LaidHand(hand, used, aims=aims, moved=(0.0, 13.0))
    # The thumb lies flatter than in the set of hands, where its colour goes on to the wrist.
    placed.fingers = tuple(replace(f, lit_from=()) for f in placed.fingers)
    return placed


# The window that shows this chart writes its caption over the end of the picture.
CAPTION_ROOM = 16


def guide_row(tables):
    guide, told = guide_caps(tables), strikers(tables)
    keys = {cap: VIEWS[148].key(tables, cap) for cap in MAIN_BLOCK}
    body = [plate_of(keys.values(), 12)]
    for cap, key in keys.items():
        colour = FINGER_COLOURS[told[cap][1]] if cap in guide or cap == SPACE else None
        body.append(key_face(key, colour, cap in guide, LAID_SCALE))
        if cap in guide:
            body.append(written(tables["caps"][cap]["arabic"], key.centre()[0],
                                key.y + key.height * 0.34, 21.5, WHITE, settle=1.0,
                                rim=mix(colour, INK, 0.6)))
    body.append('<g transform="translate(%s %s) scale(%s)">' % (*LAID_ORIGIN, LAID_SCALE))
    for hand in ("left", "right"):
        laid = laid_hand(hand, guide, keys)
        body += [laid.whole(0.85), laid.coloured_fingers()]
    return framed(500, 270, "".join(body) + "</g>", CAPTION_ROOM)


CHARTS = {146: whole_keyboard, 147: numeric_pad, 148: guide_row}


def main(tables_file, folder):
    tables = json.loads(Path(tables_file).read_text(encoding="utf-8"))
    Path(folder).mkdir(parents=True, exist_ok=True)
    drawn = {id_: draw(tables) for id_, draw in CHARTS.items()}
    drawn.update({id_: reach_map(tables, *place) for id_, place in REACH_MAPS.items()})
    for id_, picture in drawn.items():
        (Path(folder) / ("%d.svg" % id_)).write_text(picture, encoding="utf-8")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit("usage: charts.py TABLES_FILE OUTDIR")
    main(*sys.argv[1:])
