#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Installs the Debian package as a stranger would, on a bare Debian made for it, starts the program as
# an ordinary user, makes entries, upgrades to a higher version and starts again: entries, settings and
# notes must be there. Then tries the portable archive, and removes the package, which must leave the
# user's files alone. `tools/package.sh` has to have been run.
#
# Needs root, debootstrap and the network; where it lacks them it says so and ends with 77.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.." || exit 1

Skip() { printf 'skipped: %s\n' "$*"; exit 77; }
Fail() { printf 'FAILED: %s\n' "$*" >&2; exit 1; }

[[ $(id -u) -eq 0 ]] || Skip "only root can make a bare Debian"
command -v debootstrap >/dev/null || Skip "debootstrap is not installed"
out=$PWD/build/release/package
deb=$(echo "$out"/lottery-quillon-world_*.deb)
log=$out/bare-root.log
archive=$(echo "$out"/*-portable-*.tar.gz)
[[ -f $deb && -f $archive ]] || Fail "tools/package.sh has not been run"

scratch=$(mktemp -d)
root=$scratch/root
CleanUp() {
    umount "$root/proc" 2>/dev/null
    rm -rf "$scratch"
}
trap CleanUp EXIT

InRoot() { chroot "$root" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 "$@"; }

Install() {
    InRoot env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "$@" \
        >>"$log" 2>&1 || Fail "$* could not be installed; see $log"
}

# Starts a program as an ordinary user on a screen of its own, makes entries with the keyboard where
# asked to, and quits by the menu; it has to come up and to end with 0 by itself.
Play() {
    InRoot su player -s /bin/bash -c "cd; timeout 60 xvfb-run -s '-screen 0 1366x768x24' \
        bash /tmp/play.sh $*" >>"$log" 2>&1 || Fail "\"$*\" was not played to its end; see $log"
}

printf 'Making a bare Debian\n'
debootstrap --variant=minbase bookworm "$root" >"$log" 2>&1 ||
    Skip "a bare Debian could not be made: $(tail -n 1 "$log")"
mount -t proc proc "$root/proc" || Skip "this computer allows no mounts"
cp -r /etc/apt/sources.list* "$root/etc/apt/" 2>/dev/null
cp /etc/resolv.conf "$root/etc/"
InRoot useradd -m player
InRoot apt-get update -q >>"$log" 2>&1 || Fail "there are no package lists; see $log"
Install xvfb xauth xdotool
cat >"$root/tmp/play.sh" <<'END'
# play.sh PROGRAM [save]
program=$1
# Waits for a window by its title and gives it the keyboard, as there is no window manager.
Focus() {
    local window
    for ((i = 0; i < 100; i++)); do
        window=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1)
        if [[ -n $window ]]; then
            xdotool windowfocus --sync "$window" && sleep 0.3
            return
        fi
        sleep 0.1
    done
    echo "no window \"$1\" came up"
    exit 1
}
"$program" &
Focus '^Lottery Quillon World$'
if [[ ${2:-} == save ]]; then
    xdotool key alt+p Down Down Down Down Return
    Focus '^Lucky Dip$'
    xdotool key ctrl+s
    Focus '^Save lottery entries$'
    xdotool key Return
    sleep 0.5
    Focus '^Lucky Dip$'
    xdotool key Escape
    sleep 0.5
    Focus '^Lottery Quillon World$'
fi
xdotool key alt+f Up Return
wait $!
END

printf 'The package\n'
cp "$deb" "$root/tmp/first.deb"
Install /tmp/first.deb
files=$root/home/player/.local/share/quillon
Play quillon
while IFS= read -r supplied; do
    cmp -s "$root/usr/share/quillon/$supplied" "$files/$supplied" ||
        Fail "$supplied was not supplied to the user"
done < <(cd "$root/usr/share/quillon" && find . -type f)
printf ' ,,,,,,,,\r\na note of mine\r\n' >>"$files/Notes.txt"
Play quillon save
[[ $(wc -l <"$files/MyLottery.txt") -eq 5 ]] || Fail "the five lines of a lucky dip were not saved"
Sums() { (cd "$files" && sha256sum MyLottery.txt Notes.txt quillon.ini dbase*.txt); }
before=$(Sums)

printf 'An upgrade\n'
dpkg-deb -R "$deb" "$scratch/next" && sed -i 's/^Version: .*/&.1/' "$scratch/next/DEBIAN/control" &&
    dpkg-deb --root-owner-group -b "$scratch/next" "$root/tmp/next.deb" >/dev/null || Fail "no next version"
Install /tmp/next.deb
Play quillon
[[ $before == "$(Sums)" ]] || Fail "the upgrade changed files of the user"

InRoot env DEBIAN_FRONTEND=noninteractive apt-get purge -y -q --autoremove lottery-quillon-world \
    >>"$log" 2>&1 || Fail "the removal fails; see $log"
[[ ! -e $root/usr/bin/quillon && ! -e $root/usr/share/quillon && $before == "$(Sums)" ]] ||
    Fail "the removal left or took too much"

printf 'The portable archive, without the packages that the other needed\n'
Install libegl1 libopengl0 libfontconfig1 fonts-dejavu-core  # as every desktop has them
tar -C "$root/home/player" -xzf "$archive"
portable=$(basename "$archive" | sed 's/-portable-.*//')
InRoot chown -R player: "/home/player/$portable"
Play "./$portable/quillon" save
[[ $(wc -l <"$root/home/player/$portable/MyLottery.txt") -eq 5 && $before == "$(Sums)" ]] ||
    Fail "the portable program does not keep its files beside it"
printf 'The package and the portable archive work on a bare Debian.\n'
