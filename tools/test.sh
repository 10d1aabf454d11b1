#!/usr/bin/env bash
# Checks the format and the layers, builds everything with warnings as errors and runs every test.
# With --sanitize, builds and runs them under ASan and UBSan in build-asan.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
bash tools/check-format.sh
bash tools/check-layers.sh
build=build
# Warnings are errors here, so a warning never lands.
extra=(-DMARIVALE_WERROR=ON)
if [ "${1:-}" = "--sanitize" ]; then
    build=build-asan
    extra+=(-DMARIVALE_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug)
fi
cmake -S . -B "$build" "${extra[@]}" >/dev/null
cmake --build "$build" -j 2
ctest --test-dir "$build" --output-on-failure -j 2
