# shellcheck shell=bash disable=SC2034  # the paths are for those who source this
# What the measuring commands share: their build, and medians.

# Builds targets, and the maker of sample files, as for a release, in a folder of their own, and sets
# `binaries` and `program`.
buildTargets() {
  local root
  root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
  # shellcheck source=scripts/packages.sh
  . "$root/scripts/packages.sh"
  # shellcheck source=scripts/display.sh
  . "$root/scripts/display.sh"
  installMissing "${buildPackages[@]}" libbenchmark-dev
  quietly cmake -S "$root" -B "$root/build/bench" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DQUILLON_BENCH=ON -DQUILLON_TESTS=OFF
  quietly cmake --build "$root/build/bench" --target sample "$@"
  binaries=$root/build/bench/bench
  program=$root/build/bench/QuillonSettings.app/Contents/MacOS/quillon-settings
}

# Opens a display and sets `folder`, which goes with it at the end.
openDisplayAndFolder() {
  installMissing xvfb
  folder=$(mktemp -d "${TMPDIR:-/tmp}/display-XXXXXX")
  # shellcheck disable=SC2154  # openDisplay sets it
  trap 'kill $display; rm -rf "$folder"' EXIT
  openDisplay "$folder"
  export LANG=C.UTF-8 XDG_RUNTIME_DIR=$folder DBUS_SESSION_BUS_ADDRESS=disabled:
}

# The median of the numbers on standard input, one a line.
median() {
  sort -g | awk '{ n[NR] = $1 }
    END { print (NR % 2 ? n[(NR + 1) / 2] : (n[NR / 2] + n[NR / 2 + 1]) / 2) }'
}

# Seconds that a command takes.
seconds() {
  local before=$EPOCHREALTIME
  "$@"
  local after=$EPOCHREALTIME
  awk -v a="${before/,/.}" -v b="${after/,/.}" 'BEGIN { printf "%.4f\n", b - a }'
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f\n", a / b }'; }
