# shellcheck shell=bash disable=SC2034  # the lists are for those who source this
# What the commands at the root need of Debian 12 and later, and the way to get it.

libraryPackages=(cmake ninja-build pkg-config libplist-dev libutf8proc-dev)
coreTestPackages=(g++ "${libraryPackages[@]}" libgtest-dev)
buildPackages=(g++ "${libraryPackages[@]}" libpng-dev qt6-base-dev qt6-tools-dev qt6-l10n-tools
  qt6-wayland qt6-translations-l10n)
testPackages=("${buildPackages[@]}" libgtest-dev xvfb dbus-daemon at-spi2-core python3-gi
  gir1.2-atspi-2.0)
displayPackages=(xvfb xdotool imagemagick)
checkPackages=(clang-format clang-tidy shellcheck)
fuzzPackages=(clang "${libraryPackages[@]}")

# The package with the sanitizers of the installed clang; it has the version in its name.
clangRuntime() {
  local version
  version=$(clang -dumpversion)
  echo "libclang-rt-${version%%.*}-dev"
}

# Runs a command and shows what it wrote only when it failed.
quietly() {
  local log status=0
  log=$(mktemp)
  "$@" >"$log" 2>&1 </dev/null || status=$?
  [ "$status" -eq 0 ] || cat "$log" >&2
  rm -f "$log"
  return "$status"
}

# configure FOLDER OPTION...: prepares a folder for a build. It asks for no preset, with which
# warnings are errors: nobody has tried all compilers. A folder that was prepared by a preset keeps
# what that has set.
configure() {
  quietly cmake -S . -B "$1" -G Ninja -DCMAKE_BUILD_TYPE=Release "${@:2}"
}

isInstalled() {
  [[ $(dpkg-query -W -f='${db:Status-Status}\n' "$1" 2>/dev/null) == installed* ]]
}

asRoot() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

aptGet() {
  asRoot env DEBIAN_FRONTEND=noninteractive apt-get -y -qq -o DPkg::Lock::Timeout=300 \
    --no-install-recommends "$@"
}

installMissing() {
  local package missing=()
  # Elsewhere than on Debian, CMake says what is missing.
  command -v dpkg-query >/dev/null || return 0
  for package; do
    isInstalled "$package" || missing+=("$package")
  done
  [ ${#missing[@]} -gt 0 ] || return 0
  echo "Installing ${missing[*]}"
  if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null; then
    echo "Only root can install packages, and there is no sudo." >&2
    return 1
  fi
  # Package lists that are absent or outdated show themselves by a failing download.
  aptGet --download-only install "${missing[@]}" >/dev/null 2>&1 </dev/null ||
    quietly aptGet update || true
  quietly aptGet install "${missing[@]}"
}
