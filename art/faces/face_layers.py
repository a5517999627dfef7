#!/usr/bin/env python3
"""Writes the SVG sources of the employee face layers.

Every layer is drawn on the same 120 x 144 canvas (the face picture on the staff
details panel, 1800 x 2160 twips) with the same origin, so the game stacks them
straight on top of each other:

    backhair, torso, head, eyesockets, eyes, nose, mouth, glasses, hair

The skin-coloured parts come in three tones (file letters L, M, D).  Hair style 3
is long hair: its back part, behind the shoulders, is backhair.svg.

Usage: face_layers.py OUTDIR
"""
import os
import sys

W, H = 120, 144          # canvas in screen pixels; rendered at twice this
INK = "#2B1D14"
LINE = 2                 # outline width in screen pixels

# Real skin tones: base, shade (cheek and neck shadow, nostrils),
# highlight (one soft light on the forehead), lips, blush.
SKINS = {
    "L": dict(base="#F6D3B3", shade="#E2AC88", light="#FCE6D2",
              lip="#D8776F", blush="#F2A597", brow="#5A3A26"),
    "M": dict(base="#C88A5A", shade="#A96C40", light="#DBA478",
              lip="#9E4E42", blush="#D27A5C", brow="#3A2418"),
    "D": dict(base="#7A4A2E", shade="#5C341E", light="#93603E",
              lip="#5E2A25", blush="#8E4634", brow="#22150E"),
}

# The staff uniform: an usher's red jacket, cream shirt and ink bow tie.
CURTAIN = "#B3262E"
WINE = "#7A1620"
CREAM = "#F6E7C1"
BRASS = "#C9A227"
POPCORN = "#F2C14E"
WHITE = "#FFFFFF"
TEAL = "#2F8F83"


def svg(body, comment):
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n'
            f'<!-- Zorvane staff face: {comment} -->\n'
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{2 * W}" height="{2 * H}" '
            f'viewBox="0 0 {W} {H}">\n'
            f'<g stroke="{INK}" stroke-width="{LINE}" stroke-linejoin="round" '
            f'stroke-linecap="round">\n{body}</g>\n</svg>\n')


def path(d, fill="none", stroke=None, width=None, extra=""):
    attrs = f'd="{d}" fill="{fill}"'
    if stroke is not None:
        attrs += f' stroke="{stroke}"'
    if width is not None:
        attrs += f' stroke-width="{width}"'
    return f'  <path {attrs}{extra}/>\n'


def ellipse(cx, cy, rx, ry, fill, stroke=None, width=None):
    attrs = f'cx="{cx}" cy="{cy}" rx="{rx}" ry="{ry}" fill="{fill}"'
    if stroke is not None:
        attrs += f' stroke="{stroke}"'
    if width is not None:
        attrs += f' stroke-width="{width}"'
    return f'  <ellipse {attrs}/>\n'


def blob(circles, fill, shine=None):
    """A curly mass: the circles' union with one outline round the outside,
    and small lit curls on top."""
    out = "".join(ellipse(x, y, r, r, INK, stroke=INK, width=2 * LINE) for x, y, r in circles)
    out += "".join(ellipse(x, y, r, r, fill, stroke="none") for x, y, r in circles)
    if shine:
        out += "".join(ellipse(x, y, r, r, "#4A3426", stroke="none") for x, y, r in shine)
    return out


# ---------------------------------------------------------------- body parts

HEAD = ("M60 27 C79 27 89 40 89 58 C89 76 81 90 60 95 "
        "C39 90 31 76 31 58 C31 40 41 27 60 27 Z")


