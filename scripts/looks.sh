#!/usr/bin/env bash
# Leaves pictures of every tab and window as people with other screens, languages, desktops and eyes
# have them, and of what they meet at first and later, for somebody to look at.
#
#   looks.sh [FOLDER [LOOK...]]
#
# The folder is build/looks unless named, the looks are all of them. Build with ./run.sh before;
# BUNDLE names another bundle.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$root/scripts/packages.sh"
. "$root/scripts/demo.sh"

pictures=$(realpath -m "${1:-$root/build/looks}")
looks=("${@:2}")
[ $# -gt 1 ] || looks=(light dark contrast double german french spanish japanese mirrored small
  large-font adwaita breeze first-run full-list findings unsaved)
bundle=${BUNDLE:-$root/build/release/QuillonSettings.app}
log=$(mktemp)
trap 'rm -rf "$log" "${demoHome:-$log}"' EXIT

# hasStyle NAME PACKAGE...: whether there is a style of that name for Qt 6, after installing the
# packages. In Debian 12 the first of those of Breeze is for Qt 5.
hasStyle() {
  local needed styles
  needed=$(apt-cache depends "$2")
  [[ $needed == *libqt6widgets6* ]] || return 1
  quietly installMissing "${@:2}" || return 1
  styles=$(qmake6 -query QT_INSTALL_PLUGINS)/styles
  compgen -G "$styles/$1*.so" >/dev/null
}

# theme ICONS FONT-SIZE WINDOW VIEW TEXT HIGHLIGHT HIGHLIGHTED: has Qt read colours, a font and an
# icon theme as on KDE.
theme() {
  mkdir -p "$XDG_CONFIG_HOME"
  cat >"$XDG_CONFIG_HOME/kdeglobals" <<END
[General]
widgetStyle=Fusion
font=Sans,$2,-1,5,50,0,0,0,0,0
[Icons]
Theme=$1
[Colors:Window]
BackgroundNormal=$3
ForegroundNormal=$5
[Colors:View]
BackgroundNormal=$4
BackgroundAlternate=$3
ForegroundNormal=$5
[Colors:Button]
BackgroundNormal=$3
ForegroundNormal=$5
[Colors:Selection]
BackgroundNormal=$6
ForegroundNormal=$7
[Colors:Tooltip]
BackgroundNormal=$3
ForegroundNormal=$5
END
  export XDG_CURRENT_DESKTOP=KDE KDE_FULL_SESSION=true KDE_SESSION_VERSION=5
}

# Every fifth of them is missing.
addDisks() {
  local number file
  for number in {1..40}; do
    file="$HOME/Quillon/Disk $number.dsk"
    [ $((number % 5)) -eq 0 ] || truncate -s "${number}M" "$file"
    echo "disk $file"
  done >>"$HOME/.quillon_prefs"
}

# isPossible LOOK
isPossible() {
  local svg
  svg=$(apt-cache pkgnames qt6-svg-plugins)  # Debian 12 has them with the library
  case $1 in
    adwaita) hasStyle adwaita adwaita-qt6 adwaita-icon-theme "${svg:-libqt6svg6}" ;;
    dark | contrast | large-font) quietly installMissing breeze-icon-theme "${svg:-libqt6svg6}" || true ;;
    japanese) [ -n "$(fc-list :lang=ja)" ] || quietly installMissing fonts-ipafont-gothic ;;
    breeze) hasStyle breeze kde-style-breeze breeze-icon-theme "${svg:-libqt6svg6}" ;;
  esac
}

# takeLook NAME: runs in a shell of its own, which the settings of one look do not leave.
takeLook() {
  local options=(--windows --frames)
  case $1 in
    light) ;;
    dark) theme breeze-dark 9 49,54,59 35,38,41 252,252,252 61,174,233 252,252,252 ;;
    contrast) theme breeze-dark 9 0,0,0 0,0,0 255,255,255 255,255,0 0,0,0 ;;
    double) export QT_SCALE_FACTOR=2 && options+=(--screen 2048x1400) ;;
    german) options+=(--locale de_DE.UTF-8) ;;
    french) options+=(--locale fr_FR.UTF-8) ;;
    spanish) options+=(--locale es_ES.UTF-8) ;;
    japanese) options+=(--locale ja_JP.UTF-8) ;;
    mirrored) options+=(--locale ar_EG.UTF-8) ;;  # of Qt's own texts, which tell the direction
    small) options+=(--screen 1024x600) ;;
    large-font) theme breeze 14 239,239,239 255,255,255 0,0,0 48,140,198 255,255,255 ;;
    adwaita) export QT_STYLE_OVERRIDE=adwaita XDG_CURRENT_DESKTOP=GNOME ;;
    breeze)
      theme breeze 10 239,240,241 252,252,252 35,38,41 61,174,233 252,252,252
      export QT_STYLE_OVERRIDE=breeze
      ;;
    first-run) rm -r "$HOME/.quillon_prefs" "$HOME/Quillon.app" && options=(--frames) ;;
    full-list) addDisks && options=(--frames) ;;
    findings) rm -r "$HOME/Quillon" && options=(--frames --state findings) ;;
    unsaved) options=(--frames --state unsaved) ;;
    *) echo "There is no look $1." >&2 && return 1 ;;
  esac
  "$root/scripts/virtual_display.sh" "${options[@]}" "$pictures/$1" \
    "$HOME/${bundle##*/}/Contents/MacOS/quillon-settings" >"$log" 2>&1 ||
    { cat "$log" >&2 && return 1; }
}

installMissing "${buildPackages[@]}" "${displayPackages[@]}" openbox
[ -e "$bundle" ] || { echo "$bundle is not built." >&2 && exit 1; }
for look in "${looks[@]}"; do
  isPossible "$look" || { echo "Left out: $look, which has no style for Qt 6 here." && continue; }
  makeDemoHome "$root" "$bundle" >/dev/null
  sed -i '/SCSI Tab/ { n; s/false/true/ }' "$demoHome/${bundle##*/}/Contents/Resources/Prefs.plist"
  (enterDemoHome && takeLook "$look")
  rm -rf "$demoHome"
  echo "$pictures/$look"
done
