#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# names.sh BUILD
#
# The desktop finds a window's icon and name, and a software centre its program, by names that stand in
# several files. Checks that all of them say the same.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.." || exit 1

differences=0

Same() {
    local what=$1 expected=$2 found=$3
    if [[ $expected == "$found" ]]; then return; fi
    printf '%s: expected "%s", found "%s"\n' "$what" "$expected" "$found" >&2
    differences=$((differences + 1))
}

Entry() { sed -n "s/^$1=//p" packaging/quillon.desktop; }

# The text of the first element of that name.
Element() { sed -nE "s|.*<$1[^>]*>([^<]*)</.*|\1|p" "$metainfo" | head -n 1; }

# The text in a call of the program.
Said() { sed -nE "s/^ *$1\(QStringLiteral\(\"([^\"]*)\"\)\);/\1/p" "$2" | head -n 1; }

metainfo=$1/packaging/example.lotteryquillon.quillon.metainfo.xml
program=$(Said setDesktopFileName shell/Application.cpp)
title=$(Said setWindowTitle shell/Quillon.cpp)
version=$(sed -nE 's/^project\(quillon VERSION ([0-9.]+).*/\1/p' CMakeLists.txt)
[[ -n $program && -n $title && -n $version ]] || Same 'the names in the sources' 'to be found' 'none'

Same 'the file of the desktop entry' "$program.desktop" "$(cd packaging && echo *.desktop)"
Same 'Name of the desktop entry' "$title" "$(Entry Name)"
Same 'Exec of the desktop entry' quillon "$(Entry Exec)"
Same 'Icon of the desktop entry' "$program" "$(Entry Icon)"
[[ -f shell/icons/$program.svg ]] || Same 'the picture of the program' "$program.svg" none
Same 'StartupWMClass of the desktop entry' \
    "$(Said setApplicationName shell/Application.cpp)" "$(Entry StartupWMClass)"
Same 'the name in software centres' "$title" "$(Element name)"
Same 'the summary in software centres' "$(Entry Comment)" "$(Element summary)"
Same 'the entry that software centres start' "$program.desktop" "$(Element launchable)"
Same 'the program in software centres' quillon "$(Element binary)"
Same 'the version in software centres' "$version" \
    "$(sed -nE 's/.*<release version="([^"]*)".*/\1/p' "$metainfo" | head -n 1)"
Same 'the manual page' quillon "$(sed -nE 's/^([a-z]+) .*/\1/p' packaging/quillon.1 | head -n 1)"
while IFS= read -r picture; do
    [[ -f docs/screenshots/$picture ]] ||
        Same 'a picture in software centres' 'one of docs/screenshots' "$picture"
done < <(sed -nE 's|.*<image[^>]*>.*/([^/<]+)</image>.*|\1|p' "$metainfo")
[[ $differences -eq 0 ]]
