#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite three times: as shipped
# (GCC), the logic's tests built with clang (so that a seed replays the same game whichever
# compiler built it), and under AddressSanitizer and UndefinedBehaviorSanitizer (GCC). The
# GCC builds include the game window; its Qt Test suites (label "screens") run on the
# offscreen platform, no display needed.
# Every C++ file must be laid out as .clang-format says (tools/check-format.sh).
# Warnings are errors here. The end is each run's summary; the very last line is CTest's own
# summary of the first run that failed, or of the last run when all passed.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh game
jobs=$(nproc)
summaries=()
final=""
failed=0

# Runs one build's tests; a failure is reported and the other builds still run.
run_tests() {
    local name=$1 dir=$2
    shift 2
    local log="$dir/ctest.log" status=0
    env "$@" ctest --test-dir "$dir" -j"$jobs" --output-on-failure 2>&1 | tee "$log" || status=$?
    local line
    line=$(grep -E '^[0-9]+% tests passed' "$log" | tail -1 || true)
    summaries+=("$name: $line")
    if ((failed == 0)); then
        final=$line
    fi
    if ((status != 0)); then
        failed=1
    fi
}

# The layout first: a file out of format fails the run, after the tests have run.
if tools/check-format.sh; then
    summaries+=("format: every file formatted")
else
    summaries+=("format: files out of format (run clang-format-14 -i on them)")
    failed=1
fi

cmake -S . -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVANE_WERROR=ON >/dev/null
cmake --build build/release -j"$jobs"
run_tests gcc build/release QT_QPA_PLATFORM=offscreen

CC=clang-14 CXX=clang++-14 cmake -S . -B build/clang -DCMAKE_BUILD_TYPE=RelWithDebInfo \
      -DZORVANE_GUI=OFF -DZORVANE_BENCH=OFF -DZORVANE_WERROR=ON >/dev/null
cmake --build build/clang -j"$jobs"
run_tests clang build/clang

cmake -S . -B build/sanitize -DCMAKE_BUILD_TYPE=Debug -DZORVANE_SANITIZE=ON \
      -DZORVANE_BENCH=OFF -DZORVANE_WERROR=ON >/dev/null
cmake --build build/sanitize -j"$jobs"
# Qt's font and platform libraries keep a few allocations for the life of the process
# (tools/lsan-qt.supp); whole stacks of each allocation let those be told from ours.
run_tests sanitize build/sanitize QT_QPA_PLATFORM=offscreen \
    ASAN_OPTIONS=detect_leaks=1:abort_on_error=1:fast_unwind_on_malloc=0 \
    UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    LSAN_OPTIONS=suppressions="$PWD/tools/lsan-qt.supp"

printf '%s\n' "${summaries[@]}" "$final"
exit "$failed"
