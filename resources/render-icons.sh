#!/bin/sh
# Draws the pictures again from their SVG sources; run it after changing one.
# Needs rsvg-convert (Debian: librsvg2-bin).
set -eu
cd "$(dirname "$0")"

render() { # source, edge length in pixels, target
  rsvg-convert --width="$2" --height="$2" --output="$3" "$1"
}

render HappyMac.svg 16 HappyMac.png
render HappyMac.svg 32 HappyMac@2x.png
render icons/quillon-settings-small.svg 16 icons/quillon-settings-16.png
for size in 32 48 64 128 256; do
  render icons/quillon-settings.svg "$size" "icons/quillon-settings-$size.png"
done
