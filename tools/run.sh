#!/usr/bin/env bash
# Sets up, builds and starts Vantorel.
set -euo pipefail
here="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
"$here/tools/setup.sh"
cd "$here"
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-$(mktemp -d)}"
if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
  echo "No display found: starting Vantorel in a virtual X server." >&2
  exec xvfb-run -a -s "-screen 0 1600x1000x24" ./build/vantorel "$@"
fi
exec ./build/vantorel "$@"
