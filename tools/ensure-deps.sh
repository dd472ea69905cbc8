#!/usr/bin/env bash
# Installs the Debian packages given as arguments when any of them is missing.
# Usage: tools/ensure-deps.sh package...
set -euo pipefail

missing=()
for pkg in "$@"; do
    if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q 'install ok installed'; then
        missing+=("$pkg")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

line="apt-get install -y --no-install-recommends ${missing[*]}"
if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; then
        sudo apt-get update -qq && sudo DEBIAN_FRONTEND=noninteractive $line && exit 0
    fi
    echo "zelRibbon needs these Debian packages: ${missing[*]}" >&2
    echo "Install them as root with:  $line" >&2
    exit 1
fi
echo "Installing ${missing[*]} ..."
apt-get update -qq
DEBIAN_FRONTEND=noninteractive $line >/dev/null || {
    echo "Could not install the packages. Run as root:  $line" >&2
    exit 1
}
