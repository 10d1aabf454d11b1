#!/usr/bin/env bash
# Fails when any C++ file of the repository differs from the root .clang-format.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.cpp' '*.h' | xargs -0 clang-format --dry-run --Werror
echo "format: every C++ file follows .clang-format"
