#!/usr/bin/env python3
"""Writes the three full-window pictures: the title screen, the goal reached and the game lost.

All three show the same picture palace on the same street at night, 640 x 480 pixels:
  title.svg  the theater open for the evening, every bulb lit, the name on the marquee
  goal.svg   a gala night: fireworks, searchlights, confetti, a red carpet and velvet ropes
  lose.svg   closed down: rain, dark bulbs, boarded doors, a letter fallen off the marquee
Run it from anywhere; the SVGs land beside this script. Output is the same on every run.
"""
import math
import os
import random

from palette import (BRASS, CREAM, CURTAIN, INK, NAVY, NIGHT, POPCORN, TEAL, WHITE, WINE,
                     svg)

W, H = 640, 480
STREET = 420  # top of the sidewalk


# ------------------------------------------------------------------ the name on the marquee
# A monoline marquee face drawn as strokes, baseline at y=0, x-height 36, capital 52.
LETTERS = {
    "Z": (34, "M0,-52 H34 L0,0 H34"),
    "o": (36, "M18,-36 A18,18 0 1 1 17.9,-36 Z"),
    "r": (24, "M0,0 V-36 M0,-18 C0,-30 10,-37 24,-35"),
    "v": (32, "M0,-36 L16,0 L32,-36"),
    "a": (34, "M34,-18 A17,18 0 1 0 34,-17 M34,-36 V0"),
    "n": (32, "M0,0 V-36 M0,-20 C0,-30 8,-36 16,-36 C25,-36 32,-30 32,-20 V0"),
    "e": (34, "M1,-18 H34 C34,-29 27,-36 17,-36 C7,-36 0,-28 0,-18 C0,-7 8,0 18,0 "
              "C24,0 29,-2 32,-6"),
}
GAP = 12


def word_width(text):
    return sum(LETTERS[c][0] for c in text) + GAP * (len(text) - 1)


def wordmark(text, x, y, scale, colour, skew=None, missing=()):
    """The name, its baseline-left at (x, y). skew maps a letter index to (dx, dy, angle):
    a loose letter hanging off its place; letters of missing indexes have fallen off."""
    out = [f'<g transform="translate({x},{y}) scale({scale})">']
    pos = 0
    for i, c in enumerate(text):
        w, d = LETTERS[c]
        if i in missing:
            pos += w + GAP
            continue
        t = f"translate({pos},0)"
        if skew and i in skew:
            dx, dy, ang = skew[i]
            t = f"translate({pos + dx},{dy}) rotate({ang},{w / 2},-18)"
        out.append(f'  <g transform="{t}">'
                   f'<path d="{d}" fill="none" stroke="{INK}" stroke-width="15" '
                   f'stroke-linecap="round" stroke-linejoin="round"/>'
                   f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="9" '
                   f'stroke-linecap="round" stroke-linejoin="round"/></g>')
        pos += w + GAP
    out.append("</g>")
    return "\n".join(out) + "\n"


# ------------------------------------------------------------------ pieces of the street
def stars(rng, count, clear_of=None):
    out = []
    for _ in range(count):
        x, y = rng.randrange(8, W - 8), rng.randrange(6, 230)
        if clear_of and clear_of[0] < x < clear_of[2] and clear_of[1] < y < clear_of[3]:
            continue
        if rng.random() < 0.2:
            out.append(f'<path d="M{x - 4},{y} H{x + 4} M{x},{y - 4} V{y + 4}" stroke="{CREAM}" '
                       f'stroke-width="1.5" stroke-linecap="round"/>')
        else:
            out.append(f'<circle cx="{x}" cy="{y}" r="1.2" fill="{CREAM}"/>')
    return "\n".join(out) + "\n"


def moon():
    return (f'<circle class="o" cx="566" cy="66" r="26" fill="{CREAM}"/>\n'
            f'<circle cx="556" cy="58" r="5" fill="{BRASS}" opacity="0.35"/>\n'
            f'<circle cx="574" cy="76" r="3" fill="{BRASS}" opacity="0.35"/>\n')


