#!/usr/bin/env bash
# Fuzzes one loader target for a given time.
#
#   fuzz/run.sh TARGET SECONDS [extra libFuzzer options...]
#
# TARGET is one of: zvn math employees_cfg goals_cfg movies_lst games_lst.
# Builds the fuzz build first if needed (clang, -DZORVANE_FUZZ=ON), then runs libFuzzer on
# the committed corpus fuzz/corpus/TARGET with the dictionary fuzz/zorvane.dict, one second
# per input at most, 2 GB of memory at most. New inputs go to a scratch corpus, never into
# the committed one; findings (crash-*, leak-*, timeout-*, oom-*) and the log go beside it.
#
# Environment: ZORVANE_FUZZ_BUILD  the fuzz build folder   (default: build/fuzz)
#              ZORVANE_FUZZ_WORK   scratch corpora, findings and logs
#                                  (default: <build folder>/fuzz-work)
#              ZORVANE_NICE        niceness of the fuzzer   (default: 10)
#              ZORVANE_BUILD_LOCK  lock file taken while building (default: /tmp/zorvane-build.lock)
set -euo pipefail

targets="zvn math employees_cfg goals_cfg movies_lst games_lst"
if [[ $# -lt 2 || ! " $targets " =~ " $1 " || ! "$2" =~ ^[0-9]+$ ]]; then
    echo "usage: $0 TARGET SECONDS [libFuzzer options...]   (TARGET: ${targets// /, })" >&2
    exit 2
fi
target=$1
seconds=$2
shift 2

repo=$(cd "$(dirname "$0")/.." && pwd)
build=${ZORVANE_FUZZ_BUILD:-$repo/build/fuzz}
work=${ZORVANE_FUZZ_WORK:-$build/fuzz-work}
lock=${ZORVANE_BUILD_LOCK:-/tmp/zorvane-build.lock}

if [[ ! -f "$build/CMakeCache.txt" ]]; then
    cxx=clang++
    command -v clang++ >/dev/null || cxx=clang++-14 # tools/install-deps.sh fuzz
    CC=${cxx/++/} CXX=$cxx flock "$lock" cmake -S "$repo" -B "$build" \
        -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVANE_FUZZ=ON \
        -DZORVANE_TESTS=OFF -DZORVANE_GUI=OFF -DZORVANE_BENCH=OFF
fi
flock "$lock" cmake --build "$build" --target "fuzz_$target" -j2

scratch=$work/$target/corpus
artifacts=$work/$target/findings
mkdir -p "$scratch" "$artifacts"
log=$work/$target/fuzz-$(date +%Y%m%d-%H%M%S).log
echo "fuzzing $target for $seconds s; new inputs in $scratch, findings in $artifacts, log $log"

# The scratch corpus comes first: libFuzzer writes what it finds into the first folder only.
set +e
nice -n "${ZORVANE_NICE:-10}" "$build/bin/fuzz_$target" \
    -max_total_time="$seconds" -timeout=1 -rss_limit_mb=2048 \
    -dict="$repo/fuzz/zorvane.dict" -artifact_prefix="$artifacts/" \
    -print_final_stats=1 "$@" \
    "$scratch" "$repo/fuzz/corpus/$target" 2>&1 | tee "$log"
status=${PIPESTATUS[0]}
set -e
echo "--- $target: last status line and totals"
grep -E '^#[0-9]+' "$log" | tail -1 || true
grep -E '^stat::' "$log" || true
exit "$status"
