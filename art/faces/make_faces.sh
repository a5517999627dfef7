#!/usr/bin/env bash
# Renders the employee face layers: art/faces/svg/*.svg -> data/images/face_elements/*.gif
# Run from anywhere; writes into the repository's data/ folder.
# Needs: python3, rsvg-convert (librsvg2-bin), ImageMagick's convert (imagemagick).
#   --svg-only   rewrite the SVG sources from face_layers.py and stop
#   --no-svg     render the committed SVGs as they are (after editing one by hand)
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
root="$(cd "$here/../.." && pwd)"
svgdir="$here/svg"
out="$root/data/images/face_elements"
# Real ImageMagick: /usr/local/bin/convert may be a stand-in on the build machines.
magick=/usr/bin/convert
[[ -x "$magick" ]] || magick="$(command -v convert)"

if [[ "${1:-}" != "--no-svg" ]]; then
    python3 "$here/face_layers.py" "$svgdir"
fi
[[ "${1:-}" == "--svg-only" ]] && exit 0

mkdir -p "$out"
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT
for f in "$svgdir"/*.svg; do
    name="$(basename "$f" .svg)"
    # The SVGs say 240 x 288: twice the 120 x 144 pixels the picture has on screen.
    rsvg-convert -w 240 -h 288 "$f" -o "$tmp/$name.png"
    # GIF keeps one transparent colour: pixels at least half covered stay, the rest go.
    "$magick" "$tmp/$name.png" -channel A -threshold 50% +channel +dither -colors 255 \
        -define gif:transparent-color=none "$out/$name.gif"
done
echo "face layers: $(ls "$out"/*.gif | wc -l) files in ${out#"$root"/}"