def neighbours(rng, lit_share):
    """The two shops beside the theater, with lit and dark windows."""
    out = []
    blocks = [(-2, 196, 150, "flat"), (490, 168, 642, "step")]
    for x0, top, x1, roof in blocks:
        out.append(f'<rect class="o" x="{x0}" y="{top}" width="{x1 - x0}" height="{STREET - top + 2}" '
                   f'fill="{NAVY}"/>')
        out.append(f'<rect class="o" x="{x0}" y="{top - 8}" width="{x1 - x0}" height="8" fill="{INK}"/>')
        if roof == "step":
            out.append(f'<rect class="o" x="{x0 + 40}" y="{top - 30}" width="60" height="22" fill="{NAVY}"/>')
        cols = range(x0 + 18, x1 - 24, 32)
        for wy in range(top + 22, STREET - 60, 40):
            for wx in cols:
                lit = rng.random() < lit_share
                fill = POPCORN if lit else NIGHT
                out.append(f'<rect class="o" x="{wx}" y="{wy}" width="16" height="22" fill="{fill}"/>')
        # shop front at street level
        out.append(f'<rect class="o" x="{x0 + 14}" y="{STREET - 48}" width="{x1 - x0 - 28}" height="48" '
                   f'fill="{NIGHT}"/>')
        out.append(f'<path class="o" d="M{x0 + 8},{STREET - 54} H{x1 - 8} L{x1 - 16},{STREET - 44} '
                   f'H{x0 + 16} Z" fill="{TEAL}"/>')
    return "\n".join(out) + "\n"


def lamp(x, lit):
    globe = POPCORN if lit else NAVY
    return (
            f'<rect class="o" x="{x - 3}" y="{STREET - 100}" width="6" height="100" fill="{INK}"/>\n'
            f'<rect class="o" x="{x - 8}" y="{STREET - 8}" width="16" height="8" fill="{INK}"/>\n'
            f'<circle class="o" cx="{x}" cy="{STREET - 112}" r="11" fill="{globe}"/>\n'
            f'<path class="o" d="M{x - 9},{STREET - 122} H{x + 9} L{x + 4},{STREET - 130} '
            f'H{x - 4} Z" fill="{INK}"/>\n')


def bulb(x, y, lit):
    if lit:
        return (f'<circle class="o" cx="{x}" cy="{y}" r="5" fill="{POPCORN}"/>'
                f'<circle cx="{x - 1}" cy="{y - 1}" r="2" fill="{WHITE}"/>')
    return f'<circle class="o" cx="{x}" cy="{y}" r="5" fill="{NAVY}"/>'


