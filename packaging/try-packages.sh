#!/bin/bash
# Installs the packages of build/package, runs their tests, and purges them again. Run it as root on
# a system that may be changed: tools/bare-root.sh bookworm build/clean packaging/try-packages.sh
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."
export DEBIAN_FRONTEND=noninteractive AUTOPKGTEST_ARTIFACTS=$PWD/build/package PATH=$PATH:/usr/games

apt-get -qq update
echo "== quillet-odds alone"
apt-get -q -y install ./build/package/quillet-odds_*.deb
packaging/debian/tests/odds

echo "== both, and the tools with which the test plays"
apt-get -q -y install ./build/package/*.deb imagemagick openbox procps x11-utils xauth xdotool \
    xvfb
packaging/debian/tests/play

echo "== purged"
apt-get -q -y purge quillet quillet-odds
left=$(find / -xdev -path "$PWD" -prune -o -path /proc -prune -o -iname '*quillet*' -print)
[ -z "$left" ] || { echo "This is left: $left" >&2; exit 1; }
echo "Nothing is left of the packages."
