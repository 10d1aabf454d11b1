#!/usr/bin/env bash
# Fails on any include that runs back up a layer. The layers, lowest first:
#   state < engine < engine/odds < play < record < ui < windows (bonus, board, shell) < program
# A file may include its own folder's layer and any layer below it; the three window folders
# never include one another. state, engine and play are plain C++: no Qt header at all.
set -euo pipefail
cd "$(dirname "$0")/.."

# The layer of a path, as a rank; 0 for a path outside the layered folders.
rank() {
    case "$1" in
    state/*) echo 1 ;;
    engine/odds/*) echo 3 ;;
    engine/*) echo 2 ;;
    play/*) echo 4 ;;
    record/*) echo 5 ;;
    ui/*) echo 6 ;;
    bonus/* | board/* | shell/*) echo 7 ;;
    program/*) echo 8 ;;
    *) echo 0 ;;
    esac
}

# The folder that names a layer: a window folder is a layer of its own among its equals.
layer() {
    case "$1" in
    engine/odds/*) echo engine/odds ;;
    *) echo "${1%%/*}" ;;
    esac
}

failures=0
while IFS= read -r file; do
    own_rank="$(rank "$file")"
    [ "$own_rank" = 0 ] && continue
    own_layer="$(layer "$file")"
    while IFS=: read -r line included; do
        target_rank="$(rank "$included")"
        [ "$target_rank" = 0 ] && continue
        target_layer="$(layer "$included")"
        if [ "$target_layer" = "$own_layer" ]; then
            continue
        fi
        if [ "$target_rank" -ge "$own_rank" ]; then
            echo "$file:$line: includes $included, which is not below $own_layer"
            failures=$((failures + 1))
        fi
    done < <(grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "$file" |
                 sed 's/^\([0-9]*\):[^"]*"\([^"]*\)".*/\1:\2/' || true)
    if [ "$own_rank" -le 4 ]; then
        while IFS=: read -r line text; do
            echo "$file:$line: $own_layer is plain C++, but includes $text"
            failures=$((failures + 1))
        done < <(grep -nE '^[[:space:]]*#[[:space:]]*include[[:space:]]*<(Q|q)' "$file" || true)
    fi
done < <(git ls-files '*.h' '*.cpp')

if [ "$failures" -ne 0 ]; then
    echo "layers: $failures include(s) run the wrong way"
    exit 1
fi
echo "layers: every include runs down a layer"
