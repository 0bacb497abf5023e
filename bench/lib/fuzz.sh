# The common part of the fuzz benchmarks (bench/fuzz-package, bench/fuzz-json): build one
# libFuzzer target of fuzz/ with clang under AddressSanitizer and UndefinedBehaviorSanitizer,
# gather seeds, run it for a number of executions in one process and report the figures.
# Sourced from the repository's root. Each target works in build/fuzz/NAME: seeds/ is made
# anew each run, corpus/ grows from run to run, findings land in artifacts/.

# fuzz_prepare NAME TARGET MAX_LEN: builds the target and makes its folders.
fuzz_prepare() {
  fuzz_name=$1
  fuzz_target=build/fuzz/$2
  fuzz_max_len=$3
  fuzz_work=build/fuzz/$1
  scripts/setup
  cmake -S fuzz -B build/fuzz -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo \
        -DCMAKE_C_COMPILER=clang -DCMAKE_CXX_COMPILER=clang++ >/dev/null
  cmake --build build/fuzz --target "$2" -j 2 >/dev/null
  rm -rf "$fuzz_work/seeds"
  mkdir -p "$fuzz_work/seeds" "$fuzz_work/corpus" "$fuzz_work/artifacts"
}

# fuzz_seed FILE NAME: copies FILE into the seeds as NAME, unless it exceeds the length bound.
fuzz_seed() {
  [ "$(stat -c %s "$1")" -le "$fuzz_max_len" ] || return 0
  cp "$1" "$fuzz_work/seeds/$2"
}

# fuzz_run EXECUTIONS DICTIONARY: runs the target from the corpus and the seeds, prints the
# executions, the wall time, executions per second and the corpus size; fails on a finding.
fuzz_run() {
  local runs=$1 log="$fuzz_work/fuzz.log" status=0 start end
  start=$(date +%s.%N)
  "$fuzz_target" -runs="$runs" -max_len="$fuzz_max_len" -dict="$2" \
    -timeout=60 -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$fuzz_work/artifacts/" \
    "$fuzz_work/corpus" "$fuzz_work/seeds" >"$log" 2>&1 || status=$?
  end=$(date +%s.%N)

  local executed inputs bytes
  executed=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log" | tail -n 1)
  inputs=$(find "$fuzz_work/corpus" -type f | wc -l)
  bytes=$(du -sb "$fuzz_work/corpus" | cut -f 1)
  awk -v name="$fuzz_name" -v done="${executed:-0}" -v runs="$runs" -v start="$start" \
      -v end="$end" -v inputs="$inputs" -v bytes="$bytes" -v logfile="$log" 'BEGIN {
    seconds = end - start
    printf "fuzz-%s: %d executions of %d requested in %.0f s (%.0f exec/s); " \
           "corpus: %d inputs, %d bytes (log: %s)\n",
           name, done, runs, seconds, done / seconds, inputs, bytes, logfile }'
  if [ "$status" -ne 0 ]; then
    echo "fuzz-$fuzz_name: the fuzzer stopped with status $status:"
    grep -E 'ERROR|SUMMARY|Test unit written' "$log" || tail -n 20 "$log"
    return 1
  fi
  echo "fuzz-$fuzz_name: no finding"
}
