#!/usr/bin/env bash
# Builds the text readers' fuzz targets with clang and libFuzzer, then runs
# each for SECONDS seconds, starting from the committed seed corpus.
# New corpus entries and any crash, leak or timeout inputs go to
# fuzz-out/<kind>/.  Exits non-zero when any target failed.
#
#   scripts/fuzz.sh SECONDS [KIND...]      e.g. scripts/fuzz.sh 60 projcs
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:?usage: scripts/fuzz.sh SECONDS [KIND...]}
shift
build=build-fuzz

cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ \
      -DVELTRA_FUZZ=ON -DVELTRA_TESTS=OFF -DVELTRA_BENCH=OFF >/dev/null
cmake --build "$build" -j2

if [ "$#" -gt 0 ]; then
  kinds=("$@")
else
  kinds=()
  for source in fuzz/fuzz_*.cpp; do
    name=$(basename "$source" .cpp)
    kinds+=("${name#fuzz_}")
  done
fi

failed=()
for kind in "${kinds[@]}"; do
  out="fuzz-out/$kind"
  mkdir -p "$out/corpus"
  echo "== fuzz_$kind for ${seconds}s"
  if "$build/fuzz/fuzz_$kind" -max_total_time="$seconds" -max_len=4096 \
       -timeout=10 -rss_limit_mb=2048 -dict=fuzz/text.dict \
       -print_final_stats=1 -artifact_prefix="$out/" \
       "$out/corpus" "fuzz/corpus/$kind" 2>"$out/log.txt"; then
    grep -E 'stat::number_of_executed_units|stat::peak_rss_mb' "$out/log.txt" || true
  else
    echo "fuzz_$kind FAILED: see $out/log.txt"
    tail -n 40 "$out/log.txt"
    failed+=("$kind")
  fi
done

if [ "${#failed[@]}" -gt 0 ]; then
  echo "fuzzing failed for: ${failed[*]}"
  exit 1
fi
echo "fuzzing: no failures"
