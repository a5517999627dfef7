#!/usr/bin/env python3
"""Writes the six arcade cabinets, each facing right (NNNL.svg, for the left half of the room)
and facing left (NNNR.svg, the same drawing mirrored), and the arcade room (room.svg).

Every cabinet is drawn on the same 64 x 96 canvas with its feet on the same line, so the room
can swap styles and sides without moving anything. A cabinet is its side profile (the near side
panel, seen flat) pushed back along DEPTH: the faces along the profile's front edge become the
marquee, the screen, the control panel and the coin door, seen at a slant.

  001  Upright   navy, stars on the side, one stick and two buttons, a space shooter
  002  Twin      teal, round-topped, two sticks side by side, a maze game
  003  Racer     wine, a low hood over the screen, a big brass steering wheel
  004  Gunner    red, a wedge marquee leaning out, a light gun on its cord
  005  Mini      brass, a short cabinet for small players, a trackball
  006  Pinball   a table on legs with its backbox; flippers and bumpers on the playfield
Run it from anywhere; the SVGs land beside this script.
"""
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from palette import (BRASS, CREAM, CURTAIN, INK, NAVY, NIGHT, POPCORN, TEAL, WHITE,  # noqa: E402
                     WINE, svg)

CW, CH = 64, 96


def pt(p, v, s=1.0):
    return (p[0] + v[0] * s, p[1] + v[1] * s)


def poly(points, fill, cls="o", extra=""):
    d = "M" + " L".join(f"{x:g},{y:g}" for x, y in points) + " Z"
    return f'<path class="{cls}" d="{d}" fill="{fill}"{extra}/>\n'


def face_transform(p, q, v):
    """Local drawing space of the face between front-edge points p (top) and q (bottom):
    x runs 0..100 across the face along DEPTH, y 0..100 down the face."""
    a, b = v[0] / 100, v[1] / 100
    c, d = (q[0] - p[0]) / 100, (q[1] - p[1]) / 100
    return f"matrix({a:g},{b:g},{c:g},{d:g},{p[0]:g},{p[1]:g})"


def on_face(p, q, v, body):
    # Outlines drawn inside a face are scaled with it; keep them thin there.
    return f'<g transform="{face_transform(p, q, v)}">{body}</g>\n'


def quad(p, q, v, fill):
    return poly([p, q, pt(q, v), pt(p, v)], fill)


def cabinet(front, back, v, side, colours, art, extras):
    """front: front-edge points top to bottom with the role of the face below each point;
    back: back-edge points bottom to top; colours: role -> fill; art: role -> face drawing."""
    out = []
    top_back, top_front = back[-1], front[0][0]
    out.append(poly([top_back, top_front, pt(top_front, v), pt(top_back, v)], colours["top"]))
    for (p, role), (q, _) in zip(front, front[1:]):
        if role is None:
            continue
        out.append(quad(p, q, v, colours[role]))
        if role in art:
            out.append(on_face(p, q, v, art[role]))
    out.append(poly([f[0] for f in front] + back, side))
    out.append(extras)
    return "".join(out)


# Thin ink for drawings inside a scaled face: the face maps 100 units to its size.
def thin(w=1.0):
    return f'stroke="{INK}" stroke-width="{w}" vector-effect="non-scaling-stroke"'


def screen(inner):
    return (f'<rect x="10" y="8" width="80" height="84" fill="{NIGHT}" {thin(1.5)}/>'
            + inner)


def star(cx, cy, r, fill):
    import math
    pts = []
    for i in range(10):
        a = math.radians(-90 + i * 36)
        rr = r if i % 2 == 0 else r * 0.45
        pts.append((cx + rr * math.cos(a), cy + rr * math.sin(a)))
    return poly(pts, fill)