def torso(s):
    neck = path("M49 80 L49 112 L71 112 L71 80 Z", s["base"])
    chin_shadow = path("M50 94 L70 94 L70 104 C64 108 56 108 50 104 Z",
                       s["shade"], stroke="none")
    jacket = path("M8 150 C8 124 20 113 46 108 L60 122 L74 108 "
                  "C100 113 112 124 112 150 Z", CURTAIN)
    # Shadow down the jacket's sides, the one soft light on the shoulder.
    side = path("M8 150 C8 130 13 121 22 116 C20 126 21 136 24 150 Z", WINE, stroke="none")
    side2 = path("M112 150 C112 130 107 121 98 116 C100 126 99 136 96 150 Z", WINE, stroke="none")
    shine = path("M26 116 C34 112 40 111 44 110", "none", stroke="#D9434A", width=3)
    shirt = path("M46 108 L60 122 L74 108 L72 150 L48 150 Z", CREAM)
    lapel_l = path("M46 108 L52 131 L44 124 L49 121 L43 113 Z", WINE)
    lapel_r = path("M74 108 L68 131 L76 124 L71 121 L77 113 Z", WINE)
    collar = path("M48 106 L60 120 L52 121 Z M72 106 L60 120 L68 121 Z", WHITE)
    bow = path("M60 122 L51 117 L51 127 Z M60 122 L69 117 L69 127 Z", INK)
    knot = ellipse(60, 122, 2.5, 2.5, INK)
    buttons = ellipse(60, 134, 1.5, 1.5, BRASS, width=1) + ellipse(60, 141, 1.5, 1.5, BRASS, width=1)
    badge = path("M80 126 L96 126 L96 132 L80 132 Z", BRASS, width=1.5)
    badge_line = path("M83 129 L93 129", "none", stroke=POPCORN, width=1.5)
    # The shoulders sit 4 px higher than drawn: a shorter neck.
    return ('<g transform="translate(0,-4)">\n' + neck + chin_shadow + jacket + side + side2
            + shine + shirt + collar + lapel_l + lapel_r + bow + knot + buttons + badge
            + badge_line + '</g>\n')


def head(s):
    ears = (ellipse(32, 64, 6, 9, s["base"]) + ellipse(88, 64, 6, 9, s["base"])
            + path("M31 59 C34 61 35 66 32 70", "none", stroke=s["shade"], width=2)
            + path("M89 59 C86 61 85 66 88 70", "none", stroke=s["shade"], width=2))
    face = path(HEAD, s["base"])
    # Soft shade along the jaw on the right, one highlight on the forehead.
    jaw = path("M86 66 C85 78 78 88 62 93 C76 86 82 78 86 66 Z", s["shade"], stroke="none")
    light = ellipse(48, 40, 8, 4, s["light"], stroke="none")
    return ears + face + jaw + light


def eyesockets(s):
    out = ""
    for cx in (48, 72):
        out += ellipse(cx, 62, 9, 6.5, s["shade"], stroke="none")
    # Brows, a little raised: a friendly look.
    out += path("M40 52 C44 48 51 48 55 50", "none", stroke=s["brow"], width=3)
    out += path("M65 50 C69 48 76 48 80 52", "none", stroke=s["brow"], width=3)
    return out


def eyes():
    out = ""
    for cx in (48, 72):
        out += ellipse(cx, 62, 6, 5, WHITE, width=1.5)
        out += ellipse(cx + 0.5, 62.5, 3.5, 3.5, "#5B3A1E", stroke="none")
        out += ellipse(cx + 0.5, 62.5, 1.8, 1.8, INK, stroke="none")
        out += ellipse(cx + 1.8, 61, 1.1, 1.1, WHITE, stroke="none")
        # Upper lid: the heavier line.
        out += path(f"M{cx - 6} 62 C{cx - 5} 56 {cx + 5} 56 {cx + 6} 61", "none", width=2)
    return out


def nose(s):
    tip = path("M55 75 C55 71 65 71 65 75 C65 78 55 78 55 75 Z", s["shade"], stroke="none")
    line = path("M61 64 C62 69 65 71 65 74 C65 77 62 78 60 77", "none", width=1.8)
    nostril = path("M55 76 C56 78 58 78 59 77", "none", width=1.5)
    return tip + line + nostril


def mouth(s):
    blush = ellipse(40, 76, 6, 3.5, s["blush"], stroke="none") + \
        ellipse(80, 76, 6, 3.5, s["blush"], stroke="none")
    smile = path("M49 82 C54 84 66 84 71 82 C69 90 64 93 60 93 C56 93 51 90 49 82 Z", "#5A1E1E")
    tongue = path("M54 89 C57 87 63 87 66 89 C64 92 56 92 54 89 Z", s["lip"], stroke="none")
    teeth = path("M51 83.2 C56 84.8 64 84.8 69 83.2 L68.4 85.6 C63 86.8 57 86.8 51.6 85.6 Z",
                 WHITE, stroke="none")
    outline = path("M49 82 C54 84 66 84 71 82 C69 90 64 93 60 93 C56 93 51 90 49 82 Z", "none")
    corners = path("M47 81 L50 82.5 M73 81 L70 82.5", "none", width=1.5)
    return blush + smile + tongue + teeth + outline + corners


