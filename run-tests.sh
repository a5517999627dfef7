#!/usr/bin/env bash
# Installs what is missing, builds, and runs the whole test suite twice: once as shipped,
# once under AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")"
tools/install-deps.sh
jobs=$(nproc)

cmake -S . -B build/release -DCMAKE_BUILD_TYPE=RelWithDebInfo -DZORVANE_GUI=OFF >/dev/null
cmake --build build/release -j"$jobs"
ctest --test-dir build/release -j"$jobs" --output-on-failure

cmake -S . -B build/sanitize -DCMAKE_BUILD_TYPE=Debug -DZORVANE_SANITIZE=ON \
      -DZORVANE_GUI=OFF -DZORVANE_BENCH=OFF >/dev/null
cmake --build build/sanitize -j"$jobs"
ASAN_OPTIONS=detect_leaks=1:abort_on_error=1 UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1 \
    ctest --test-dir build/sanitize -j"$jobs" --output-on-failure
