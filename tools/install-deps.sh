#!/usr/bin/env bash
# Installs the Debian 12 packages Zorvane needs to build, test and check the layout of (clang-format),
# if any are missing, and the de_DE.UTF-8 locale, under which a test checks that no number depends
# on the locale.
# Usage: tools/install-deps.sh [game|fuzz|art]   ("game" adds the Qt 6 packages of the window
#        and its font, "fuzz" the clang runtime that the libFuzzer targets of fuzz/ build with,
#        "art" the tools tools/make-art.sh draws the pictures with)
set -euo pipefail

packages=(build-essential cmake g++ clang-14 clang-format-14 pkg-config locales
          libgtest-dev libgmock-dev googletest libbenchmark-dev
          libcli11-dev nlohmann-json3-dev)
if [[ "${1:-}" == "game" ]]; then
    # Qt 6 for the window, and a font so that every caption renders (a fresh machine may
    # have none: the captions would be empty boxes).
    packages+=(qt6-base-dev qt6-multimedia-dev qt6-qpa-plugins libqt6svg6 fonts-dejavu-core)
fi
if [[ "${1:-}" == "art" ]]; then
    packages+=(python3 librsvg2-bin imagemagick)
fi
if [[ "${1:-}" == "fuzz" ]]; then
    packages+=(libclang-rt-14-dev)
fi

sudo=""
if [[ $(id -u) -ne 0 ]]; then
    sudo="sudo"
fi

missing=()
for p in "${packages[@]}"; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing+=("$p")
    fi
done
if ((${#missing[@]} > 0)); then
    echo "Installing: ${missing[*]}"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get update -qq
    $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

if ! locale -a 2>/dev/null | grep -qix 'de_DE\.utf-\?8'; then
    echo "Generating the locale de_DE.UTF-8"
    $sudo sed -i 's/^# *\(de_DE\.UTF-8 UTF-8\)/\1/' /etc/locale.gen
    grep -q '^de_DE\.UTF-8 UTF-8' /etc/locale.gen || echo 'de_DE.UTF-8 UTF-8' | $sudo tee -a /etc/locale.gen >/dev/null
    $sudo locale-gen >/dev/null
fi
