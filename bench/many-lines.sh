#!/usr/bin/env bash
# Reads, walks and saves large preferences files without a window, alternately with a plain program
# that splits and rewrites the same file.
#
#   many-lines.sh [LINES [ROUNDS]]    (200000, 7)
#
# Unlike the plain program, the real one keeps the old content until the new one is flushed to the
# disk.
set -euo pipefail
# shellcheck source=bench/common.sh
. "$(dirname "$(readlink -f "$0")")/common.sh"
buildTargets walk plain_rewrite
lines=${1:-200000}
rounds=${2:-7}
folder=$(mktemp -d "${TMPDIR:-/tmp}/many-lines-XXXXXX")
trap 'rm -rf "$folder"' EXIT

walkAndSave() { "$binaries/walk" "$folder/home" --save; }
rewrite() { "$binaries/plain_rewrite" "$folder/lines" "$folder/copy"; }

mkdir "$folder/home"
echo "kind       lines    own s    plain s  ratio  (medians)"
for kind in keyword rom ramsize "a b c" disk; do
  for count in "$lines" $((2 * lines)); do
    "$binaries/sample" 0 "$count" "$kind" >"$folder/lines"
    rm -f "$folder"/{own,plain,ratios}
    for _ in $(seq "$rounds"); do
      cp "$folder/lines" "$folder/home/.quillon_prefs"
      own=$(seconds walkAndSave)
      plain=$(seconds rewrite)
      echo "$own" >>"$folder/own"
      echo "$plain" >>"$folder/plain"
      ratio "$own" "$plain" >>"$folder/ratios"
    done
    printf '%-10s %-8s %-8s %-8s %s\n' "$kind" "$count" "$(median <"$folder/own")" \
      "$(median <"$folder/plain")" "$(median <"$folder/ratios")"
  done
done
