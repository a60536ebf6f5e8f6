#!/usr/bin/env bash
# Builds everything in build/ and starts Flexley, passing on its arguments (flexley [FILE.lod]).
set -euo pipefail
source "$(dirname "${BASH_SOURCE[0]}")/setup.sh"

if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
    echo "No display to show Flexley on: use build/bin/flexley-cli, or xvfb-run scripts/run.sh." >&2
    exit 1
fi

build_dir="$FLEXLEY_ROOT/build"
flexley_install_packages
flexley_configure "$build_dir"
cmake --build "$build_dir"
exec "$build_dir/bin/flexley" "$@"
