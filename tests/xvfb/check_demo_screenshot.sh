#!/usr/bin/env bash
# Runs the demo's editor on a real X server (Xvfb), grabs the screen and lets the demo
# check the picture: not blank, and the ribbon's tab row showing the File button's
# accent colour. Usage: check_demo_screenshot.sh <zelRibbonDemo> <output.png>
set -euo pipefail

demo="${1:?path to zelRibbonDemo}"
out="${2:?path of the screenshot to write}"

if ! command -v xvfb-run >/dev/null 2>&1; then
    echo "xvfb-run not found" >&2
    exit 1
fi
mkdir -p "$(dirname "$out")"
rm -f "$out"

# A real X server, not the offscreen platform; no settings of the user are read.
unset QT_QPA_PLATFORM WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb
export XDG_CONFIG_HOME="$(mktemp -d)"
trap 'rm -rf "$XDG_CONFIG_HOME"' EXIT

status=0
timeout 120 xvfb-run -a -s "-screen 0 1400x900x24" "$demo" --xvfb-check "$out" || status=$?

if [ "$status" -ne 0 ]; then
    echo "demo check failed with exit code $status" >&2
    exit 1
fi
if [ ! -s "$out" ]; then
    echo "no screenshot written to $out" >&2
    exit 1
fi
echo "screenshot: $out"
