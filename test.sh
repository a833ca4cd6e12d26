#!/usr/bin/env bash
# Builds Quillon Settings and runs all tests. Packages that are missing are installed.
#
#   test.sh [--core] [ARGUMENT...]
#
#   --core   only what needs no window, and no Qt
#
# All other arguments are for ctest: "test.sh -R document" runs the tests of that name.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. scripts/packages.sh

build=build/release desktop=ON packages=("${testPackages[@]}")
if [ "${1:-}" = --core ]; then
  build=build/core desktop=OFF packages=("${coreTestPackages[@]}")
  shift
fi
installMissing "${packages[@]}"
configure $build -DQUILLON_TESTS=ON -DQUILLON_DESKTOP=$desktop
quietly cmake --build $build
exec ctest --test-dir $build --output-on-failure --no-tests=error "$@"
