#!/usr/bin/env bash
# Checks, builds and tests everything, in this order, and stops at the first failure:
#   1. the format of every C++ file and the layers (tools/check-format.sh, tools/check-layers.sh);
#   2. the normal build in build/ and all its tests;
#   3. a Debug build under AddressSanitizer and UndefinedBehaviorSanitizer in build-asan/ and its
#      tests;
#   4. a Clang build in build-fuzz/ of the data file's fuzz test alone, and a run of it.
# Every build treats warnings as errors, so a warning never lands.
#
# Usage: bash tools/test.sh [--quick] [--sanitize] [--fuzz]
#   (none)      all four parts, as CI runs them (.ci/run)
#   --quick     parts 1 and 2 only: the checks and the normal build with its tests
#   --sanitize  part 3 only
#   --fuzz      part 4 only
# The options combine: --sanitize --fuzz runs parts 3 and 4.
#
# The sanitizer tree builds only the test programs (every target named *_test): not the game
# itself, the command-line tools, the card-art tool or the benchmarks. It runs all the tests of
# our code there but these, which need the game or a tool built there too, or repeat a test:
#   desktop_smoke_test, program_close_test  the real program on a private X display, driven from
#                                           a script; its code runs here in the window tests
#   package_test                            the Debian package made from the tree
#   odds_tool_*                             the odds tool's printed lines (not defined there)
#   look_test_scale_*                       look_test again at larger scale factors: the same
#                                           code as look_test, which runs
#
# Every test run must find tests, and with CI set (CI=true, as .ci/run sets it) a skipped test is
# a failure: tools/install-deps.sh installs every tool the tests need, and CI runs as root, so the
# cases only root can meet run too.
set -euo pipefail
cd "$(dirname "$0")/.."

checks=0 normal=0 sanitize=0 fuzz=0
if [ $# -eq 0 ]; then
    checks=1 normal=1 sanitize=1 fuzz=1
fi
for option in "$@"; do
    case "$option" in
    --quick) checks=1 normal=1 ;;
    --sanitize) sanitize=1 ;;
    --fuzz) fuzz=1 ;;
    *)
        echo "usage: bash tools/test.sh [--quick] [--sanitize] [--fuzz]" >&2
        exit 2
        ;;
    esac
done

in_ci() { [ -n "${CI:-}" ] && [ "${CI}" != false ] && [ "${CI}" != 0 ]; }

TIMES=()
# Runs "$@" as the part named $1 and notes how long it took.
timed() {
    local name="$1" start=$SECONDS
    shift
    echo "==> $name"
    "$@"
    TIMES+=("$(printf '%-18s %5d s' "$name" $((SECONDS - start)))")
    echo "==> $name: $((SECONDS - start)) s"
}

# Runs ctest in the tree $1 with the further arguments; fails when it finds no test, when a test
# fails and, in CI, when a test was skipped.
run_tests() {
    local tree="$1"
    shift
    ctest --test-dir "$tree" --output-on-failure --no-tests=error "$@" 2>&1 | tee "$tree/ctest.log"
    if in_ci && grep -q '\*\*\*Skipped' "$tree/ctest.log"; then
        echo "FAIL: a test was skipped in CI, where every tool the tests need is installed" >&2
        return 1
    fi
}

configure() {
    cmake -S . -B "$@" -DMARIVALE_WERROR=ON >/dev/null
}

normal_build() {
    configure build
    cmake --build build -j 2
}

# The test programs of the sanitizer tree: every target named *_test.
sanitizer_build() {
    configure build-asan -DMARIVALE_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug
    local targets
    mapfile -t targets < <(cmake --build build-asan --target help | sed -n 's/^\.\.\. \(.*_test\)$/\1/p')
    if [ ${#targets[@]} -eq 0 ]; then
        echo "FAIL: no test programs found in build-asan" >&2
        return 1
    fi
    cmake --build build-asan -j 2 --target "${targets[@]}"
}

fuzz_build() {
    configure build-fuzz -DCMAKE_CXX_COMPILER=clang++
    cmake --build build-fuzz -j 2 --target data_file_fuzz_test
}

bash tools/install-deps.sh
if ((checks)); then
    timed format bash tools/check-format.sh
    timed layers bash tools/check-layers.sh
fi
if ((normal)); then
    timed "normal build" normal_build
    timed "normal tests" run_tests build -j 2
fi
if ((sanitize)); then
    timed "sanitizer build" sanitizer_build
    # The sanitizer build has the tests but not the program, so nothing that drives it on a
    # desktop.
    timed "sanitizer tests" run_tests build-asan -j 2 -LE desktop \
        -E '^(program_close_test|package_test|odds_tool_.*|look_test_scale_.*)$'
fi
if ((fuzz)); then
    timed "fuzz build" fuzz_build
    timed "fuzz run" run_tests build-fuzz -R '^data_file_fuzz_test$'
fi
printf '%s\n' "${TIMES[@]}"
