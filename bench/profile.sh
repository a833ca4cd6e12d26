#!/usr/bin/env bash
# Where the time goes until the first painted window: CPU time by part, of the program with a
# 40-line file and of a bare Qt window of the same kind. Sampling itself makes both slower.
#
#   profile.sh [ROUNDS]    (12)
set -euo pipefail
# shellcheck source=bench/common.sh
. "$(dirname "$(readlink -f "$0")")/common.sh"
buildTargets quillon-settings floor first_paint
installMissing linux-perf
rounds=${1:-12}
openDisplayAndFolder
"$binaries/sample" 6 0 >"$folder/.quillon_prefs"

# Samples of a start as lines of nanoseconds and the file that the code is in.
sample() {
  HOME=$folder perf record -q -F 15000 -o "$folder/samples" -- "$binaries/first_paint" "$1" >/dev/null
  perf report -q -i "$folder/samples" --sort comm,dso -F period,comm,dso |
    awk 'NF && !/first_paint|perf-exec/ { print $1, $NF }'
}

for _ in $(seq "$rounds"); do
  sample "$program" | sed 's/^/1 /'
  sample "$binaries/floor" | sed 's/^/2 /'
done 2>/dev/null | awk -v rounds="$rounds" '
  function part(file) {
    if (file ~ /kernel|vdso/) return "kernel"
    if (file ~ /^ld-linux/) return "dynamic linking"
    if (file ~ /freetype|fontconfig|expat|harfbuzz/) return "fonts"
    if (file ~ /Widgets/) return "Qt Widgets"
    if (file ~ /Gui|xcb|Xcb|X11/) return "Qt Gui and X"
    if (file ~ /Qt6/) return "Qt Core and D-Bus"
    if (file ~ /quillon|floor/) return "own code"
    return "C and C++ libraries, others"
  }
  { sums[part($3), $1] += $2; parts[part($3)]; all[$1] += $2 }
  END {
    printf "%-28s %-12s %s\n", "CPU time in ms", "program", "bare window"
    for (name in parts)
      printf "%-28s %-12.2f %.2f\n", name, sums[name, 1] / rounds / 1e6, sums[name, 2] / rounds / 1e6
    printf "%-28s %-12.2f %.2f\n", "all", all[1] / rounds / 1e6, all[2] / rounds / 1e6
  }'
