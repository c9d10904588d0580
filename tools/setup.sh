#!/usr/bin/env bash
# Installs what this machine lacks to build Vantorel, then configures and
# builds it in ./build. Safe to run again: it only installs missing packages.
set -euo pipefail

here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
cd "$here"

packages=(
  g++ cmake ninja-build pkg-config
  qt6-base-dev qt6-base-dev-tools libgl-dev
  libgtest-dev libgmock-dev libbenchmark-dev
  libgif-dev
  # The fuzz targets: clang with libFuzzer and the sanitizers' runtimes.
  clang libclang-rt-dev
  xvfb xauth fonts-dejavu-core
  # The Debian package: dpkg-shlibdeps finds the libraries it depends on.
  dpkg-dev
  # The test of an installed copy checks its desktop file.
  desktop-file-utils
  # Faces that stand in for the named fonts: DejaVu Sans Condensed for
  # "Final Frontier", Liberation Sans for "MS Sans Serif", Liberation Serif
  # for the manual's "Times New Roman".
  fonts-dejavu-extra
  fonts-liberation2
)

missing=()
for p in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$p")
  fi
done

if ((${#missing[@]})); then
  echo "Installing: ${missing[*]}"
  sudo=""
  if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}"
fi

jobs="$(nproc 2>/dev/null || echo 2)"
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo > build-configure.log 2>&1 || {
  cat build-configure.log; exit 1; }
rm -f build-configure.log
cmake --build build -j "$jobs"
