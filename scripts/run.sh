#!/usr/bin/env bash
# Builds everything in build/ and runs Flexley. The windows are not built yet, so for now this
# shows the engine at work: flexley-cli analyses a sample beam and prints its report.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

build_dir="$FLEXLEY_ROOT/build"
flexley_install_packages
flexley_configure "$build_dir"
cmake --build "$build_dir"

example="$FLEXLEY_ROOT/examples/${1:-simply-supported-point-load.lod}"
echo
echo "The Flexley windows are not built yet; running flexley-cli on $(basename "$example") instead."
echo "(Benchmarks of the engine: $build_dir/bin/flexley_bench)"
echo
"$build_dir/bin/flexley-cli" analyze "$example"
echo
"$build_dir/bin/flexley-cli" report "$example" --title "$(basename "$example" .lod)"
