#!/usr/bin/env bash
# Makes every sound of the game into data/sounds/: the click, the eight mode cues (WAV)
# and the lounge theme (Ogg Vorbis).  Run from anywhere.
# Needs: python3 (standard library only), sox with Ogg Vorbis (Debian: sox, libsox-fmt-base).
set -euo pipefail
here="$(cd "$(dirname "$0")" && pwd)"
root="$(cd "$here/../.." && pwd)"
out="$root/data/sounds"
mkdir -p "$out"
tmp="$(mktemp -d)"
trap 'rm -rf "$tmp"' EXIT

python3 "$here/make_sounds.py" "$tmp"
mv "$tmp"/*.wav "$out"/
# The theme: Vorbis at quality 4 (about 128 kbit/s); -R keeps the stream's serial number and
# tags the same from run to run.
sox -R "$out/theme.wav" -C 4 "$out/theme.ogg"
rm -f "$out/theme.wav"
for f in "$out"/*.wav "$out"/*.ogg; do
    printf '%-16s peak %s dBFS\n' "$(basename "$f")" \
        "$(sox "$f" -n stats 2>&1 | awk '/^Pk lev dB/ {print $4}')"
done
