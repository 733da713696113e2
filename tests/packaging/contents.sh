#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# contents.sh BUILD | PACKAGE.deb | ARCHIVE.tar.gz
#
# Compares, file by file, what is installed from a build, or what lies in a Debian package or a portable
# archive, with what people are promised.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.." || exit 1

package=lottery-quillon-world

# The files that the program supplies to its users, below a folder.
Supplied() { (cd data && find . -type f | sed "s|^\./|$1|"); }

Installed() {
    printf '%s\n' bin/quillon share/applications/quillon.desktop \
        "share/doc/$package/copyright" share/icons/hicolor/scalable/apps/quillon.svg \
        share/metainfo/example.lotteryquillon.quillon.metainfo.xml
    Supplied share/quillon/
}

# What is made for a package alone.
MadeForPackages() {
    local size
    for size in 16 22 24 32 48 64 128 256 512; do
        printf 'share/icons/hicolor/%sx%s/apps/quillon.png\n' "$size" "$size"
    done
    printf '%s\n' "share/doc/$package/changelog.gz" share/man/man1/quillon.1.gz
}

# The libraries differ from computer to computer; without these plugins no window would open.
Portable() {
    printf '%s\n' quillon lib/LICENSE lib/plugins/platforms/lib{qxcb,qoffscreen,qvnc}.so \
        lib/plugins/imageformats/lib{qjpeg,qsvg}.so
    Supplied ''
}

# Compares two lists of names.
Compare() {
    local difference
    difference=$(diff <(sort "$1") <(sort "$2")) && return 0
    printf 'Missing (<) or not expected (>):\n%s\n' "$(grep '^[<>]' <<<"$difference")" >&2
    exit 1
}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
case $1 in
    *.deb)
        { Installed && MadeForPackages; } >"$scratch/expected"
        dpkg-deb --fsys-tarfile "$1" | tar -t | grep -v '/$' | sed 's|^\./usr/||' >"$scratch/found"
        ;;
    *.tar.gz)
        Portable >"$scratch/expected"
        tar -tzf "$1" | grep -v '/$' | sed 's|^[^/]*/||' |
            grep -vE '^lib/([^/]*\.so[^/]*|plugins/.*)$' >"$scratch/found"
        tar -tzf "$1" | sed 's|^[^/]*/||' | grep -xFf "$scratch/expected" |
            grep '^lib/plugins/' >>"$scratch/found"
        ;;
    *)
        Installed >"$scratch/expected"
        MadeForPackages >"$scratch/made"
        cmake --install "$1" --prefix "$scratch/root" >/dev/null || exit 1
        (cd "$scratch/root" && find . -type f | sed 's|^\./||') |
            grep -vxFf "$scratch/made" >"$scratch/found"
        diff -r data "$scratch/root/share/quillon" || exit 1
        ;;
esac
Compare "$scratch/expected" "$scratch/found"