def theater(lit, rng=None):
    """The picture palace: crown, façade, marquee with its bulbs, doors and the ticket booth.
    lit=False is the closed-down house: dark bulbs, a few of them gone."""
    out = []
    # crown with a sunburst fan
    out.append(f'<path class="o" d="M236,112 V78 H262 V58 H378 V78 H404 V112 Z" fill="{WINE}"/>')
    out.append(f'<path class="o" d="M276,112 A44,44 0 0 1 364,112 Z" fill="{BRASS if lit else NAVY}"/>')
    for ang in range(-75, 90, 25):
        out.append(f'<path d="M320,112 L{320 + round(40 * math.sin(math.radians(ang)))},'
                   f'{112 - round(40 * math.cos(math.radians(ang)))}" '
                   f'stroke="{INK}" stroke-width="2" stroke-linecap="round"/>')
    out.append(f'<path class="o" d="M320,26 L325,40 L340,40 L328,49 L332,63 L320,54 L308,63 L312,49 '
               f'L300,40 L315,40 Z" fill="{POPCORN if lit else BRASS}"/>')
    # façade and pilasters
    out.append(f'<rect class="o" x="150" y="110" width="340" height="{STREET - 110}" fill="{WINE}"/>')
    for px in (150, 466):
        out.append(f'<rect class="o" x="{px}" y="110" width="24" height="{STREET - 110}" fill="{CURTAIN}"/>')
        out.append(f'<rect class="hi" x="{px + 4}" y="126" width="5" height="{STREET - 140}"/>')
    out.append(f'<rect class="o" x="144" y="104" width="352" height="12" fill="{BRASS}"/>')
    # windows of the projection booth above the marquee
    for wx in (212, 304, 396):
        out.append(f'<rect class="o" x="{wx}" y="122" width="32" height="20" rx="10" '
                   f'fill="{POPCORN if lit else NIGHT}"/>')
    # entrance
    out.append(f'<rect class="o" x="174" y="262" width="292" height="{STREET - 262}" fill="{INK}"/>')
    for dx in (186, 378):
        for k in (0, 38):
            x = dx + k
            out.append(f'<rect class="o" x="{x}" y="296" width="36" height="{STREET - 296}" fill="{CURTAIN}"/>')
            out.append(f'<rect class="o" x="{x + 8}" y="306" width="20" height="40" rx="10" '
                       f'fill="{CREAM if lit else NAVY}"/>')
            hx = x + 30 if k == 0 else x + 6
            out.append(f'<rect class="o" x="{hx - 1}" y="356" width="2" height="18" fill="{BRASS}"/>')
        out.append(f'<rect class="o" x="{dx - 4}" y="284" width="84" height="12" fill="{BRASS}"/>')
    # ticket booth
    out.append(f'<path class="o" d="M284,{STREET} V318 A36,36 0 0 1 356,318 V{STREET} Z" fill="{BRASS}"/>')
    out.append(f'<path class="o" d="M294,372 V324 A26,26 0 0 1 346,324 V372 Z" '
               f'fill="{CREAM if lit else NAVY}"/>')
    out.append(f'<rect class="o" x="288" y="372" width="64" height="8" fill="{WINE}"/>')
    out.append(f'<rect class="o" x="292" y="380" width="56" height="{STREET - 380}" fill="{CURTAIN}"/>')
    # marquee
    out.append(f'<rect class="o" x="104" y="150" width="432" height="112" rx="6" fill="{BRASS}"/>')
    out.append(f'<rect class="o" x="114" y="160" width="412" height="92" rx="4" fill="{NAVY}"/>')
    out.append(f'<rect class="o" x="146" y="174" width="348" height="64" rx="2" '
               f'fill="{CREAM if lit else "#B9AE93"}"/>')
    out.append(f'<rect class="hi" x="110" y="154" width="420" height="4" rx="2"/>')
    out.append(f'<path class="o" d="M120,262 H520 L506,274 H134 Z" fill="{INK}"/>')
    gone = set()
    if not lit and rng is not None:
        gone = {i for i in range(60) if rng.random() < 0.2}
    k = 0
    for x in range(126, 520, 18):
        for y in (166, 246):
            if k not in gone:
                out.append(bulb(x, y, lit))
            else:
                out.append(f'<circle cx="{x}" cy="{y}" r="2" fill="{INK}"/>')
            k += 1
    for y in (190, 206, 222):
        out.append(bulb(128, y, lit))
        out.append(bulb(512, y, lit))
    return "\n".join(out) + "\n"


def person(x, coat, hat=False, base=STREET + 24):
    """A moviegoer seen from behind, facing the theater: coat, legs, the back of the head."""
    out = [f'<rect class="o" x="{x - 6}" y="{base - 14}" width="5" height="14" fill="{INK}"/>',
           f'<rect class="o" x="{x + 1}" y="{base - 14}" width="5" height="14" fill="{INK}"/>',
           f'<path class="o" d="M{x - 10},{base - 10} L{x - 8},{base - 34} C{x - 8},{base - 41} '
           f'{x + 8},{base - 41} {x + 8},{base - 34} L{x + 10},{base - 10} Z" fill="{coat}"/>',
           f'<circle class="o" cx="{x}" cy="{base - 45}" r="7" fill="{INK}"/>']
    if hat:
        out.append(f'<rect class="o" x="{x - 11}" y="{base - 50}" width="22" height="4" rx="2" fill="{NAVY}"/>'
                   f'<path class="o" d="M{x - 6},{base - 49} V{base - 57} H{x + 6} V{base - 49} Z" '
                   f'fill="{NAVY}"/>')
    return "".join(out) + "\n"


def sidewalk():
    return (f'<rect class="o" x="-2" y="{STREET}" width="{W + 4}" height="{H - STREET + 2}" fill="{NAVY}"/>\n'
            f'<rect class="o" x="-2" y="{STREET + 34}" width="{W + 4}" height="6" fill="{INK}"/>\n'
            f'<rect x="-2" y="{STREET + 40}" width="{W + 4}" height="{H - STREET - 38}" fill="{NIGHT}"/>\n')


