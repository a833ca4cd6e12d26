#!/usr/bin/env bash
# Builds Quillon Settings and runs it. Packages that are missing are installed.
#
#   run.sh [--demo] [ARGUMENT...]
#
#   --demo   uses a throw-away home with sample preferences and a stand-in for Quillon
#
# All other arguments are for the program. Without a display the program runs on a virtual one,
# a picture of every tab is left in build/screenshots, and the program is ended.
set -euo pipefail
root=$(dirname "$(readlink -f "$0")")
. "$root/scripts/packages.sh"
. "$root/scripts/demo.sh"

demo=false
window=true
arguments=()
for argument; do
  case $argument in
    --demo) demo=true ;;
    --start | --help | --version) window=false ;;&
    *) arguments+=("$argument") ;;
  esac
done

packages=("${buildPackages[@]}")
runner=()
if "$window" && [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "There is no display: running on a virtual one, pictures go to build/screenshots."
  packages+=("${displayPackages[@]}")
  runner=("$root/scripts/virtual_display.sh")
  ! "$demo" || runner+=(--start 192)
  runner+=("$root/build/screenshots")
fi
installMissing "${packages[@]}"

(
  cd "$root"
  # A folder that was configured with the tests stays so: GoogleTest is there then.
  [ -e build/release/build.ninja ] || configure build/release -DQUILLON_TESTS=OFF
  quietly cmake --build build/release --target quillon-settings
)
bundle=$root/build/release/QuillonSettings.app
export LANG=${LANG:-C.UTF-8}

if "$demo"; then
  makeDemoHome "$root" "$bundle"
  enterDemoHome
  bundle=$HOME/${bundle##*/}
fi
status=0
"${runner[@]}" "$bundle/Contents/MacOS/quillon-settings" "${arguments[@]}" || status=$?
! "$demo" || showDemoResult
exit "$status"
