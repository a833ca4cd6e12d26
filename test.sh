#!/usr/bin/env bash
# Builds Quillon Settings and runs all tests. Packages that are missing are installed.
# Arguments are for ctest: "test.sh -R document" runs the tests of that name.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
. scripts/packages.sh

installMissing "${testPackages[@]}"
configure -DQUILLON_TESTS=ON
quietly cmake --build build/release
exec ctest --test-dir build/release --output-on-failure --no-tests=error "$@"