# ------------------------------------------------------------------ the three pictures
def title():
    rng = random.Random(7)
    body = [f'<rect width="{W}" height="{H}" fill="{NIGHT}"/>\n',
            stars(rng, 70, clear_of=(530, 30, 600, 100)), moon(), neighbours(rng, 0.55),
            sidewalk(),
            theater(True), lamp(70, True), lamp(570, True),
            person(306, TEAL, hat=True), person(332, CURTAIN), person(470, BRASS, base=STREET + 40),
            wordmark("Zorvane", 320 - word_width("Zorvane") * 0.86 / 2, 227, 0.86, CURTAIN)]
    return svg(W, H, "".join(body), "Zorvane: the theater on a quiet night")


def firework(x, y, r, colour):
    out = []
    for i in range(12):
        a = math.radians(i * 30 + 15)
        x1, y1 = x + round(r * 0.35 * math.cos(a)), y + round(r * 0.35 * math.sin(a))
        x2, y2 = x + round(r * math.cos(a)), y + round(r * math.sin(a))
        out.append(f'<path d="M{x1},{y1} L{x2},{y2}" stroke="{colour}" stroke-width="3" '
                   f'stroke-linecap="round"/>')
        out.append(f'<circle cx="{x2}" cy="{y2}" r="2.5" fill="{WHITE}"/>')
    out.append(f'<circle cx="{x}" cy="{y}" r="4" fill="{WHITE}"/>')
    return "\n".join(out) + "\n"


def confetti(rng, count):
    colours = [CURTAIN, POPCORN, TEAL, CREAM, BRASS]
    out = []
    for _ in range(count):
        x, y = rng.randrange(10, W - 10), rng.randrange(10, 300)
        if 140 < x < 500 and 20 < y < 300:
            continue
        c = rng.choice(colours)
        out.append(f'<rect class="o" x="{x}" y="{y}" width="8" height="4" fill="{c}" '
                   f'transform="rotate({rng.randrange(0, 180)},{x + 4},{y + 2})"/>')
    return "\n".join(out) + "\n"


def goal():
    rng = random.Random(11)
    body = [f'<rect width="{W}" height="{H}" fill="{NIGHT}"/>\n', stars(rng, 50),
            # searchlights sweeping up from behind the theater
            f'<path d="M250,110 L60,-2 H140 Z" fill="{CREAM}" opacity="0.16"/>\n',
            f'<path d="M390,110 L500,-2 H590 Z" fill="{CREAM}" opacity="0.16"/>\n',
            firework(86, 84, 46, POPCORN), firework(560, 70, 40, CURTAIN),
            firework(470, 150, 26, TEAL), firework(196, 40, 24, CREAM),
            neighbours(rng, 0.8), sidewalk(),
            theater(True),
            # red carpet and velvet ropes on brass posts
            f'<path class="o" d="M280,{STREET} H360 L392,{H + 2} H248 Z" fill="{CURTAIN}"/>\n',
            f'<path d="M292,{STREET + 4} H302 L290,{H} H276 Z" class="hi"/>\n']
    for side in (-1, 1):
        posts = [(320 + side * 58, STREET + 10), (320 + side * 80, STREET + 50)]
        (xa, ya), (xb, yb) = posts
        body.append(f'<path d="M{xa},{ya - 16} Q{(xa + xb) / 2},{(ya + yb) / 2 - 2} {xb},{yb - 16}" '
                    f'fill="none" stroke="{INK}" stroke-width="7" stroke-linecap="round"/>\n'
                    f'<path d="M{xa},{ya - 16} Q{(xa + xb) / 2},{(ya + yb) / 2 - 2} {xb},{yb - 16}" '
                    f'fill="none" stroke="{WINE}" stroke-width="3" stroke-linecap="round"/>\n')
        for x, y in posts:
            body.append(f'<rect class="o" x="{x - 3}" y="{y - 20}" width="6" height="22" fill="{BRASS}"/>\n'
                        f'<circle class="o" cx="{x}" cy="{y - 22}" r="5" fill="{POPCORN}"/>\n'
                        f'<rect class="o" x="{x - 8}" y="{y}" width="16" height="5" rx="2" fill="{BRASS}"/>\n')
    body += [lamp(70, True), lamp(570, True),
             person(200, TEAL, hat=True), person(224, CURTAIN, base=STREET + 30),
             person(430, BRASS, base=STREET + 30), person(456, TEAL),
             confetti(rng, 90),
             wordmark("Zorvane", 320 - word_width("Zorvane") * 0.86 / 2, 227, 0.86, CURTAIN)]
    return svg(W, H, "".join(body), "Zorvane: a gala night, the goal is reached")