# ------------------------------------------------------------------ the six styles
def upright():
    v = (24, -5)
    front = [((34, 8), "marquee"), ((34, 20), "bezel"), ((31, 22), "screen"), ((31, 48), "panel"),
             ((39, 55), "panelfront"), ((39, 60), "tuck"), ((33, 62), "body"), ((33, 93), None)]
    back = [(8, 93), (8, 10)]
    colours = {"top": INK, "marquee": POPCORN, "bezel": INK, "screen": INK, "panel": NAVY,
               "panelfront": CURTAIN, "tuck": INK, "body": NAVY}
    art = {
        "marquee": f'<path d="M20,50 L30,20 L40,50 L50,20 L60,50 L70,20 L80,50" fill="none" '
                   f'stroke="{CURTAIN}" stroke-width="14" stroke-linejoin="round"/>',
        "screen": screen(
            f'<path d="M44,76 L50,62 L56,76 Z" fill="{TEAL}"/>'
            f'<rect x="24" y="24" width="10" height="8" fill="{CURTAIN}"/>'
            f'<rect x="46" y="20" width="10" height="8" fill="{CURTAIN}"/>'
            f'<rect x="66" y="24" width="10" height="8" fill="{CURTAIN}"/>'
            f'<rect x="49" y="44" width="2" height="10" fill="{WHITE}"/>'),
        "body": f'<rect x="38" y="22" width="26" height="22" fill="{WINE}" {thin()}/>'
                f'<rect x="46" y="28" width="10" height="4" fill="{POPCORN}" {thin()}/>',
    }
    extras = (
        # side art: a curtain stripe and stars
        poly([(8, 40), (31, 40), (31, 46), (8, 52)], CURTAIN) +
        star(18, 26, 6, POPCORN) + star(20, 74, 4, CREAM) +
        # stick and two buttons on the panel
        f'<path class="ln" d="M47,52 L46,43"/><circle class="o" cx="46" cy="42" r="3" fill="{CURTAIN}"/>'
        f'<ellipse class="o" cx="55" cy="49" rx="2.5" ry="1.5" fill="{POPCORN}"/>'
        f'<ellipse class="o" cx="61" cy="47.5" rx="2.5" ry="1.5" fill="{TEAL}"/>\n'
        f'<rect class="hi" x="11" y="14" width="3" height="74"/>\n')
    return cabinet(front, back, v, NAVY, colours, art, extras)


def twin():
    v = (26, -5)
    front = [((32, 14), "marquee"), ((32, 24), "bezel"), ((30, 26), "screen"), ((30, 50), "panel"),
             ((36, 56), "panelfront"), ((36, 62), "tuck"), ((32, 64), "body"), ((32, 93), None)]
    back = [(6, 93), (6, 22), (8, 14), (14, 9), (24, 8), (30, 10)]
    colours = {"top": NAVY, "marquee": CREAM, "bezel": NAVY, "screen": INK, "panel": TEAL,
               "panelfront": POPCORN, "tuck": INK, "body": TEAL}
    art = {
        "marquee": f'<circle cx="30" cy="50" r="22" fill="{CURTAIN}"/><circle cx="70" cy="50" r="22" '
                   f'fill="{TEAL}"/>',
        "screen": screen(
            f'<path d="M22,20 H78 V80 H22 Z M38,36 H62 V64 H38 Z" fill="none" stroke="{TEAL}" '
            f'stroke-width="6"/>'
            + "".join(f'<circle cx="{x}" cy="28" r="2.5" fill="{CREAM}"/>' for x in (30, 42, 54, 66))
            + f'<circle cx="30" cy="72" r="7" fill="{POPCORN}"/>'),
        "body": f'<rect x="20" y="24" width="24" height="20" fill="{NAVY}" {thin()}/>'
                f'<rect x="56" y="24" width="24" height="20" fill="{NAVY}" {thin()}/>',
    }
    extras = (
        # side art: a teal wave
        f'<path d="M6,70 C14,62 22,78 30,68 V93 H6 Z" fill="{NAVY}"/>'
        f'<path class="o" d="M6,70 C14,62 22,78 30,68" fill="none"/>'
        f'<circle class="o" cx="18" cy="36" r="7" fill="{POPCORN}"/>'
        f'<circle cx="16" cy="34" r="2" fill="{WHITE}"/>'
        # two sticks
        f'<path class="ln" d="M41,52 L40,44"/><circle class="o" cx="40" cy="43" r="3" fill="{CURTAIN}"/>'
        f'<path class="ln" d="M53,50 L52,42"/><circle class="o" cx="52" cy="41" r="3" fill="{CREAM}"/>\n'
        f'<rect class="hi" x="9" y="22" width="3" height="66"/>\n')
    return cabinet(front, back, v, TEAL, colours, art, extras)


