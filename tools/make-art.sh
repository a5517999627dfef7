#!/usr/bin/env bash
# Regenerates every picture under data/images/ from the sources under art/, and then the face
# layers and the sounds through their own scripts when those are present.
#   tools/make-art.sh            from anywhere inside the checkout
# Pictures are drawn in SVG at the size they have on screen and written at twice that size,
# so the screens show them at a device pixel ratio of 2. The cabinets are the exception: the
# room takes a cabinet's size from its GIF, so NNNL.gif / NNNR.gif are at the size shown and
# NNNL@2x.gif / NNNR@2x.gif beside them are the sharp copies for high-DPI screens.
# Needs: python3, rsvg-convert (librsvg2-bin), ImageMagick's convert (imagemagick).
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
art=$root/art
pictures=$art/pictures
out=$root/data/images
magick=/usr/bin/convert # the real ImageMagick, whatever else is first on the PATH

for tool in python3 rsvg-convert "$magick"; do
    if ! command -v "$tool" >/dev/null; then
        echo "make-art: $tool is missing (see tools/README.md)" >&2
        exit 1
    fi
done

# SVG at the size shown -> PNG at twice that size.
render() { # svg png
    mkdir -p "$(dirname "$2")"
    rsvg-convert --zoom 2 "$1" -o "$2"
}

# SVG -> GIF with a 1-bit transparent background, at the given zoom.
render_gif() { # svg gif zoom
    local tmp
    tmp=$(mktemp --suffix=.png)
    rsvg-convert --zoom "$3" "$1" -o "$tmp"
    mkdir -p "$(dirname "$2")"
    "$magick" "$tmp" -channel A -threshold 50% +channel -background none "$2"
    rm -f "$tmp"
}

# The generated SVGs first: the street scenes and the arcade.
python3 -B "$pictures/scenes.py"
python3 -B "$pictures/arcades/cabinets.py"

# Every hand-drawn picture, same folder layout as data/images/.
while IFS= read -r svg; do
    rel=${svg#"$pictures"/}
    case $rel in
        icon.svg | arcades/[0-9]*.svg) continue ;;
    esac
    render "$svg" "$out/${rel%.svg}.png"
done < <(find "$pictures" -name '*.svg' | sort)

# Cabinets: the size shown, and the sharp copy.
for svg in "$pictures"/arcades/[0-9][0-9][0-9][LR].svg; do
    name=$(basename "$svg" .svg)
    render_gif "$svg" "$out/arcades/$name.gif" 1
    render_gif "$svg" "$out/arcades/$name@2x.gif" 2
done

# The application icon: the SVG itself and the PNG sizes of the desktop.
mkdir -p "$out/icons"
cp "$pictures/icon.svg" "$out/icons/zorvane.svg"
for size in 16 24 32 48 64 128 256; do
    rsvg-convert --width "$size" --height "$size" "$pictures/icon.svg" -o "$out/icons/zorvane-$size.png"
done

# Face layers and sounds have scripts of their own.
for script in "$art/faces/make_faces.sh" "$art/sounds/make_sounds.sh"; do
    if [[ -f $script ]]; then
        bash "$script"
    fi
done
echo "make-art: pictures written under $out"
