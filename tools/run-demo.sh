#!/usr/bin/env bash
# Builds zelRibbon and runs the demo host. Without a display the demo renders its
# screens to PNG files and prints where they are.
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/deps.sh

tools/ensure-deps.sh "${ZEL_BUILD_DEPS[@]}"
cmake -S . -B build -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build build --target zelRibbonDemo

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec build/examples/demo/zelRibbonDemo "$@"
fi
out="$PWD/build/screenshots"
# The offscreen platform warns about every window feature it lacks (raise, masks); those
# lines say nothing about the demo, so they are left out.
QT_QPA_PLATFORM=offscreen build/examples/demo/zelRibbonDemo --screenshots "$out" "$@" 2>&1 \
    | { grep -v 'This plugin does not support' || true; }
exit "${PIPESTATUS[0]}"
