#!/usr/bin/env bash
# Brings the texts in resources/translations up to date with the code. New ones are left "unfinished"
# there, for somebody to translate.
#   translate.sh [--check]    with it nothing is changed, and unfinished texts are an error
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. scripts/packages.sh
installMissing qt6-l10n-tools

folder=resources/translations
if [ "${1:-}" = --check ]; then
  folder=$(mktemp -d)
  trap 'rm -r "$folder"' EXIT
  cp resources/translations/*.ts "$folder"
fi
quietly /usr/lib/qt6/bin/lupdate -tr-function-alias QT_TRANSLATE_NOOP+=translatable -no-obsolete \
  -locations none -I . desktop editor document volumes app checks -ts "$folder"/*.ts
if grep -B 3 unfinished "$folder"/*.ts; then
  [ "${1:-}" != --check ]
fi
