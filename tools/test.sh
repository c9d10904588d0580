#!/usr/bin/env bash
# Sets up and builds Vantorel, runs every test, then builds the tests again
# with AddressSanitizer and UndefinedBehaviorSanitizer and runs them there.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$here/tools/setup.sh"
cd "$here"

export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
chmod 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=offscreen
jobs="$(nproc 2>/dev/null || echo 2)"

echo "== Tests"
ctest --test-dir build --output-on-failure -j "$jobs"

echo "== Tests under AddressSanitizer and UndefinedBehaviorSanitizer"
cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVANTOREL_SANITIZE=ON -DVANTOREL_BENCH=OFF \
  > build-sanitize.log 2>&1 || { cat build-sanitize.log; exit 1; }
rm -f build-sanitize.log
cmake --build build-sanitize -j "$jobs"
# Qt's own libraries keep caches alive until exit; leaks are checked in the
# core and script tests only.
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -E '^gui_'
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -R '^gui_'
