#!/usr/bin/env bash
# Runs the settings window on a virtual display with the keyboard only, as a person would: looks
# at every tab, leaves a picture of each, and quits.
#
#   virtual_display.sh [--start MEGABYTES] PICTURES PROGRAM [ARGUMENT...]
#
#   --start   first sets the RAM size and starts the emulator, which must be the stand-in
set -euo pipefail

megabytes=
if [ "$1" = --start ]; then
  megabytes=$2
  shift 2
fi
pictures=$1
shift

scratch=$(mktemp -d)
children=()
cleanUp() {
  local child
  for child in "${children[@]}"; do
    kill "$child" 2>/dev/null || continue
    wait "$child" || true
  done
  rm -rf "$scratch"
}
trap cleanUp EXIT

fail() {
  echo "$*" >&2
  exit 1
}

# waitFor SECONDS COMMAND...: whether the command succeeded within that time.
waitFor() {
  local end=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$end" ] || return 1
    sleep 0.1
  done
}

isRunning() { kill -0 "$1" 2>/dev/null; }
hasEnded() { ! isRunning "$1"; }

startDisplay() {
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp 3>"$scratch/display" \
    2>"$scratch/xvfb" &
  children+=($!)
  waitFor 20 [ -s "$scratch/display" ] || fail "Xvfb does not start: $(<"$scratch/xvfb")"
  DISPLAY=:$(<"$scratch/display")
  export DISPLAY QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$scratch
  # The keys that are pressed here are those of the English window.
  export LC_ALL=C.UTF-8
  unset WAYLAND_DISPLAY LANGUAGE
}

hasWindow() {
  local status=0
  if ! isRunning "$program"; then
    wait "$program" || status=$?
    echo "The program ended before it showed its window." >&2
    exit $((status > 0 ? status : 1))
  fi
  window=$(xdotool search --onlyvisible --name '^Quillon Settings' 2>/dev/null | head -n 1)
  [ -n "$window" ]
}

# There is no window manager that would give it the focus.
hasFocus() {
  xdotool windowfocus "$window" 2>/dev/null
  [ "$(xdotool getwindowfocus -f 2>/dev/null)" = "$window" ]
}

takePicture() {
  import -silent -window "$window" "png:$scratch/now.png" 2>/dev/null
}

# Whether the window shows another tab than before and is no longer changing. The strip with the
# tabs tells them apart, because nothing blinks there.
isNewTab() {
  local strip last=$picture
  takePicture || return 1
  strip=$(convert "$scratch/now.png" -crop x80+0+0 +repage -format '%#' info:)
  picture=$(identify -format '%#' "$scratch/now.png")
  [ "$picture" = "$last" ] && [[ " $strips " != *" $strip "* ]] && strips+=" $strip"
}

pictureTabs() {
  local tab number=0 tabs=(volumes scsi machine display sound-input network jit)
  mkdir -p "$pictures"
  strips='' picture=''
  for tab in "${tabs[@]}"; do
    rm -f "$pictures/$tab.png"
    [ "$tab" != scsi ] || "$scsi" || continue
    xdotool key "alt+$((++number))"
    waitFor 20 isNewTab || fail "The tab for $tab.png does not show."
    [ "$(identify -format '%k' "$scratch/now.png")" -gt 16 ] || fail "$tab.png is empty."
    mv "$scratch/now.png" "$pictures/$tab.png"
  done
}

setRamAndStart() {
  xdotool key "alt+$("$scsi" && echo 3 || echo 2)" key alt+m key ctrl+a type "$megabytes"
  xdotool key Return key alt+t
  waitFor 20 [ -s "$QUILLON_STAND_IN_REPORT" ] || fail "The stand-in emulator does not start."
}

startDisplay
"$@" &
program=$!
children+=("$program")
settings=$(dirname "$1")/../Resources/Prefs.plist
scsi=false
! grep -A1 '<key>SCSI Tab</key>' "$settings" | grep -q '<true/>' || scsi=true

waitFor 30 hasWindow || fail "The program shows no window."
waitFor 20 hasFocus || fail "The window does not take the focus."
[ -z "$megabytes" ] || setRamAndStart
pictureTabs
echo "A picture of every tab is in $pictures."
xdotool key ctrl+q
waitFor 20 hasEnded "$program" || fail "The program does not quit."
wait "$program"
