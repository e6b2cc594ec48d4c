#!/bin/bash
# install-missing.sh PART...: installs those packages that this machine lacks of the named parts of
# debian-packages.txt. A machine that has them all is left alone and needs no network.
set -euo pipefail

cd -- "$(dirname -- "$(readlink -f -- "$0")")/.."
. tools/steps.sh
# The lines of the named parts, with what is said of them.
lines() {
    for part in "$@"; do
        sed -n -e "/^\\[$part\\]/,/^\\[/{/^\\[$part\\]/p; /^\\[/d; /^\$/d; p}" debian-packages.txt
    done
}
wanted() {
    lines "$@" | sed -e '/^\[/d' -e 's/ *#.*//'
}

if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    echo "This system has no apt-get, so please see to these yourself. Debian calls them:" >&2
    lines "$@" | sed -e 's/^\[.*\] # \(.*\)/\1:/' -e t -e 's/^/    /' -e 's/ # /: /' >&2
    exit 0
fi

# dpkg-query complains about names that it has never heard of; those are missing like the others.
installed=$(dpkg-query --show --showformat='${Package} ${db:Status-Status}\n' 2>/dev/null |
    sed -n 's/ installed$//p')
missing=()
while read -r package; do
    grep -qxF -- "$package" <<<"$installed" || missing+=("$package")
done < <(wanted "$@")
[ ${#missing[@]} -eq 0 ] && exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
        echo "These packages are missing: ${missing[*]}" >&2
        echo "Please install them as root, or install sudo." >&2
        exit 1
    fi
    as_root=(sudo)
fi

echo "These packages are missing: ${missing[*]}"
[ -n "${quillet_log:-}" ] || start_log packages
as_root+=(env DEBIAN_FRONTEND=noninteractive)
step "Reading the lists of packages" "${as_root[@]}" apt-get -qq update
step "Installing ${#missing[@]} packages, and what they need" \
    "${as_root[@]}" apt-get -qq -y --no-install-recommends install "${missing[@]}"
