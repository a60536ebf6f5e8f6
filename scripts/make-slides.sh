#!/usr/bin/env bash
# Makes the About box's slide show again: screenshots of Flexley working on the shipped examples,
# taken on a virtual display and written to data/slides/. Run it after the windows change;
# FLEXLEY_BUILD_DIR names another build folder than build/.
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

build_dir="${FLEXLEY_BUILD_DIR:-$FLEXLEY_ROOT/build}"
slides="$FLEXLEY_ROOT/data/slides"
flexley_install_packages
flexley_configure "$build_dir"
cmake --build "$build_dir" --target journey_tests

rm -f "$slides"/*.png
mkdir -p "$slides"
xvfb-run -a -s "-screen 0 1280x1024x24" \
    env QT_QPA_PLATFORM=xcb FLEXLEY_SLIDES_DIR="$slides" \
    "$build_dir/bin/journey_tests" --gtest_filter='ExampleSlides.*'
ls "$slides"
