#!/usr/bin/env bash
# Installs the Debian 12 packages the build, the game and the tests need, when any is missing.
# libclang-rt-dev holds the libFuzzer runtime that the fuzz test links; apt brings it with clang
# only as a recommendation, so it is named here.
set -euo pipefail
packages=(cmake g++ make pkg-config clang-format clang libclang-rt-dev libgtest-dev libbenchmark-dev
          qt6-base-dev qt6-multimedia-dev qt6-charts-dev libqt6sql6-sqlite qt6-image-formats-plugins libgif-dev
          fonts-dejavu-core fonts-liberation2
          xvfb xauth openbox xdotool x11-utils imagemagick qt6ct dpkg-dev appstream lintian
          poppler-utils)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -ne 0 ] && sudo="sudo"
    echo "Installing: ${missing[*]}"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