def board(x1, y1, x2, y2):
    """A plank nailed across a doorway, from (x1, y1) to (x2, y2)."""
    a = math.degrees(math.atan2(y2 - y1, x2 - x1))
    length = round(math.hypot(x2 - x1, y2 - y1))
    return (f'<g transform="translate({x1},{y1}) rotate({a:.1f})">'
            f'<rect class="o" x="-4" y="-6" width="{length + 8}" height="12" fill="{BRASS}"/>'
            f'<path d="M8,0 H{length // 2}" stroke="{WINE}" stroke-width="1" opacity="0.6"/>'
            f'<circle cx="2" cy="0" r="1.6" fill="{INK}"/>'
            f'<circle cx="{length - 2}" cy="0" r="1.6" fill="{INK}"/></g>\n')


def lose():
    rng = random.Random(5)
    body = [f'<rect width="{W}" height="{H}" fill="{NIGHT}"/>\n']
    # low clouds
    for cx, cy, s in ((90, 60, 1.0), (330, 30, 1.3), (560, 80, 1.1), (220, 130, 0.8)):
        body.append(f'<g transform="translate({cx},{cy}) scale({s})">'
                    f'<path class="o" d="M-70,14 C-76,-6 -50,-14 -40,-6 C-36,-26 -6,-30 4,-12 '
                    f'C14,-28 46,-22 46,-4 C66,-8 78,10 66,14 Z" fill="{NAVY}"/></g>\n')
    body += [neighbours(rng, 0.12), sidewalk(), theater(False, rng)]
    # doors and booth boarded up
    for dx in (186, 378):
        body.append(board(dx - 2, 304, dx + 76, 410))
        body.append(board(dx - 2, 410, dx + 76, 304))
    body.append(board(290, 336, 350, 336))
    body.append(board(290, 356, 350, 356))
    # the house has gone dark: one shade of night over crown, façade and marquee
    body.append(f'<path d="M236,112 V78 H262 V58 H378 V78 H404 V104 H496 V156 H536 V256 H490 V{STREET} '
                f'H150 V256 H104 V156 H144 V104 H236 Z" '
                f'fill="{NIGHT}" opacity="0.4"/>\n')
    # the name with a letter come loose, the "v" lying on the sidewalk
    body.append(wordmark("Zorvane", 320 - word_width("Zorvane") * 0.86 / 2, 227, 0.86, WINE,
                         skew={6: (6, 10, 24)}, missing=(3,)))
    body.append(f'<g transform="translate(420,{STREET + 26}) rotate(-80) scale(0.82)">'
                f'<path d="M0,-36 L16,0 L32,-36" fill="none" stroke="{INK}" stroke-width="15" '
                f'stroke-linecap="round" stroke-linejoin="round"/>'
                f'<path d="M0,-36 L16,0 L32,-36" fill="none" stroke="{WINE}" stroke-width="9" '
                f'stroke-linecap="round" stroke-linejoin="round"/></g>\n')
    # puddles
    for px, pw in ((110, 70), (330, 110), (560, 60)):
        body.append(f'<ellipse class="o" cx="{px}" cy="{STREET + 20}" rx="{pw // 2}" ry="6" fill="{NIGHT}"/>'
                    f'<path d="M{px - pw // 4},{STREET + 19} H{px}" stroke="{CREAM}" stroke-width="1.5" '
                    f'opacity="0.5" stroke-linecap="round"/>\n')
    body += [lamp(70, False), lamp(570, True)]
    # rain over everything
    for _ in range(260):
        x, y = rng.randrange(-40, W), rng.randrange(-20, H)
        body.append(f'<path d="M{x},{y} l6,16" stroke="{CREAM}" stroke-width="1.2" opacity="0.4" '
                    f'stroke-linecap="round"/>')
    body.append("\n")
    return svg(W, H, "".join(body), "Zorvane: the theater has closed down")


def main():
    here = os.path.dirname(os.path.abspath(__file__))
    for name, make in (("title", title), ("goal", goal), ("lose", lose)):
        with open(os.path.join(here, name + ".svg"), "w", encoding="utf-8") as f:
            f.write(make())


if __name__ == "__main__":
    main()
