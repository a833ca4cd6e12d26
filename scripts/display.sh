#!/usr/bin/env bash
# A virtual display. Sourced, it gives openDisplay; called, it runs a command on one, with a home
# that is gone at the end:
#
#   display.sh COMMAND [ARGUMENT...]

# openDisplay FOLDER [SIZE]: opens one that keeps its files in the folder, sets DISPLAY, and sets
# `display` to its process, which whoever calls has to end.
openDisplay() {
  Xvfb -displayfd 3 -screen 0 "${2:-1280x1024}x24" -noreset -nolisten tcp 3>"$1/display" \
    2>"$1/xvfb" &
  display=$!
  local round
  for round in {1..200}; do
    [ ! -s "$1/display" ] || break
    sleep 0.1
  done
  DISPLAY=:$(<"$1/display")
  export DISPLAY
  if [ "$DISPLAY" = : ]; then
    echo "Xvfb did not start within $((round / 10)) seconds: $(<"$1/xvfb")" >&2
    return 1
  fi
}

if [ "${BASH_SOURCE[0]}" = "$0" ]; then
  set -euo pipefail
  folder=$(mktemp -d)
  trap 'kill $display; rm -rf "$folder"' EXIT
  openDisplay "$folder"
  export HOME=$folder XDG_RUNTIME_DIR=$folder
  "$@"
fi
