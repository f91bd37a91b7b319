#!/usr/bin/env bash
# Starts the game from the staged folder, in the resource tree, as an installed game would start.
set -euo pipefail
stage=$1
if [[ -z "${DISPLAY:-}" && -z "${WAYLAND_DISPLAY:-}" && -z "${QT_QPA_PLATFORM:-}" ]]; then
  echo "No display found: Fernhollow needs a desktop. Without one, run it under Xvfb: xvfb-run -s \"-screen 0 1024x768x24\" make play" >&2
  exit 1
fi
cd "$stage/resources"
exec ../fernhollow
