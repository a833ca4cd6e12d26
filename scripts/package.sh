#!/usr/bin/env bash
# Builds the archive and the Debian package into build/packages, and checks what they are made of.
# Packages that are missing are installed.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/packages.sh

build=build/release
program=$build/QuillonSettings.app/Contents/MacOS/quillon-settings
desktopEntry=resources/desktop/org.quillon.settings.desktop
metainfo=resources/desktop/org.quillon.settings.metainfo.xml
manual=packaging/quillon-settings.1

fail() {
  echo "$*" >&2
  exit 1
}

checkTexts() {
  local said options option documented picture pictures
  # Warnings do not show in the status of these two, and failures say something, too.
  said=$(desktop-file-validate "$desktopEntry" 2>&1) || true
  said+=$(LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 \
    man --warnings -E UTF-8 -l -Tutf8 -Z "$manual" 2>&1 >/dev/null) || true
  [ -z "$said" ] || fail "$said"
  # Versions before 1.0 do not know the tag for developers that later ones ask for.
  said=$(appstreamcli validate --pedantic --no-net "$metainfo" | grep '^[A-Z]:' |
    grep -v 'unknown-tag developer$') || true
  [ -z "$said" ] || fail "$said"
  pictures=$(grep -oE 'docs/pictures/[^<]+' "$metainfo")
  for picture in $pictures; do
    [ -f "$picture" ] || fail "$metainfo shows $picture, which is not there."
  done
  options=$("$program" --help | grep -oE -- '--[a-z]+')
  # No pipe into grep -q: with pipefail it fails when grep has found the line before sed has ended.
  documented=$(sed 's/\\-/-/g' "$manual")
  for option in $options; do
    grep -qFx -- ".B $option" <<<"$documented" || fail "$manual lacks $option"
    grep -qF -- "$option" packaging/quillon-settings.bash || fail "The completion lacks $option"
  done
}

# checkVersions VERSION: that the lists of releases tell of it.
checkVersions() {
  [ "$(dpkg-parsechangelog -l packaging/debian/changelog -S Version)" = "$1" ] ||
    fail "packaging/debian/changelog does not begin with $1"
  grep -qF "<release version=\"$1\"" "$metainfo" || fail "$metainfo has no release $1"
}

installMissing "${buildPackages[@]}" dpkg-dev file lintian desktop-file-utils appstream man-db
[ -e $build/build.ninja ] || configure $build -DQUILLON_TESTS=OFF
configure $build -DQUILLON_HARDENING=ON
quietly cmake --build $build --target quillon-settings manuals
checkTexts

rm -rf build/packages
mkdir build/packages
quietly cpack --config $build/CPackConfig.cmake -B $build/cpack \
  -D CPACK_OUTPUT_FILE_PREFIX="$PWD/build/packages"
package=$(echo build/packages/*.deb)
checkVersions "$(dpkg-deb --field "$package" Version)"
lintian --allow-root --fail-on error,warning "$package"
printf '%s\n' "$PWD"/build/packages/*
