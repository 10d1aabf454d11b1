#!/usr/bin/env bash
# Builds everything and runs every test. With --sanitize, builds under ASan and UBSan in build-asan.
set -euo pipefail
cd "$(dirname "$0")/.."
bash tools/install-deps.sh
build=build
extra=()
if [ "${1:-}" = "--sanitize" ]; then
    build=build-asan
    extra=(-DMARIVALE_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug)
fi
cmake -S . -B "$build" "${extra[@]}" >/dev/null
cmake --build "$build" -j 2
ctest --test-dir "$build" --output-on-failure -j 2
