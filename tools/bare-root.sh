#!/bin/bash
# bare-root.sh RELEASE [FOLDER [COMMAND...]]: makes a bare system of a Debian release, bookworm or
# trixie, in the folder (by default below build/), copies what is committed into it, and what
# packages build/package holds, and runs the commands there, by default ./play and ./check, as a
# newcomer would on a fresh machine. A compiler's warning fails, too, be it in a log or not. Run it
# as root; it needs debootstrap. A folder that holds such a system already is used again with all
# that was installed in it.
set -euo pipefail
cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."

release=${1:?"say which release: bookworm or trixie"}
root=$(readlink -m -- "${2:-build/bare-$release}")
commands=("${@:3}")
[ ${#commands[@]} -gt 0 ] || commands=(./play ./check)
# The mirror that this machine uses itself.
mirror=$(grep -rhoE 'https?://[^ ]+/debian/?( |$)' /etc/apt/sources.list* | head -n 1 || true)
mirror=${mirror:-http://deb.debian.org/debian}

[ "$(id -u)" -eq 0 ] || { echo "Only root can make a system of its own." >&2; exit 1; }
command -v debootstrap >/dev/null || { echo "Please install debootstrap." >&2; exit 1; }

if [ ! -x "$root/usr/bin/apt-get" ]; then
    mkdir -p "$root"
    debootstrap --variant=minbase "$release" "$root" "${mirror%% }"
fi

# What a machine has and a bare folder lacks: the network's names, and the kernel's file systems.
cp -L /etc/resolv.conf "$root/etc/resolv.conf"
cp -rL /etc/apt/apt.conf.d/. "$root/etc/apt/apt.conf.d/"
for system in proc dev dev/pts dev/shm; do
    mountpoint -q "$root/$system" || mount --bind "/$system" "$root/$system"
done
trap 'for system in dev/shm dev/pts dev proc; do umount "$root/$system" || true; done' EXIT

rm -rf "$root/quillet"
git clone --quiet --no-hardlinks . "$root/quillet"
if compgen -G 'build/package/*.deb' >/dev/null; then
    mkdir -p "$root/quillet/build/package"
    cp build/package/*.deb "$root/quillet/build/package"
fi
for command in "${commands[@]}"; do
    echo "== $release: $command"
    time chroot "$root" env -i HOME=/root LANG=C.UTF-8 PATH=/usr/sbin:/usr/bin:/sbin:/bin \
        bash -c "cd /quillet && $command" 2>&1 | tee -a "$root/quillet/output.log"
done
shopt -s nullglob
if grep -nE ':[0-9]+: warning: |^CMake .*Warning' "$root"/quillet/{,build/}*.log; then
    echo "$release: a newcomer would see these warnings." >&2
    exit 1
fi
echo "$release: all passed."
