#!/usr/bin/env bash
# Builds Quillon Settings and runs all tests. Packages that are missing are installed.
# Arguments are for ctest: "test.sh -R document" runs the tests of that name.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. scripts/packages.sh

installMissing "${testPackages[@]}"
quietly cmake --preset release -DQUILLON_TESTS=ON
quietly cmake --build --preset release
exec ctest --preset release --no-tests=error "$@"
