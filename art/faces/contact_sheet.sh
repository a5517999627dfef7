#!/usr/bin/env bash
# Stacks the face layers the way the staff details panel does, for every skin, pair of
# glasses (or none) and hair style, and tiles the 54 faces into one PNG to look over.
# Usage: art/faces/contact_sheet.sh OUT.png [BACKGROUND]   (default background: sky blue)
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
d="$here/../../data/images/face_elements"
out="${1:?usage: contact_sheet.sh OUT.png [BACKGROUND]}"
bg="${2:-#C8E0FF}"
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT
n=0
for s in L M D; do for g in 1 2 3; do for h in 1 2 3 4 5 6; do
    layers=()
    [[ $h == 3 ]] && layers+=("$d/backhair.gif")
    layers+=("$d/torso$s.gif" "$d/head$s.gif" "$d/eyesockets$s.gif" "$d/eyes.gif"
             "$d/nose$s.gif" "$d/mouth$s.gif")
    [[ $g != 3 ]] && layers+=("$d/glasses$g.gif")
    layers+=("$d/hair$h.gif")
    args=(-size 240x288 "xc:$bg")
    for l in "${layers[@]}"; do args+=("$l" -composite); done
    /usr/bin/convert "${args[@]}" "$tmp/$(printf %03d $n).png"
    n=$((n + 1))
done; done; done
/usr/bin/montage "$tmp"/*.png -tile 6x9 -geometry 120x144+2+2 -background "#444" "$out"
