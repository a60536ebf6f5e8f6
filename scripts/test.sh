#!/usr/bin/env bash
# Builds Flexley and runs every test. With --sanitize: the same in build-sanitize/ with ASan and UBSan.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

build_dir="$FLEXLEY_ROOT/build"
options=()
if [ "${1:-}" = "--sanitize" ]; then
    build_dir="$FLEXLEY_ROOT/build-sanitize"
    options=(-DFLEXLEY_SANITIZE=ON -DFLEXLEY_BENCHMARKS=OFF -DCMAKE_BUILD_TYPE=Debug)
    export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
    export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
    # Qt and fontconfig keep some memory for the life of the process; only those are suppressed.
    export LSAN_OPTIONS="suppressions=$FLEXLEY_ROOT/scripts/lsan.supp:print_suppressions=0"
elif [ -n "${1:-}" ]; then
    echo "usage: scripts/test.sh [--sanitize]" >&2
    exit 1
fi

flexley_install_packages
flexley_configure "$build_dir" "${options[@]}"
cmake --build "$build_dir"
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "$build_dir" --output-on-failure -j "$(nproc)"