# ---------------------------------------------------------------- glasses

def glasses1():
    """Round brass wire frames."""
    lenses = "".join(ellipse(cx, 62, 9.5, 8.5, "none", stroke=INK, width=3.2) for cx in (48, 72))
    bridge = "M57.5 60 C59 57.5 61 57.5 62.5 60"
    arms = "M38.5 60 L31 58 M81.5 60 L89 58"
    out = lenses + path(bridge, "none", width=3.2) + path(arms, "none", width=3.2)
    for cx in (48, 72):
        out += ellipse(cx, 62, 9.5, 8.5, "none", stroke=BRASS, width=1.4)
        out += path(f"M{cx - 5} 58 L{cx - 2} 55.5", "none", stroke=WHITE, width=1.4)
    out += path(bridge, "none", stroke=BRASS, width=1.4) + path(arms, "none", stroke=BRASS, width=1.4)
    return out


def glasses2():
    """Square frames in teal."""
    def lens(cx):
        x0, x1 = cx - 10, cx + 10
        return (f"M{x0 + 3} 54 L{x1 - 3} 54 Q{x1} 54 {x1} 57 L{x1} 66 Q{x1} 70 {x1 - 4} 70 "
                f"L{x0 + 4} 70 Q{x0} 70 {x0} 66 L{x0} 57 Q{x0} 54 {x0 + 3} 54 Z")
    bridge = "M58 58 L62 58"
    arms = "M38 57 L31 57 M82 57 L89 57"
    out = "".join(path(lens(cx), "none", stroke=INK, width=4.5) for cx in (48, 72))
    out += path(bridge, "none", width=4.5) + path(arms, "none", width=4)
    out += "".join(path(lens(cx), "none", stroke=TEAL, width=2.2) for cx in (48, 72))
    out += path(bridge, "none", stroke=TEAL, width=2.2) + path(arms, "none", stroke=TEAL, width=1.8)
    for cx in (48, 72):
        out += path(f"M{cx - 6} 59 L{cx - 3} 57", "none", stroke=WHITE, width=1.4)
    return out


# ---------------------------------------------------------------- hair

def hair1():
    """Short, side-parted, dark brown."""
    c, hi = "#5A3825", "#7C5238"
    d = ("M30 64 C25 44 33 22 58 19 C80 17 93 32 90 62 L86 62 C86 52 84 46 80 42 "
         "C70 46 54 44 44 35 C40 42 36 50 35 64 Z")
    part = path("M44 35 C52 30 62 26 74 26", "none", stroke=hi, width=3)
    return path(d, c) + part + path("M44 35 C48 41 44 46 40 48", "none", width=1.5)


def hair2():
    """Tight curls, near black."""
    circles = [(34, 54, 7), (33, 44, 8), (38, 34, 9), (47, 26, 10), (60, 22, 11), (73, 26, 10),
               (82, 34, 9), (87, 44, 8), (86, 54, 7), (44, 38, 8), (56, 34, 8), (68, 35, 8),
               (77, 39, 8), (51, 30, 8), (66, 29, 8)]
    shine = [(52, 22, 2.5), (64, 18, 2), (42, 30, 2), (78, 28, 2)]
    return blob(circles, "#2A1C16", shine)


def hair3():
    """Long, auburn, parted in the middle; the rest hangs behind (backhair)."""
    c, hi = "#8C3A1C", "#B0552C"
    left = ("M60 24 C44 24 32 34 30 56 C28 76 30 96 24 118 C32 120 38 116 40 110 "
            "C36 96 36 80 38 64 C40 50 48 40 60 30 Z")
    right = ("M60 24 C76 24 88 34 90 56 C92 76 90 96 96 118 C88 120 82 116 80 110 "
             "C84 96 84 80 82 64 C80 50 72 40 60 30 Z")
    top = "M34 46 C38 30 50 22 60 22 C70 22 82 30 86 46 C78 36 70 30 60 30 C50 30 42 36 34 46 Z"
    shine = path("M40 40 C44 32 50 28 56 27", "none", stroke=hi, width=3)
    strands = path("M35 70 C34 84 34 96 30 110 M85 70 C86 84 86 96 90 110", "none",
                   stroke="#6A2A12", width=1.5)
    return path(top, c) + path(left, c) + path(right, c) + shine + strands


