#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite twice: once as shipped,
# once under AddressSanitizer and UndefinedBehaviorSanitizer. Both builds include the game
# window; its Qt Test suites (label "screens") run on the offscreen platform, no display.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh game
jobs=$(nproc)

cmake -S . -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build/release -j"$jobs"
QT_QPA_PLATFORM=offscreen ctest --test-dir build/release -j"$jobs" --output-on-failure

cmake -S . -B build/sanitize -DCMAKE_BUILD_TYPE=Debug -DZORVANE_SANITIZE=ON \
      -DZORVANE_BENCH=OFF >/dev/null
cmake --build build/sanitize -j"$jobs"
# Qt's font and platform libraries keep a few allocations for the life of the process.
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
LSAN_OPTIONS=suppressions="$PWD/tools/lsan-qt.supp" QT_QPA_PLATFORM=offscreen \
    ctest --test-dir build/sanitize -j"$jobs" --output-on-failure
