#!/usr/bin/env bash
# Redraws the game's pictures, chest and bell into assets/ and the contact sheet docs/cards.png.
# Usage: tools/cardart/regenerate.sh   (builds the tool in build-cardart/ first)
set -euo pipefail
root="$(cd "$(dirname "$0")/../.." && pwd)"
build="$root/build-cardart"
cmake -S "$root/tools/cardart" -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" --target marivale-cardart -j 2
mkdir -p "$root/assets" "$root/docs"
QT_QPA_PLATFORM=offscreen "$build/marivale-cardart" "$root/assets" "$root/docs/cards.png"
echo "Wrote $(ls "$root"/assets/*.gif | wc -l) pictures, chest.png, chest@2x.png and bell.wav to assets/"