def racer():
    v = (24, -4)
    front = [((30, 14), "marquee"), ((30, 24), "hood"), ((40, 30), "bezel"), ((36, 32), "screen"),
             ((36, 52), "dash"), ((46, 58), "dashfront"), ((46, 64), "tuck"), ((36, 66), "body"),
             ((36, 93), None)]
    back = [(6, 93), (6, 16)]
    colours = {"top": INK, "marquee": CURTAIN, "hood": WINE, "bezel": INK, "screen": INK,
               "dash": NAVY, "dashfront": BRASS, "tuck": INK, "body": WINE}
    art = {
        "marquee": f'<path d="M10,80 H90 M10,50 H90" stroke="{CREAM}" stroke-width="14"/>'
                   + "".join(f'<rect x="{x}" y="20" width="10" height="20" fill="{INK}"/>'
                             for x in (10, 30, 50, 70)),
        "screen": screen(
            f'<path d="M44,20 H56 L86,92 H14 Z" fill="{NAVY}"/>'
            f'<path d="M50,24 V36 M50,48 V62 M50,74 V88" stroke="{CREAM}" stroke-width="3"/>'
            f'<rect x="40" y="66" width="20" height="14" fill="{CURTAIN}"/>'),
        "body": f'<rect x="30" y="70" width="40" height="14" fill="{INK}" {thin()}/>',
    }
    extras = (
        # side art: a checked flag band
        poly([(6, 40), (36, 40), (36, 50), (6, 50)], CREAM)
        + "".join(poly([(x, 40), (x + 5, 40), (x + 5, 45), (x, 45)], INK, cls="")
                  for x in (6, 16, 26))
        + "".join(poly([(x, 45), (x + 5, 45), (x + 5, 50), (x, 50)], INK, cls="")
                  for x in (11, 21, 31))
        + poly([(6, 40), (36, 40), (36, 50), (6, 50)], "none")
        # the steering wheel on its column, and a pedal at the foot
        + f'<path class="ln" d="M52,56 L56,50"/>'
        f'<ellipse class="o" cx="57" cy="46" rx="5" ry="9" fill="none" stroke-width="4"/>'
        f'<ellipse cx="57" cy="46" rx="5" ry="9" fill="none" stroke="{BRASS}" stroke-width="2"/>'
        f'<path d="M57,37 V55 M52,46 H62" stroke="{BRASS}" stroke-width="1.5"/>'
        f'<circle class="o" cx="57" cy="46" r="2" fill="{CURTAIN}"/>'
        f'<path class="o" d="M40,92 L52,86 L56,88 L46,94 Z" fill="{BRASS}"/>\n'
        f'<rect class="hi" x="9" y="18" width="3" height="70"/>\n')
    return cabinet(front, back, v, WINE, colours, art, extras)


def gunner():
    v = (24, -5)
    front = [((42, 6), "marquee"), ((32, 22), "bezel"), ((30, 24), "screen"), ((30, 50), "panel"),
             ((36, 55), "panelfront"), ((36, 60), "tuck"), ((32, 62), "body"), ((32, 93), None)]
    back = [(8, 93), (8, 12), (14, 6)]
    colours = {"top": WINE, "marquee": NAVY, "bezel": INK, "screen": INK, "panel": WINE,
               "panelfront": BRASS, "tuck": INK, "body": CURTAIN}
    art = {
        "marquee": star(50, 50, 34, POPCORN).replace('class="o"', f'{thin()}'),
        "screen": screen(
            f'<circle cx="50" cy="50" r="30" fill="{CREAM}"/><circle cx="50" cy="50" r="20" '
            f'fill="{CURTAIN}"/><circle cx="50" cy="50" r="10" fill="{CREAM}"/>'
            f'<circle cx="50" cy="50" r="4" fill="{CURTAIN}"/>'),
        "body": f'<rect x="34" y="20" width="32" height="24" fill="{WINE}" {thin()}/>'
                f'<rect x="44" y="26" width="12" height="4" fill="{POPCORN}" {thin()}/>',
    }
    extras = (
        # side art: a lightning bolt
        poly([(22, 28), (12, 52), (20, 52), (14, 78), (30, 46), (21, 46), (28, 28)], POPCORN)
        # the light gun, holstered on the panel, its cord down to the body
        + f'<path d="M44,58 C44,70 40,74 36,76" fill="none" stroke="{INK}" stroke-width="1.5"/>'
        f'<path class="o" d="M40,46 H54 V51 H47 L45,57 H41 L42,51 H40 Z" fill="{TEAL}"/>'
        f'<rect class="o" x="53" y="47" width="4" height="3" fill="{INK}"/>\n'
        f'<rect class="hi" x="11" y="14" width="3" height="74"/>\n')
    return cabinet(front, back, v, CURTAIN, colours, art, extras)


