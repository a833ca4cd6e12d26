#!/usr/bin/env bash
# Holds the program's writer of blank images against dd, alternately.
#
#   blank-image.sh [MiB [ROUNDS [FOLDER]]]    (1024, 5, the folder for temporary files)
#
# Prints a line for each pair, the median of the ratios, and how far the peak of resident memory is
# above that of the same program making an empty image. Neither waits for the disk.
set -euo pipefail
# shellcheck source=bench/common.sh
. "$(dirname "$(readlink -f "$0")")/common.sh"
buildTargets blank_image
mib=${1:-1024}
rounds=${2:-5}
folder=$(mktemp -d "${3:-${TMPDIR:-/tmp}}/blank-image-XXXXXX")
trap 'rm -rf "$folder"' EXIT

room=$(df --output=avail -B 1M "$folder" | tail -1)
if [ "$room" -le $((mib + 1024)) ]; then
  echo "$folder has room for $room MiB, not for $mib: left out"
  exit 0
fi

writeOwn() { "$binaries/blank_image" "$folder/own" $((mib << 20)) >"$folder/peak"; }
writeDd() { dd if=/dev/zero of="$folder/dd" bs=1M count="$mib" status=none; }

writeOwn # so that neither is the first to take memory from the system
cmp -n $((mib << 20)) "$folder/own" /dev/zero
rm "$folder/own"
echo "MiB    own s    dd s     ratio"
for _ in $(seq "$rounds"); do
  own=$(seconds writeOwn)
  rm "$folder/own"
  dd=$(seconds writeDd)
  rm "$folder/dd"
  ratio "$own" "$dd" >>"$folder/ratios"
  printf '%-6s %-8s %-8s %s\n' "$mib" "$own" "$dd" "$(tail -1 "$folder/ratios")"
done
echo "median of the ratios: $(median <"$folder/ratios")"
peak=$(<"$folder/peak")
empty=$("$binaries/blank_image" "$folder/own" 0)
echo "peak of resident memory: $peak KiB, $((peak - empty)) KiB above an empty image's"
