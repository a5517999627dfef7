"""The game's palette and the line every picture shares, for the small SVG generators."""

INK = "#2B1D14"      # outlines
NIGHT = "#0F1626"    # skies
NAVY = "#1D2A44"     # walls, cabinet bodies
CURTAIN = "#B3262E"  # curtains, seats, accents
WINE = "#7A1620"     # shadows of red
BRASS = "#C9A227"    # rails, frames, coins
POPCORN = "#F2C14E"  # bulbs, highlights
CREAM = "#F6E7C1"    # paper, screens, light surfaces
TEAL = "#2F8F83"     # second accent
WHITE = "#FFFFFF"    # bulb centres, glints

# Every shape with class "o" gets the ink outline: 2 px at the size shown, round joins.
STYLE = (
    "<style>\n"
    f"  .o {{ stroke: {INK}; stroke-width: 2; stroke-linejoin: round; stroke-linecap: round; }}\n"
    f"  .ln {{ fill: none; stroke: {INK}; stroke-width: 2; stroke-linejoin: round; stroke-linecap: round; }}\n"
    "  .hi { fill: #FFFFFF; opacity: 0.35; }\n"
    "</style>\n"
)


def svg(width, height, body, title):
    """A whole SVG document in pixels at the size shown on screen."""
    return (
        '<?xml version="1.0" encoding="UTF-8"?>\n'
        f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
        f'viewBox="0 0 {width} {height}">\n'
        f"<title>{title}</title>\n" + STYLE + body + "</svg>\n"
    )
