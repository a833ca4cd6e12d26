#!/usr/bin/env bash
# Tries the packages in build/packages as somebody would who gets them: installs or unpacks them,
# makes a disk image and starts a stand-in for Quillon from an ordinary account, and removes them
# again. Only root can do that. Of what it installs only the libraries that the program needs stay
# behind.
set -euo pipefail
root=$(dirname "$(dirname "$(readlink -f "$0")")")
. "$root/scripts/packages.sh"

name=quillon-settings
scratch=
installed=false

cleanUp() {
  ! "$installed" || quietly aptGet purge "$name" || true
  [ -z "$scratch" ] || rm -rf "$scratch"
}
trap cleanUp EXIT

fail() {
  echo "$*" >&2
  exit 1
}

# onlyFile PATHS: the one path, when it is one.
onlyFile() {
  if [ $# -ne 1 ] || [ ! -f "$1" ]; then fail "Not one file: $*"; fi
  echo "$1"
}

# Sets home: that of an ordinary person, with the sample preferences.
makeHome() {
  home=$(mktemp -d "$scratch/home.XXXXXX")
  sed "s|/home/you|$home|" "$root/demo/quillon_prefs" >"$home/wanted"
  { echo '# no save keeps this line' && cat "$home/wanted"; } >"$home/.quillon_prefs"
  own "$home"
}

own() { chown -R nobody:nogroup "$1"; }

asPerson() {
  setpriv --reuid nobody --regid nogroup --clear-groups \
    env -i -C "$home" HOME="$home" PATH=/usr/bin:/bin LANG=C.UTF-8 "$@"
}

checkVersion() {
  [ "$(asPerson "$1" --version)" = "$name $version" ] || fail "$1 is not version $version."
}

# checkStart PROGRAM: that it saves the preferences and starts the stand-in.
checkStart() {
  local left=100 report=$home/quillon-stand-in.txt
  asPerson "$1" --start >"$scratch/log" || fail "$1 --start failed."
  diff <(sort "$home/wanted") <(sort "$home/.quillon_prefs") ||
    fail "$1 --start did not save the preferences."
  until [ -e "$report" ] || [ $((left--)) -eq 0 ]; do sleep 0.1; done
  grep -qx 'ramsize = 67108864' "$report" || fail "$1 --start did not start the stand-in."
}

# checkImage PROGRAM FOLDER: that a new disk image goes to the folder.
checkImage() {
  # The sources are perhaps in a folder that nobody else can read.
  cp "$root"/scripts/{display,virtual_display}.sh "$scratch"
  asPerson "$scratch/virtual_display.sh" --image disk "$home/pictures" "$1" >"$scratch/log" 2>&1 ||
    { cat "$scratch/log" >&2 && fail "$1 cannot be used."; }
  [ "$(stat -c %s "$2/disk.dsk")" = 1048576 ] || fail "$1 made no disk image in $2."
}

bundleState() { find "/usr/lib/$name" -printf '%p %y %m %u %s %T@\n' | sort; }

checkDebianPackage() {
  local path before config
  # It would be gone afterwards.
  ! isInstalled "$name" || fail "$name is installed; remove it to check the package."
  installed=true
  quietly aptGet install "$package"
  dpkg-query -L "$name" >"$scratch/paths"
  before=$(bundleState)

  makeHome
  config=$home/.config/$name
  mkdir -p "$config" "$home/My Emulator"
  cp -R "$root/demo/Quillon.app" "$home/My Emulator"
  sed -e "s|<string></string>|<string>$home/My Emulator/Quillon.app</string>|" \
    -e 's|<integer>2</integer>|<integer>1</integer>|' \
    "$root/resources/Prefs.plist" >"$config/Prefs.plist"
  own "$home"
  checkVersion "$name"
  checkStart "$name"
  checkImage "/usr/lib/$name/QuillonSettings.app/Contents/MacOS/$name" "$home/.local/share/$name"
  [ "$(bundleState)" = "$before" ] || fail "An ordinary person changed the installed bundle."

  quietly aptGet purge "$name"
  installed=false
  while read -r path; do
    if [ -e "$path" ] || [ -L "$path" ]; then
      # Folders are shared with other packages, which must then own them.
      dpkg-query -S "$path" >/dev/null 2>&1 || fail "The package leaves $path behind."
    fi
  done <"$scratch/paths"
}

checkArchive() {
  local folder unpacked
  makeHome
  folder="$home/Programs of mine"
  asPerson mkdir "$folder"
  asPerson tar -xz -C "$folder" <"$archive"
  unpacked=("$folder"/*)
  [ ${#unpacked[@]} -eq 1 ] || fail "The archive holds more than one folder."
  cp -R "$root/demo/Quillon.app" "${unpacked[0]}"
  own "$folder"
  checkVersion "${unpacked[0]}/$name"
  checkImage "${unpacked[0]}/QuillonSettings.app/Contents/MacOS/$name" "${unpacked[0]}"
  checkStart "${unpacked[0]}/QuillonSettings.app/Contents/MacOS/$name"
}

[ "$(id -u)" -eq 0 ] || fail "Only root can try the packages."
package=$(onlyFile "$root"/build/packages/*.deb)
archive=$(onlyFile "$root"/build/packages/*.tar.gz)
version=$(dpkg-deb --field "$package" Version)
installMissing "${displayPackages[@]}"
scratch=$(mktemp -d)
chmod 755 "$scratch"
checkDebianPackage
echo "The Debian package installs, runs and is removed without a trace."
checkArchive
echo "The archive runs where it is unpacked."
