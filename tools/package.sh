#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes what people install, in build/release/package/: the Debian package, the portable archive and the
# release notes; and has them looked over by the validators of desktop entries, AppStream data and
# Debian packages.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/setup.sh

InstallPackages "${packages[@]}" dpkg-dev file lintian
rm -rf build/release/package
Build release quillon quillon_portable quillon_package_files
cpack --config build/release/CPackConfig.cmake >build/package.log 2>&1 || {
    tail -n 20 build/package.log >&2
    Fail "the Debian package could not be made"
}

version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' build/release/CMakeCache.txt)
out=$PWD/build/release/package
folder=lottery-quillon-world-$version
cmake -D PROGRAM="$PWD/build/release/portable/quillon" -D DATA="$PWD/data" -D LICENSE="$PWD/LICENSE" \
    -D QT_PLUGINS="$(qmake6 -query QT_INSTALL_PLUGINS)" -D FOLDER="$out/$folder" \
    -P packaging/portable.cmake || Fail "the portable folder could not be put together"
tar -C "$out" --sort=name --owner=0 --group=0 --numeric-owner -czf \
    "$out/$folder-portable-$(uname -m).tar.gz" "$folder" || Fail "the archive could not be made"
rm -r "${out:?}/$folder" "$out/_CPack_Packages"
cmake -D OUT="$out/release-notes.md" -P packaging/release_notes.cmake ||
    Fail "the release notes could not be taken from CHANGELOG.md"

package=$(echo "$out"/*.deb)
tests/packaging/contents.sh "$package" || Fail "the Debian package has not the files that it should have"
tests/packaging/contents.sh "$(echo "$out"/*.tar.gz)" ||
    Fail "the portable archive has not the files that it should have"
lintian --fail-on error,warning "$package" || Fail "lintian has found something in $package"
ls -lh "$out"
