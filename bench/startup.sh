#!/usr/bin/env bash
# Times the start of the program from exec to its first painted window, and to the moment from which
# on it has nothing more to do, alternately with a bare Qt window of the same kind, on a virtual
# display.
#
#   startup.sh [ROUNDS]    (15)
#
# Ratios are to the bare window: the median of the rounds' ratios.
set -euo pipefail
# shellcheck source=bench/common.sh
. "$(dirname "$(readlink -f "$0")")/common.sh"
buildTargets quillon-settings floor first_paint
rounds=${1:-15}
openDisplayAndFolder

declare -A disks=([floor]=6 [lines40]=6 [disks1]=1 [disks1000]=1000)
names=(floor lines40 disks1 disks1000)
for name in "${names[@]}"; do
  mkdir "$folder/$name"
  "$binaries/sample" "${disks[$name]}" 0 >"$folder/$name/.quillon_prefs"
done

start() {
  local what=$program
  [ "$1" != floor ] || what=$binaries/floor
  HOME=$folder/$1 "$binaries/first_paint" "$what"
}

for name in "${names[@]}"; do start "$name" >/dev/null; done
for _ in $(seq "$rounds"); do
  for name in "${names[@]}"; do start "$name" >>"$folder/$name.runs"; done
done

ratioTo() { # NAME BASE COLUMN
  paste "$folder/$1.runs" "$folder/$2.runs" |
    awk -v c="$3" '{ split($0, n, /[ \t]+/); print n[c] / n[c + NF / 2] }' | median
}
column() { awk -v c="$2" '{ print $c }' "$folder/$1.runs" | median; }

echo "name       paint ms  ratio   CPU ms  ratio   peak KiB  ratio   idle ms  ratio   CPU ms  ratio"
for name in "${names[@]}"; do
  printf '%-10s %-9.1f %-7.3f %-7.1f %-7.3f %-9.0f %-7.3f %-8.1f %-7.3f %-7.1f %.3f\n' "$name" \
    "$(column "$name" 1)" "$(ratioTo "$name" floor 1)" \
    "$(column "$name" 2)" "$(ratioTo "$name" floor 2)" \
    "$(column "$name" 3)" "$(ratioTo "$name" floor 3)" \
    "$(column "$name" 4)" "$(ratioTo "$name" floor 4)" \
    "$(column "$name" 5)" "$(ratioTo "$name" floor 5)"
done
printf '1,000 disk lines to one: paint %.3f, CPU %.3f\n' "$(ratioTo disks1000 disks1 1)" \
  "$(ratioTo disks1000 disks1 2)"
