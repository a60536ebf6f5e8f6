#!/usr/bin/env bash
# Shared set-up of run.sh and test.sh: installs missing Debian packages, then configures a build folder.
# Usage: source scripts/setup.sh; flexley_install_packages; flexley_configure BUILD_DIR [cmake options...]
set -euo pipefail

FLEXLEY_ROOT="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
# A bare Debian 12 has no fonts at all; Liberation Sans has the metrics of the labels' Arial.
# xvfb and xauth let the windows run without a screen (xvfb-run scripts/run.sh, the journey test);
# poppler-utils reads back the PDFs the printing tests write.
FLEXLEY_PACKAGES=(g++ cmake ninja-build libgtest-dev libbenchmark-dev nlohmann-json3-dev
    qt6-base-dev qt6-base-dev-tools libgl-dev fonts-liberation2 fonts-dejavu-core xvfb xauth
    poppler-utils)

flexley_install_packages() {
    local missing=()
    local package
    for package in "${FLEXLEY_PACKAGES[@]}"; do
        dpkg -s "$package" >/dev/null 2>&1 || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return 0

    echo "Installing missing packages: ${missing[*]}"
    local sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    $sudo apt-get update
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y --no-install-recommends "${missing[@]}"
}

flexley_configure() {
    local build_dir="$1"
    shift
    cmake -S "$FLEXLEY_ROOT" -B "$build_dir" -G Ninja "$@"
}
