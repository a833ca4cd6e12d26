# shellcheck shell=bash disable=SC2034  # the paths are for those who source this
# What the measuring commands share: their build, and medians.

# Builds targets as for a release, in a folder of their own, and sets `binaries` and `program`.
buildTargets() {
  local root
  root=$(dirname "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")")
  # shellcheck source=scripts/packages.sh
  . "$root/scripts/packages.sh"
  installMissing "${buildPackages[@]}" libbenchmark-dev
  quietly cmake -S "$root" -B "$root/build/bench" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DQUILLON_BENCH=ON -DQUILLON_TESTS=OFF
  quietly cmake --build "$root/build/bench" --target "$@"
  binaries=$root/build/bench/bench
  program=$root/build/bench/QuillonSettings.app/Contents/MacOS/quillon-settings
}

# Opens a virtual display and sets `folder`, which goes with it at the end.
openDisplay() {
  installMissing xvfb
  folder=$(mktemp -d "${TMPDIR:-/tmp}/display-XXXXXX")
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -noreset -nolisten tcp 3>"$folder/display" 2>/dev/null &
  # shellcheck disable=SC2064  # the process and the folder of now
  trap "kill $!; rm -rf '$folder'" EXIT
  for _ in $(seq 100); do
    [ ! -s "$folder/display" ] || break
    sleep 0.1
  done
  DISPLAY=:$(<"$folder/display")
  export DISPLAY LANG=C.UTF-8 XDG_RUNTIME_DIR=$folder DBUS_SESSION_BUS_ADDRESS=disabled:
}

# The median of the numbers on standard input, one a line.
median() {
  sort -g | awk '{ n[NR] = $1 }
    END { print (NR % 2 ? n[(NR + 1) / 2] : (n[NR / 2] + n[NR / 2 + 1]) / 2) }'
}

# Seconds that a command takes.
seconds() {
  local before=$EPOCHREALTIME
  "$@"
  local after=$EPOCHREALTIME
  awk -v a="${before/,/.}" -v b="${after/,/.}" 'BEGIN { printf "%.4f\n", b - a }'
}

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.3f\n", a / b }'; }

# A preferences file: so many disk lines, so many lines of another text, and a line for each of a
# few settings.
samplePreferences() {
  awk -v disks="$1" -v others="$2" -v other="${3:-keyword}" 'BEGIN {
    for (i = 0; i < disks; ++i) printf "disk /home/somebody/images/disk%06d.dsk\n", i
    for (i = 0; i < others; ++i) printf "%s /home/somebody/other/folder/file%09d.img\n", other, i
    n = split("extfs seriala serialb ether udptunnel udpport bootdrive bootdriver ramsize " \
              "frameskip modelid cpu fpu nocdrom nosound noclipconversion nogui jit jitfpu " \
              "jitdebug jitcachesize jitlazyflush jitinline keyboardtype keycodes keycodefile " \
              "mousewheelmode mousewheellines dsp mixer ignoresegv idlewait", keys, " ")
    print "screen win/1024/768\nrom /home/somebody/quadra.rom"
    for (i = 1; i <= n; ++i) print keys[i], i % 2
  }'
}