def backhair():
    c = "#7A3218"
    d = ("M60 20 C36 20 24 38 24 62 C24 86 22 104 18 126 L102 126 "
         "C98 104 96 86 96 62 C96 38 84 20 60 20 Z")
    return path(d, c)


def hair4():
    """Pulled back into a bun on top, black, tied with a red band."""
    c, hi = "#1F1A1E", "#4A4452"
    bun = ellipse(60, 16, 12, 10, c) + path("M52 12 C56 9 62 8 66 10", "none", stroke=hi, width=2.5)
    tie = path("M49 24 C55 27 65 27 71 24", "none", stroke=CURTAIN, width=4)
    cap = ("M31 60 C28 40 40 24 60 24 C80 24 92 40 89 60 L87 60 C86 50 82 42 74 38 "
           "C68 36 52 36 46 38 C38 42 34 50 33 60 Z")
    combs = path("M41 46 C43 38 48 33 54 31", "none", stroke=hi, width=2.5)
    return bun + path(cap, c) + tie + combs


def hair5():
    """Bald on top, grey at the sides, a grey moustache: the old hand of the theatre."""
    c, dark = "#B8B2A8", "#8E877D"
    left = "M32 60 C28 54 28 44 33 40 C37 38 39 46 38 52 C37 56 35 58 32 60 Z"
    right = "M88 60 C92 54 92 44 87 40 C83 38 81 46 82 52 C83 56 85 58 88 60 Z"
    tache = ("M60 79 C56 76 50 76 47 80 C46 82 48 83 50 82 C53 81 56 81 60 81 "
             "C64 81 67 81 70 82 C72 83 74 82 73 80 C70 76 64 76 60 79 Z")
    shine = ellipse(50, 34, 7, 3, WHITE, stroke="none") + ellipse(61, 31, 2, 1.5, WHITE, stroke="none")
    return (path(left, c) + path(right, c) + path(tache, c)
            + path("M55 79 C57 78.5 59 79 60 80", "none", stroke=dark, width=1.2) + shine)


def hair6():
    """Blonde bob with a straight fringe, chin length."""
    c, hi = "#E0AE48", "#F6D37A"
    d = ("M60 19 C37 19 25 35 25 57 C25 73 24 84 28 93 C35 95 41 93 42 89 "
         "C38 78 38 66 39 56 L38 49 C50 50 70 50 82 49 L81 56 "
         "C82 66 82 78 78 89 C79 93 85 95 92 93 C96 84 95 73 95 57 "
         "C95 35 83 19 60 19 Z")
    fringe = path("M47 49 C47 45 48 42 50 40 M57 50 C57 46 58 43 60 41 "
                  "M67 50 C67 46 66 43 64 41 M76 49 C76 46 75 43 73 41", "none",
                  stroke="#B8862C", width=1.5)
    shine = path("M38 34 C44 27 52 24 60 23", "none", stroke=hi, width=3)
    return path(d, c) + fringe + shine


def main():
    out = sys.argv[1] if len(sys.argv) > 1 else os.path.join(os.path.dirname(__file__), "svg")
    os.makedirs(out, exist_ok=True)
    layers = {}
    for letter, s in SKINS.items():
        layers[f"torso{letter}"] = (torso(s), f"torso, skin {letter}")
        layers[f"head{letter}"] = (head(s), f"head, skin {letter}")
        layers[f"eyesockets{letter}"] = (eyesockets(s), f"eye sockets and brows, skin {letter}")
        layers[f"nose{letter}"] = (nose(s), f"nose, skin {letter}")
        layers[f"mouth{letter}"] = (mouth(s), f"smile, skin {letter}")
    layers["eyes"] = (eyes(), "eyes")
    layers["backhair"] = (backhair(), "long hair behind the shoulders (goes with hair 3)")
    layers["glasses1"] = (glasses1(), "round brass glasses")
    layers["glasses2"] = (glasses2(), "square teal glasses")
    for i, f in enumerate((hair1, hair2, hair3, hair4, hair5, hair6), start=1):
        layers[f"hair{i}"] = (f(), f"hair style {i}: {f.__doc__.strip()}")
    for name, (body, comment) in layers.items():
        with open(os.path.join(out, name + ".svg"), "w", encoding="utf-8") as fh:
            fh.write(svg(body, comment))


if __name__ == "__main__":
    main()
