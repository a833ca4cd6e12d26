#!/usr/bin/env bash
# All goals with the figures. Called by "bench/run --all".
set -euo pipefail
bench=$(dirname "$(readlink -f "$0")")
# shellcheck source=bench/common.sh
. "$bench/common.sh"
buildTargets window cases
folder=$(mktemp -d "${TMPDIR:-/tmp}/goals-XXXXXX")
trap 'rm -rf "$folder"' EXIT

# row WHAT GOAL FIGURE
row() {
  awk -v what="$1" -v goal="$2" -v figure="$3" 'BEGIN {
    printf "%-60s %6s %8.3f  %s\n", what, goal, figure, figure <= goal ? "pass" : "short" }'
}

# startup NAME COLUMN: the median of the runs of bench/startup.sh.
startup() {
  awk -v name="$1" -v column="$2" '$1 == name { print $column }' "$folder"/startup.* | median
}

# findings, facts: CPU milliseconds of a case.
operation() {
  "$binaries/cases" --benchmark_filter="^$1" --benchmark_format=csv 2>/dev/null |
    awk -F, 'END { print $4 }'
}

# slowest NAME WHERE: the median of the runs of bench/window.
slowest() {
  awk -v name="$1" '$1 == name { print $2 }' "$folder/$2" | median
}

for run in 1 2 3; do "$bench/startup.sh" 31 >"$folder/startup.$run"; done
for run in 1 2 3; do
  QT_QPA_PLATFORM=offscreen "$binaries/window" >>"$folder/offscreen" 2>/dev/null
  "${bench%/*}/scripts/display.sh" env QT_QPA_PLATFORM=xcb "$binaries/window" >>"$folder/xcb" \
    2>/dev/null
done
"$bench/many-lines.sh" >"$folder/lines"
"$bench/blank-image.sh" 1024 9 >"$folder/image"

printf '%-60s %6s %8s\n' what goal figure
row "first paint, to the bare window" 1.05 "$(startup lines40 3)"
row "CPU time until then, to the bare window" 1.05 "$(startup lines40 5)"
row "peak memory until then, to the bare window" 1.10 "$(startup lines40 7)"
row "all pages there, to the bare window until idle" 1.5 "$(startup lines40 9)"
row "first paint with 1,000 images, to one" 1.10 \
  "$(sed -n 's/^1,000 .* paint \([0-9.]*\), .*/\1/p' "$folder"/startup.* | median)"
for where in offscreen xcb; do
  row "scroll a list of 1,000 images, slowest frame, ms, $where" 16 "$(slowest scroll "$where")"
  row "drag a list of 1,000 images, slowest frame, ms, $where" 16 "$(slowest drag "$where")"
  row "search, slowest key, ms, $where" 4 "$(slowest search "$where")"
done
row "facts about 1,000 images, CPU ms" 20 "$(operation facts)"
row "findings about 1,000 images, CPU ms" 1 "$(operation findings)"
row "200,000 lines but disks, slowest kind, to plain" 1.5 \
  "$(awk '$(NF - 3) == 200000 && $1 != "disk" { print $NF }' "$folder/lines" | sort -g | tail -1)"
row "400,000 lines to 200,000, disks" 2.2 \
  "$(awk '$1 == "disk" { time[++n] = $3 } END { print time[2] / time[1] }' "$folder/lines")"
row "a blank image of 1 GiB, to dd" 1.05 \
  "$(sed -n 's/^median of the ratios: //p' "$folder/image")"
"$bench/counts.sh"
