#!/usr/bin/env bash
# What scripts of tests share: a home folder of their own beside the bundle, which is their first
# argument. Nothing that they start knows the home of the person who runs them.
# shellcheck disable=SC2034  # some of the variables are for them
set -uo pipefail
work=$(mktemp -d "${TMPDIR:-/tmp}/quillon test Ö XXXXXX")
trap 'rm -rf "$work"' EXIT
cp -R "$1" "$work/QuillonSettings.app"
program=$work/QuillonSettings.app/Contents/MacOS/quillon-settings
export HOME=$work QT_QPA_PLATFORM=offscreen
unset XDG_CONFIG_HOME DISPLAY WAYLAND_DISPLAY
failed=0

# check NAME COMMAND...: whether the command succeeds.
check() {
  local name=$1 begin=$SECONDS result=ok
  shift
  "$@" || { result=FAILED failed=1; }
  printf '%-7s %3d s  %s\n' "$result" $((SECONDS - begin)) "$name"
}
