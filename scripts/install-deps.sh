#!/usr/bin/env bash
# Installs the Debian packages that building, testing and playing Fernhollow need.
# Quick when everything is there: it only asks dpkg, and calls apt-get for what is missing.
set -euo pipefail

packages=(
  # build
  cmake make g++ clang libclang-rt-14-dev pkg-config
  # Qt 6: widgets, SQL with the embedded SQLite driver, printing, SVG
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6sql6-sqlite
  # sound: SDL2 with its mixer (MIDI through FluidSynth) and a General MIDI soundfont
  libsdl2-dev libsdl2-mixer-dev fluid-soundfont-gm
  # fonts metric-compatible with Arial (and Times New Roman); Bookman for a caption of the hotspot dialog
  fonts-liberation2 fonts-urw-base35
  # tests
  libgtest-dev googletest
  # listening to the music in the tests: rendering MIDI and measuring the sound
  fluidsynth sox
  # a small General MIDI bank, so that the sound tests need not load the large one
  timgm6mb-soundfont
  # running under a virtual display
  xvfb xauth
  # reading printouts back in the tests
  poppler-utils
  # benchmarks (make bench): Google Benchmark, and SQLite itself for the database floor
  libbenchmark-dev libsqlite3-dev
)

missing=()
for p in "${packages[@]}"; do
  status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
  [[ "$status" == "install ok installed" ]] || missing+=("$p")
done
[[ ${#missing[@]} -eq 0 ]] && exit 0

echo "Installing missing Debian packages: ${missing[*]}"
sudo=()
if [[ $(id -u) -ne 0 ]]; then
  command -v sudo >/dev/null || { echo "Need root or sudo to install: ${missing[*]}" >&2; exit 1; }
  sudo=(sudo)
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
