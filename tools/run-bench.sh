#!/bin/sh
# Builds the benchmark in Release (build-bench/) and runs it under the offscreen
# platform: a table on stdout, the same figures as CSV in build-bench/bench-results.csv.
# Extra arguments go to the benchmark, e.g. --workloads S,M
set -e
ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD="$ROOT/build-bench"
export CCACHE_BASEDIR="$ROOT"
cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DZEL_BUILD_BENCH=ON -DZEL_BUILD_TESTS=OFF -DZEL_BUILD_EXAMPLES=OFF >/dev/null
ninja -C "$BUILD" -j2 zelRibbonBench >/dev/null
echo "load before the run: $(uptime)"
cd "$BUILD"
QT_QPA_PLATFORM=offscreen QT_FONT_DPI=96 ./bench/zelRibbonBench --csv "$BUILD/bench-results.csv" "$@"
echo "load after the run: $(uptime)"
