#!/usr/bin/env bash
# Builds the game and starts it from its program directory, where its pictures and data file live.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
cmake -S . -B build >/dev/null
cmake --build build -j 2
cd build/bin
if [ -x ./marivale-poker ]; then
    exec ./marivale-poker
fi
echo "The game window is not there yet; the engine tools are in build/bin (try ./marivale-census)."
