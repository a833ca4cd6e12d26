# shellcheck shell=bash
# A throw-away home with everything the main job needs: sample preferences with the disks that
# they name, the settings program, and beside it the stand-in for the emulator.

# makeDemoHome SOURCES BUNDLE: sets demoHome.
makeDemoHome() {
  local text kind file
  demoHome=$(mktemp -d "${TMPDIR:-/tmp}/quillon-demo.XXXXXX")
  text=$(<"$1/demo/quillon_prefs")
  printf '%s\n' "${text//'/home/you'/"$demoHome"}" >"$demoHome/.quillon_prefs"
  while read -r kind file; do
    case $kind in
      disk | rom) mkdir -p "${file%/*}" && truncate -s 1M "$file" ;;
      extfs) mkdir -p "$file" ;;
    esac
  done <"$demoHome/.quillon_prefs"
  # Copies, because the program keeps its own settings in its bundle, and because the place
  # beside the built one may hold a real emulator.
  cp -R "$2" "$1/demo/Quillon.app" "$demoHome"
  cp "$1/resources/Prefs.plist" "$demoHome/${2##*/}/Contents/Resources"
  echo "Demo: the home is $demoHome, and a stand-in takes the place of Quillon."
}

enterDemoHome() {
  export XAUTHORITY=${XAUTHORITY:-${HOME:-}/.Xauthority}  # is looked for in the home otherwise
  export HOME=$demoHome
  export XDG_CONFIG_HOME=$HOME/.config XDG_CACHE_HOME=$HOME/.cache
  export XDG_DATA_HOME=$HOME/.local/share XDG_STATE_HOME=$HOME/.local/state
  export QUILLON_STAND_IN_REPORT=$HOME/quillon-stand-in.txt
}

showDemoResult() {
  local left=10
  printf '\nThe preferences file %s holds:\n' "$HOME/.quillon_prefs"
  cat "$HOME/.quillon_prefs"
  # It was perhaps started a moment ago.
  until [ -e "$QUILLON_STAND_IN_REPORT" ] || [ $((left--)) -eq 0 ]; do sleep 0.1; done
  if [ -e "$QUILLON_STAND_IN_REPORT" ]; then
    printf '\nThe stand-in emulator wrote to %s:\n' "$QUILLON_STAND_IN_REPORT"
    cat "$QUILLON_STAND_IN_REPORT"
  else
    printf '\nThe stand-in emulator was not started.\n'
  fi
  printf '\nThe home %s is no longer needed and can be deleted.\n' "$HOME"
}
