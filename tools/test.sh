#!/usr/bin/env bash
# Sets up and builds Vantorel, runs every test (among them one of a copy
# installed into a prefix of its own), builds the Debian package and checks
# what it holds, then builds the tests again with AddressSanitizer and
# UndefinedBehaviorSanitizer and runs them there, fuzzes the script reader and
# the reading of typed numbers for a short while, and last builds the Release
# configuration that the benchmarks use, so that every build type the README
# names is built on every run.
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

echo "== Debian package"
bash tests/install/debian_package.sh build

echo "== Tests under AddressSanitizer and UndefinedBehaviorSanitizer"
cmake -S . -B build-sanitize -G Ninja -DCMAKE_BUILD_TYPE=Debug -DVANTOREL_SANITIZE=ON -DVANTOREL_BENCH=OFF \
  > build-sanitize.log 2>&1 || { cat build-sanitize.log; exit 1; }
rm -f build-sanitize.log
cmake --build build-sanitize -j "$jobs"
# Qt's own libraries keep caches alive until exit; leaks are checked in the
# core and script tests only.
ASAN_OPTIONS=detect_leaks=1 UBSAN_OPTIONS=print_stacktrace=1 \
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -E '^gui_'
# The monkey walks for half a minute here, where each step takes about three
# times as long: the same seed, the first few thousand steps.
ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1 VANTOREL_MONKEY_SECONDS=30 \
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -R '^gui_'

echo "== Fuzzing"
# clang's libFuzzer in a configuration of its own, without Qt: each target
# runs half a minute from its seeds with a fixed seed, both at once. A finding
# fails the run.
fuzz_start=$SECONDS
cmake -S . -B build-fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DVANTOREL_FUZZ=ON \
  > build-fuzz.log 2>&1 || { cat build-fuzz.log; exit 1; }
rm -f build-fuzz.log
cmake --build build-fuzz -j "$jobs"
# Each run starts from the seeds alone, so that its seed decides what it tries.
rm -rf build-fuzz/fuzz-corpus build-fuzz/fuzz-findings
tools/fuzz.sh build-fuzz 30 1
echo "Fuzzing took $((SECONDS - fuzz_start)) s"

echo "== Release build (benchmarks)"
cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release > build-release.log 2>&1 || {
  cat build-release.log; exit 1; }
rm -f build-release.log
cmake --build build-release -j "$jobs"
# A short run shows that the benchmarks start and finish; their figures are
# read from a longer run by hand, never judged here.
./build-release/bench/vantorel_bench --benchmark_min_time=0.01 > /dev/null
./build-release/bench/vantorel-gui-bench --benchmark_min_time=0.01 > /dev/null 2>&1
