#!/usr/bin/env bash
# Builds zelRibbon with its tests and runs the whole suite under Qt's offscreen platform.
#   tools/run-tests.sh              the normal suite (build/)
#   tools/run-tests.sh --sanitize   the same suite under ASan + UBSan (build-sanitize/)
set -euo pipefail
cd "$(dirname "$0")/.."
source tools/deps.sh

build=build
flags=(-DCMAKE_BUILD_TYPE=RelWithDebInfo)
if [ "${1:-}" = "--sanitize" ]; then
    build=build-sanitize
    flags=(-DCMAKE_BUILD_TYPE=Debug -DZEL_SANITIZE=ON)
fi

tools/ensure-deps.sh "${ZEL_BUILD_DEPS[@]}" "${ZEL_XVFB_DEPS[@]}"
cmake -S . -B "$build" -G Ninja -DZEL_BUILD_TESTS=ON -DZEL_WARNINGS_AS_ERRORS=ON "${flags[@]}" >/dev/null
cmake --build "$build"
ctest --test-dir "$build" --output-on-failure -j"$(nproc)"