def mini():
    v = (22, -4)
    front = [((32, 32), "marquee"), ((32, 40), "bezel"), ((30, 42), "screen"), ((30, 60), "panel"),
             ((38, 65), "panelfront"), ((38, 70), "tuck"), ((32, 72), "body"), ((32, 93), None)]
    back = [(10, 93), (10, 34)]
    colours = {"top": INK, "marquee": CURTAIN, "bezel": INK, "screen": INK, "panel": NAVY,
               "panelfront": CURTAIN, "tuck": INK, "body": NAVY}
    art = {
        "marquee": "".join(f'<circle cx="{x}" cy="50" r="10" fill="{POPCORN}"/>'
                           for x in (18, 50, 82)),
        "screen": screen(
            "".join(f'<rect x="{x}" y="{y}" width="14" height="8" fill="{c}"/>'
                    for y, c in ((18, CURTAIN), (30, POPCORN), (42, TEAL))
                    for x in (16, 34, 52, 70))
            + f'<circle cx="46" cy="66" r="4" fill="{WHITE}"/>'
            f'<rect x="36" y="80" width="24" height="5" fill="{CREAM}"/>'),
        "body": f'<circle cx="50" cy="40" r="14" fill="{BRASS}" {thin()}/>',
    }
    extras = (
        # side art: a brass panel with a navy porthole
        poly([(10, 50), (30, 50), (30, 66), (10, 66)], NAVY)
        + f'<circle class="o" cx="20" cy="82" r="5" fill="{POPCORN}"/>'
        # the trackball
        f'<ellipse class="o" cx="48" cy="60" rx="5" ry="4" fill="{INK}"/>'
        f'<circle class="o" cx="48" cy="58" r="3.5" fill="{CURTAIN}"/>'
        f'<circle cx="47" cy="57" r="1" fill="{WHITE}"/>\n'
        f'<rect class="hi" x="13" y="36" width="3" height="54"/>\n')
    return cabinet(front, back, v, BRASS, colours, art, extras)


def pinball():
    """Side profile: the backbox at the back, the playfield running forward to the player."""
    v = (20, -6)
    out = []
    # legs (far ones first)
    for x, y in ((12 + v[0], 66 + v[1]), (44 + v[0], 70 + v[1]), (12, 66), (44, 70)):
        out.append(f'<path d="M{x},{y} L{x},{y + 24}" stroke="{INK}" stroke-width="4" '
                   f'stroke-linecap="round"/>')
        out.append(f'<path d="M{x},{y} L{x},{y + 24}" stroke="{BRASS}" stroke-width="2" '
                   f'stroke-linecap="round"/>')
    # the playfield's top, seen from above: a long slanted glass
    a, b = (6, 52), (46, 58)
    out.append(poly([a, b, pt(b, v), pt(a, v)], NAVY))
    out.append(on_face(a, pt(a, v), (b[0] - a[0], b[1] - a[1]),
                       f'<circle cx="30" cy="30" r="9" fill="{CURTAIN}" {thin()}/>'
                       f'<circle cx="30" cy="70" r="9" fill="{POPCORN}" {thin()}/>'
                       f'<circle cx="50" cy="50" r="9" fill="{TEAL}" {thin()}/>'
                       f'<path d="M84,18 L74,40 M84,82 L74,60" stroke="{CREAM}" stroke-width="6" '
                       f'stroke-linecap="round"/>'
                       f'<circle cx="64" cy="44" r="3" fill="{WHITE}"/>'))
    # the player's end, with the coin door and flipper buttons
    out.append(quad(b, (46, 68), v, CURTAIN))
    out.append(on_face(b, (46, 68), v, f'<rect x="36" y="30" width="28" height="40" fill="{INK}" {thin()}/>'))
    # the cabinet's side
    out.append(poly([a, b, (46, 68), (6, 64)], CURTAIN))
    out.append(f'<path d="M10,58 L42,62" stroke="{POPCORN}" stroke-width="3" stroke-linecap="round"/>')
    out.append(f'<circle class="o" cx="44" cy="63" r="1.8" fill="{POPCORN}"/>')
    # backbox standing at the back: its side, its top, its lit front facing the player
    bb = [(6, 52), (6, 6), (14, 6), (14, 52)]
    out.append(poly([(6, 6), (14, 6), pt((14, 6), v), pt((6, 6), v)], INK))
    out.append(quad((14, 6), (14, 50), v, NAVY))
    out.append(on_face((14, 6), (14, 50), v,
                       f'<rect x="10" y="8" width="80" height="70" fill="{CREAM}" {thin()}/>'
                       + star(50, 40, 26, CURTAIN).replace('class="o"', thin())
                       + f'<rect x="20" y="84" width="60" height="8" fill="{POPCORN}" {thin()}/>'))
    out.append(poly(bb, CURTAIN))
    out.append(f'<rect class="hi" x="8" y="9" width="2" height="40"/>\n')
    return "".join(out)


STYLES = [upright, twin, racer, gunner, mini, pinball]


