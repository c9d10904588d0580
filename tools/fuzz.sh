#!/usr/bin/env bash
# Runs the fuzz targets of a fuzz build side by side, one core each:
#   tools/fuzz.sh BUILD [SECONDS] [SEED]
# BUILD is a folder configured with -DVANTOREL_FUZZ=ON and built. Each target
# starts from its seeds in tests/fuzz/corpus and runs for SECONDS (30 unless
# given) with a fixed SEED (1 unless given). What it learns goes to
# BUILD/fuzz-corpus, never into the seeds; a finding is written to
# BUILD/fuzz-findings and fails the run.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:?usage: tools/fuzz.sh BUILD [SECONDS] [SEED]}"
seconds="${2:-30}"
seed="${3:-1}"

mkdir -p "$build/fuzz-findings"
# Allocations keep a short stack: a finding still shows where its memory came
# from, and a run of the scripts does twice the work in the same time.
export ASAN_OPTIONS="${ASAN_OPTIONS:-malloc_context_size=5}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-print_stacktrace=1}"

declare -A pids
for target in script number; do
  binary="$build/tests/fuzz/${target}_fuzz"
  [ -x "$binary" ] || { echo "no $binary: build the fuzz configuration first" >&2; exit 1; }
  corpus="$build/fuzz-corpus/$target"
  mkdir -p "$corpus"
  options=(-seed="$seed" -max_total_time="$seconds" -timeout=20 -print_final_stats=1
           -artifact_prefix="$build/fuzz-findings/$target-")
  if [ -f "$here/tests/fuzz/$target.dict" ]; then options+=(-dict="$here/tests/fuzz/$target.dict"); fi
  "$binary" "${options[@]}" "$corpus" "$here/tests/fuzz/corpus/$target" > "$build/fuzz-$target.log" 2>&1 &
  pids[$target]=$!
done

failed=0
for target in script number; do
  status=0
  wait "${pids[$target]}" || status=$?
  runs="$(sed -n 's/^stat::number_of_executed_units: *//p' "$build/fuzz-$target.log")"
  if [ "$status" -ne 0 ]; then
    echo "${target}_fuzz: FAILED after ${runs:-?} executions (exit $status); its log:"
    tail -n 60 "$build/fuzz-$target.log"
    failed=1
  else
    echo "${target}_fuzz: ${runs:-?} executions in ${seconds} s, no finding"
  fi
done
exit "$failed"
