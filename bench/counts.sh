#!/usr/bin/env bash
# Counts what does not depend on what else the machine does: instructions, system calls and
# allocations. Fails when one of them is more than 5 % above the figure in bench/counts.txt.
#
#   counts.sh [--write]    (writes the figures anew: with a change that is meant to cost more)
#
# The first rows are of the core, from the start of the process to its end. The last one is the
# whole program until it has nothing more to do, as a ratio to the bare window, so that the version
# of Qt matters less. All machines count with the same font: reading the list of fonts is a good part
# of a start.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/packages.sh
installMissing "${buildPackages[@]}" libbenchmark-dev valgrind strace fonts-dejavu-core
quietly cmake --preset release -DQUILLON_BENCH=ON
quietly cmake --build --preset release --target walk sample floor quillon-settings
binaries=$PWD/build/release/bench
program=$PWD/build/release/QuillonSettings.app/Contents/MacOS/quillon-settings
figures=bench/counts.txt
folder=$(mktemp -d "${TMPDIR:-/tmp}/counts-XXXXXX")
trap 'rm -rf "$folder"' EXIT
export HOME=$folder/home LANG=C.UTF-8 XDG_RUNTIME_DIR=$folder QT_QPA_PLATFORM=offscreen
export DBUS_SESSION_BUS_ADDRESS=disabled: FONTCONFIG_FILE=$folder/fonts.conf
unset XDG_CURRENT_DESKTOP QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE
cat >"$FONTCONFIG_FILE" <<END
<fontconfig>
  <dir>/usr/share/fonts/truetype/dejavu</dir>
  <cachedir>$folder/fonts</cachedir>
</fontconfig>
END

# Ends a program once it has taken no CPU time for two seconds: windows never end by themselves. In a
# session of its own, since strace passes no signal on to what it runs.
untilIdle() {
  local session processes before='' now
  setsid timeout -k 10 300 "$@" >/dev/null 2>&1 &
  session=$!
  while sleep 2 && processes=$(pgrep -s "$session"); do
    now=$(for process in $processes; do cut -d' ' -f14,15 "/proc/$process/stat" || true; done 2>&1)
    [ "$now" != "$before" ] || pkill -s "$session" || true
    before=$now
  done
  wait "$session" || true
}

# counts COMMAND...: the three figures.
counts() {
  local name
  name=$(mktemp "$folder/count-XXXXXX")
  untilIdle valgrind --tool=callgrind --log-file="$name.instructions" \
    --callgrind-out-file=/dev/null "$@" &
  untilIdle valgrind --leak-check=no --undef-value-errors=no --log-file="$name.allocations" "$@" &
  wait
  untilIdle strace -f -qq -e '!futex' -o "$name.calls" "$@"  # those go by who comes first
  echo "$(awk '/Collected/ { print $NF }' "$name.instructions")" \
    "$(grep -vc resumed "$name.calls")" \
    "$(sed -n 's/.*total heap usage: \([0-9,]*\) allocs.*/\1/p' "$name.allocations" | tr -d ,)"
}

# home DISKS: the preferences file of the next one that is counted.
home() {
  mkdir -p "$HOME"
  "$binaries/sample" "$1" 0 >"$HOME/.quillon_prefs"
}

all() {
  untilIdle "$binaries/floor"  # leaves the list of fonts
  home 6
  echo "read-6-disks $(counts "$binaries/walk" "$HOME")"
  echo "read-and-save-6-disks $(counts "$binaries/walk" "$HOME" --save)"
  home 1000
  echo "read-1000-disks $(counts "$binaries/walk" "$HOME")"
  home 6
  local own bare
  read -ra own <<<"$(counts "$program")"
  read -ra bare <<<"$(counts "$binaries/floor")"
  printf 'window-to-bare-window'
  for count in 0 1 2; do
    awk -v own="${own[count]}" -v bare="${bare[count]}" 'BEGIN { printf " %.3f", own / bare }'
  done
  echo
}

all >"$folder/now"
if [ "${1:-}" = --write ]; then
  {
    echo "# what, instructions, system calls, allocations; written by bench/counts.sh --write"
    cat "$folder/now"
  } >"$figures"
fi
# Each figure beside the one that is kept.
awk '
  NR == FNR { for (count = 2; count <= 4; ++count) kept[$1, count] = $count; next }
  FNR == 1 {
    split("instructions,system calls,allocations", kinds, ",")
    printf "%-24s %-14s %12s %12s\n", "what", "count", "now", "kept"
  }
  {
    for (count = 2; count <= 4; ++count) {
      grown = $count > 1.05 * kept[$1, count]
      failed = failed || grown
      printf "%-24s %-14s %12s %12s%s\n", $1, kinds[count - 1], $count, kept[$1, count],
        grown ? "  more than 5 % above" : ""
    }
  }
  END { exit failed }' "$figures" "$folder/now"