# ------------------------------------------------------------------ the room
def room():
    """The arcade room, 640 x 320: back wall, carpet, neon, a divider seam at the middle."""
    W, H = 640, 320
    out = [f'<rect width="{W}" height="{H}" fill="{NIGHT}"/>\n']
    # back wall in wine with curtain panels and a brass rail; the dark carpet below
    out.append(f'<rect class="o" x="-2" y="-2" width="{W + 4}" height="132" fill="{WINE}"/>\n')
    for x in range(20, W, 80):
        out.append(f'<rect x="{x}" y="0" width="40" height="118" fill="{CURTAIN}" opacity="0.5"/>')
    out.append(f'<rect class="o" x="-2" y="118" width="{W + 4}" height="12" fill="{BRASS}"/>\n')
    out.append(f'<rect class="o" x="-2" y="130" width="{W + 4}" height="{H - 128}" fill="{NIGHT}"/>\n')
    # the carpet: a repeating arcade pattern of stars, rings and squiggles
    k = 0
    for row, y in enumerate(range(150, H, 34)):
        for x in range(20 + (row % 2) * 34, W, 68):
            kind = k % 3
            k += 1
            if kind == 0:
                out.append(star(x, y, 5, POPCORN))
            elif kind == 1:
                out.append(f'<circle cx="{x}" cy="{y}" r="5" fill="none" stroke="{TEAL}" '
                           f'stroke-width="3"/>')
            else:
                out.append(f'<path d="M{x - 8},{y} q4,-6 8,0 t8,0" fill="none" stroke="{CURTAIN}" '
                           f'stroke-width="3" stroke-linecap="round"/>')
    # neon strips along the top of the wall, teal on the left, yellow on the right
    for x0, x1, c in ((40, 280, TEAL), (360, 600, POPCORN)):
        out.append(f'<path d="M{x0},22 H{x1}" stroke="{c}" stroke-width="10" stroke-linecap="round" '
                   f'opacity="0.35"/><path d="M{x0},22 H{x1}" stroke="{c}" stroke-width="4" '
                   f'stroke-linecap="round"/><path d="M{x0},22 H{x1}" stroke="{WHITE}" '
                   f'stroke-width="1" stroke-linecap="round"/>\n')
    # wall posters of old games, shapes only
    for x, c in ((90, TEAL), (200, POPCORN), (420, CURTAIN), (530, TEAL)):
        out.append(f'<rect class="o" x="{x}" y="42" width="36" height="52" fill="{CREAM}"/>'
                   f'<rect x="{x + 5}" y="47" width="26" height="30" fill="{c}" stroke="{INK}" '
                   f'stroke-width="1.5"/>' + star(x + 18, 62, 8, WHITE if c != POPCORN else CURTAIN)
                   + f'<path d="M{x + 6},84 H{x + 30}" stroke="{INK}" stroke-width="2"/>\n')
    # the doorway at the middle of the back wall, where the room is divided
    out.append(f'<path class="o" d="M296,130 V58 A24,24 0 0 1 344,58 V130 Z" fill="{NIGHT}"/>\n')
    out.append(f'<path class="o" d="M300,130 V60 A20,20 0 0 1 340,60 V130 Z" fill="{CURTAIN}"/>\n')
    out.append(f'<path d="M320,42 V130" stroke="{WINE}" stroke-width="2"/>\n')
    out.append(f'<path class="o" d="M296,130 V58 A24,24 0 0 1 344,58 V130 Z" fill="none"/>\n')
    out.append(f'<rect class="hi" x="304" y="66" width="4" height="60"/>\n')
    out.append(f'<rect class="o" x="1" y="1" width="{W - 2}" height="{H - 2}" fill="none"/>\n')
    return svg(W, H, "".join(out), "The arcade room")


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    for i, make in enumerate(STYLES, start=1):
        # Drawn a little large; scaled to fit the canvas about the floor line, lines kept at 2 px.
        body = (f'<g transform="translate(2.5,9.4) scale(0.9)">\n'
                '<style>.o, .ln { stroke-width: 2.2; }</style>\n' + make() + '</g>\n')
        name = f"{i:03d}"
        with open(os.path.join(here, name + "L.svg"), "w", encoding="utf-8") as f:
            f.write(svg(CW, CH, body, f"Cabinet {name}, facing right"))
        mirrored = f'<g transform="translate({CW},0) scale(-1,1)">\n{body}</g>\n'
        with open(os.path.join(here, name + "R.svg"), "w", encoding="utf-8") as f:
            f.write(svg(CW, CH, mirrored, f"Cabinet {name}, facing left"))
    with open(os.path.join(here, "room.svg"), "w", encoding="utf-8") as f:
        f.write(room())


if __name__ == "__main__":
    main()
