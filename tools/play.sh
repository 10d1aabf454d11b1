#!/usr/bin/env bash
# Builds the game and what it loads, and starts it from its program directory, where its
# pictures and data file live.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
cmake -S . -B build >/dev/null
cmake --build build -j 2 --target marivale-poker marivale_assets
cd build/bin
exec ./marivale-poker
