#!/usr/bin/env bash
# Runs the settings window on a virtual display with the keyboard only, as a person would: looks
# at every tab, leaves a picture of each, and quits.
#
#   virtual_display.sh [OPTION...] PICTURES PROGRAM [ARGUMENT...]
#
#   --start MEGABYTES      first sets the RAM size and starts the emulator, the stand-in
#   --image NAME           makes a blank disk image of one megabyte
#   --windows              leaves pictures of the other windows, too, on the whole screen
#   --state findings       leaves a picture of what the checks have found; needs the English keys
#   --state unsaved        changes a setting and leaves pictures of that; needs the English keys
#   --frames               has a window manager put frames around the windows
#   --screen WIDTHxHEIGHT  how large the screen is
#   --locale NAME          whose language is shown; the RAM size needs the English keys
set -euo pipefail
# shellcheck source=scripts/display.sh
. "$(dirname "$(readlink -f "$0")")/display.sh"

megabytes='' image='' windows=false state='' frames=false screen=1280x1024 locale=C.UTF-8
while [[ $1 == --* ]]; do
  case $1 in
    --start) megabytes=$2 && shift ;;
    --image) image=$2 && shift ;;
    --windows) windows=true ;;
    --state) state=$2 && shift ;;
    --frames) frames=true ;;
    --screen) screen=$2 && shift ;;
    --locale) locale=$2 && shift ;;
  esac
  shift
done
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

startFrames() {
  openbox --sm-disable >/dev/null 2>&1 &
  children+=($!)
  waitFor 20 hasManager || fail "openbox does not start."
}

hasManager() { xdotool get_num_desktops >/dev/null 2>&1; }

visibleWindows() { xdotool search --onlyvisible --class quillon-settings 2>/dev/null; }

hasWindow() {
  local status=0
  if ! isRunning "$program"; then
    wait "$program" || status=$?
    echo "The program ended before it showed its window." >&2
    exit $((status > 0 ? status : 1))
  fi
  window=$(visibleWindows) || true
  window=${window%%$'\n'*}
  [ -n "$window" ]
}

# Where no window manager would give it the focus.
hasFocus() {
  xdotool mousemove 4096 4096  # over nothing that would explain itself
  xdotool windowfocus "$window" 2>/dev/null
  [ "$(xdotool getwindowfocus -f 2>/dev/null)" = "$window" ]
}

takePicture() {
  import -silent -window "$window" "png:$scratch/now.png" 2>/dev/null
}

# Whether the picture taken last has been there before since `seen` was emptied: what shows is no
# longer changing, though a cursor may blink.
isKnown() {
  local picture
  picture=$(identify -format '%#' "$scratch/now.png")
  [[ " $seen " == *" $picture "* ]] || ! seen+=" $picture"
}

# Whether the window shows another tab than before. The strip with the tabs tells them apart.
isNewTab() {
  local strip
  takePicture || return 1
  strip=$(convert "$scratch/now.png" -crop 100%x15%+0+0 +repage -format '%#' info:)
  isKnown && [[ " $strips " != *" $strip "* ]] && strips+=" $strip"
}

pictureTabs() {
  local tab number=0 tabs=(volumes scsi machine display sound-input network jit)
  mkdir -p "$pictures"
  strips=''
  for tab in "${tabs[@]}"; do
    rm -f "$pictures/$tab.png"
    [ "$tab" != scsi ] || "$scsi" || continue
    xdotool key "alt+$((++number))" key Tab  # to the first control, which tells its help
    seen=''
    waitFor 20 isNewTab || fail "The tab for $tab.png does not show."
    [ "$(identify -format '%k' "$scratch/now.png")" -gt 16 ] || fail "$tab.png is empty."
    mv "$scratch/now.png" "$pictures/$tab.png"
  done
}

isStill() {
  import -silent -window root "png:$scratch/now.png"
  isKnown
}

hasOpened() { [ "$(visibleWindows)" != "$window" ]; }
hasClosed() { [ "$(visibleWindows)" = "$window" ]; }

# pictureWindow NAME XDOTOOL...: what opens, or only changes, by these keys.
pictureWindow() {
  local name=$1
  shift
  waitFor 20 hasFocus || fail "The window does not take the focus back."
  xdotool "$@"
  waitFor 20 hasOpened || fail "Nothing opens for $name.png."
  seen=''
  waitFor 20 isStill || fail "$name.png does not come to rest."
  mv "$scratch/now.png" "$pictures/$name.png"
  # The agreement is left by its buttons only.
  if [ "$name" = agreement ]; then xdotool key Return; else xdotool key Escape; fi
  waitFor 20 hasClosed || fail "What $name.png shows does not close."
}

pictureWindows() {
  pictureWindow preferences key ctrl+comma
  pictureWindow create key ctrl+n
  local help=h  # the letter of the menu
  case $locale in
    fr*) help=a ;;
    es*) help=y ;;
  esac
  pictureWindow agreement key "alt+$help" sleep 0.3 key Return
  pictureWindow diagnostics key "alt+$help" sleep 0.3 key Down key Return
  pictureWindow file-panel key ctrl+o
  pictureWindow find key ctrl+f type s
}

# From the field of the preferences file, the checks are the second stop of the Tab key and the
# changes the fourth.
pictureState() {
  if [ "$1" = findings ]; then
    pictureWindow findings key alt+l key Tab key Tab key space
  else
    xdotool key "alt+$("$scsi" && echo 4 || echo 3)" key Tab key Down
    pictureWindow changes key alt+l key Tab key Tab key Tab key Tab key space
    pictureWindow preview key alt+f sleep 0.3 key v
  fi
}

setRamAndStart() {
  xdotool key "alt+$("$scsi" && echo 3 || echo 2)" key alt+m key ctrl+a type "$megabytes"
  xdotool key Return key alt+t
  waitFor 20 [ -s "$QUILLON_STAND_IN_REPORT" ] || fail "The stand-in emulator does not start."
}

makeImage() {
  xdotool key ctrl+n
  waitFor 20 hasOpened || fail "The sheet for new images does not open."
  xdotool type "$image"
  xdotool key Tab type 1
  xdotool key Return key Return  # makes the image, then closes the sheet
  waitFor 20 hasClosed || fail "The sheet for new images does not close."
  waitFor 20 hasFocus || fail "The window does not take the focus back."
}

openDisplay "$scratch" "$screen"
children+=("$display")
export QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$scratch LC_ALL=C.UTF-8
unset WAYLAND_DISPLAY LANGUAGE
! "$frames" || startFrames
LC_ALL=$locale "$@" &
program=$!
children+=("$program")
settings=$(dirname "$1")/../Resources/Prefs.plist
scsi=false
[[ $(grep -A1 '<key>SCSI Tab</key>' "$settings") != *'<true/>'* ]] || scsi=true

waitFor 30 hasWindow || fail "The program shows no window."
waitFor 20 hasFocus || fail "The window does not take the focus."
[ -z "$megabytes" ] || setRamAndStart
pictureTabs
! "$windows" || pictureWindows
[ -z "$state" ] || pictureState "$state"
[ -z "$image" ] || makeImage
echo "The pictures are in $pictures."
xdotool key ctrl+q
waitFor 20 hasEnded "$program" || fail "The program does not quit."
wait "$program"
