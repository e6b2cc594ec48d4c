#!/bin/bash
# Builds the Debian packages quillet and quillet-odds into build/package, from the files as they lie
# here. The same sources give the same bytes.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."
umask 022

tools/install-missing.sh play package
source=build/package/source
rm -rf build/package
mkdir -p "$source"
tar --exclude-vcs --exclude=./build --exclude=./.cache -cf - . | tar -xf - -C "$source"
cp -r packaging/debian "$source/debian"

# ./check is what runs the tests; without nocheck they run here, too, and need its packages.
cd "$source"
DEB_BUILD_OPTIONS="${DEB_BUILD_OPTIONS-nocheck noautodbgsym}" \
    dpkg-buildpackage --build=binary --no-sign
cd ..
ls -l -- *.deb
