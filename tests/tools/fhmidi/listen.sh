#!/usr/bin/env bash
# Renders every MIDI file of the resource tree with FluidSynth and the General MIDI soundfont, as
# the game plays them, and checks what a listener would notice first: clipping, a piece too quiet,
# and a gap of silence before its end.
set -euo pipefail
fhmidi=$1
audio=$2
soundfont=/usr/share/sounds/sf2/FluidR3_GM.sf2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

check() {
  local midi=$1 work=$2 fhmidi=$3 soundfont=$4
  local name wav seconds
  name=$(basename "$midi" .mid)
  wav=$work/$name.wav
  fluidsynth -ni -q -F "$wav" -r 22050 "$soundfont" "$midi" >/dev/null 2>&1
  seconds=$("$fhmidi" info "$midi" | sed -n '1s/.*, \([0-9.]*\) s$/\1/p')
  # Peak and RMS of the whole piece, then the quietest second up to three seconds before its end.
  sox "$wav" -t dat -r 1000 -c 1 - 2>/dev/null | awk -v name="$name" -v seconds="$seconds" '
    /^;/ { next }
    { v = $2; if (v < 0) v = -v; if (v > peak) peak = v; sum += $2 * $2; n++
      s = int($1); win[s] += $2 * $2; cnt[s]++ }
    END {
      rms = sqrt(sum / n); quietest = 1
      for (s = 0; s + 3 < seconds; s++) { r = sqrt(win[s] / cnt[s]); if (r < quietest) { quietest = r; at = s } }
      printf "%-12s %6.1f s  peak %.3f  rms %.4f  quietest second %.4f at %d s\n", name, seconds, peak, rms, quietest, at
      if (peak >= 0.99) { print name ": clips"; exit 1 }
      if (rms < 0.005) { print name ": too quiet"; exit 1 }
      if (quietest < 0.0005) { print name ": silent in the middle"; exit 1 }
    }'
}
export -f check

ls "$audio"/*.mid >/dev/null
printf '%s\n' "$audio"/*.mid | xargs -P 2 -I{} bash -c 'check "$@"' _ {} "$work" "$fhmidi" "$soundfont"
