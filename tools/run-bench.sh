#!/usr/bin/env bash
# Builds the benchmark in Release (build-bench/) and runs it twice: under the offscreen
# platform (every measure), then under an X server (Xvfb) with a window manager
# (openbox) for the measures a user feels there: show, resize and tab switch. Each run
# prints a table and writes the same figures as CSV: build-bench/bench-results.csv and
# build-bench/bench-results-x11.csv.
# Extra arguments go to the benchmark, e.g. --workloads S,M or --runs 5
set -euo pipefail
ROOT=$(cd "$(dirname "$0")/.." && pwd)
BUILD="$ROOT/build-bench"
cd "$ROOT"
source tools/deps.sh
tools/ensure-deps.sh "${ZEL_BUILD_DEPS[@]}" "${ZEL_BENCH_X_DEPS[@]}"
export CCACHE_BASEDIR="$ROOT"
cmake -S "$ROOT" -B "$BUILD" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DZEL_BUILD_BENCH=ON -DZEL_BUILD_TESTS=OFF -DZEL_BUILD_EXAMPLES=OFF >/dev/null
ninja -C "$BUILD" -j2 zelRibbonBench >/dev/null
cd "$BUILD"
export QT_FONT_DPI=96

echo "=== offscreen platform ==="
echo "load before the run: $(uptime)"
QT_QPA_PLATFORM=offscreen ./bench/zelRibbonBench --csv "$BUILD/bench-results.csv" "$@"
echo "load after the run: $(uptime)"

# A display number nobody uses; the screen is wide enough for the widest window (L).
display=99
while [ -e "/tmp/.X11-unix/X$display" ] || [ -e "/tmp/.X$display-lock" ]; do
    display=$((display + 1))
done
Xvfb ":$display" -screen 0 5200x1200x24 -nolisten tcp >/dev/null 2>&1 &
xvfb_pid=$!
wm_pid=
cleanup() {
    [ -n "$wm_pid" ] && kill "$wm_pid" 2>/dev/null || true
    kill "$xvfb_pid" 2>/dev/null || true
}
trap cleanup EXIT
for _ in $(seq 50); do
    [ -e "/tmp/.X11-unix/X$display" ] && break
    sleep 0.1
done
export DISPLAY=":$display"
openbox --sm-disable >/dev/null 2>&1 &
wm_pid=$!
sleep 1

echo
echo "=== X server (Xvfb) with a window manager (openbox) ==="
echo "load before the run: $(uptime)"
QT_QPA_PLATFORM=xcb ./bench/zelRibbonBench --csv "$BUILD/bench-results-x11.csv" --only resize,switch "$@"
echo "load after the run: $(uptime)"

echo
echo "=== targets, as ratios to the floor (the README's table) ==="
./bench/zelRibbonBench --summary "$BUILD/bench-results.csv,$BUILD/bench-results-x11.csv"
