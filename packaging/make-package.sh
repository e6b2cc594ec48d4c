#!/bin/bash
# Builds the Debian package in build/package. The same sources give the same bytes. Needs dpkg-dev
# beside what debian-packages.txt lists.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."
umask 022

command -v dpkg-shlibdeps >/dev/null ||
    { echo "dpkg-shlibdeps is missing; please install dpkg-dev." >&2; exit 1; }
cmake -S . -B build/package -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DQUILLET_TESTS=OFF -DQUILLET_BENCHMARKS=OFF
cmake --build build/package

# Every time in the package is that of the newest entry of the change log.
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp)
export SOURCE_DATE_EPOCH
cpack --config build/package/CPackConfig.cmake -B build/package
