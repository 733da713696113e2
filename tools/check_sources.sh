#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Checks rules of the code that no compiler knows; prints each breach and fails where there is one.
set -uo pipefail
shopt -s lastpipe
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1

breaches=0

# Prints a rule and the lines that break it, if any came in.
Report() {
    local lines
    lines=$(cat)
    if [[ -z $lines ]]; then return; fi
    printf '%s:\n%s\n' "$1" "$lines"
    breaches=$((breaches + 1))
}

Files() { git ls-files --cached --others --exclude-standard -- "$@"; }

mapfile -t sources < <(Files '*.cpp' '*.h')
mapfile -t product < <(printf '%s\n' "${sources[@]}" | grep -vE '^(tests|bench|fuzz|tools)/')
mapfile -t logic < <(printf '%s\n' "${product[@]}" | grep -E '(^|/)[a-z0-9_]+\.(cpp|h)$' |
    grep -vE '^shell/(main\.cpp|form_catalogue\.)')
mapfile -t marked < <(Files '*.cpp' '*.h' '*.cmake' '*CMakeLists.txt' '*.sh' run test .ci/run)

# The outside world comes in through platform/system/ and the services built at start.
mapfile -t inside < <(printf '%s\n' "${product[@]}" | grep -vE '^platform/system/')
calls='QMessageBox::|QDate::currentDate|QDateTime::current|QTime::currentTime|QRandomGenerator'
calls+='|QDesktopServices|QFileDialog::|std::random_device|system_clock::now|time\(nullptr\)'
grep -nE "$calls" "${inside[@]}" /dev/null |
    Report 'Only platform/system/ may speak to the outside world'

grep -nE '#include <Q' "${logic[@]}" /dev/null | Report 'Logic includes no Qt header'

grep -LF 'SPDX-License-Identifier: GPL-3.0-or-later' "${marked[@]}" |
    Report 'A source file names its licence'

grep -nE '\b(TODO|FIXME|XXX)\b' "${sources[@]}" /dev/null | Report 'What is not done is no comment'

printf '%s\n' "${product[@]}" | grep '\.cpp$' | xargs wc -l |
    awk '$2 != "total" && $1 > 300' | Report 'A file has at most 300 lines'

# Prints the files that name a class of the precompiled headers and neither include it nor anything
# of ours that does.
UsedWithoutInclude() {
    sed -n '/HEADERS/,/LIBRARIES/p' cmake/strict.cmake tests/CMakeLists.txt | grep -oE '\bQ\w+' |
        awk '
            function Reaches(file, class, seen,    i) {
                if ((file, class) in included) return 1
                seen[file] = 1
                for (i = 1; i <= count[file]; i++) {
                    if (!(ours[file, i] in seen) && Reaches(ours[file, i], class, seen)) return 1
                }
                return 0
            }
            FILENAME == "-" { precompiled[$1]; next }
            { sub(/\/\/.*/, "") }
            /^#include </ { gsub(/[<>]/, ""); included[FILENAME, $2]; next }
            /^#include "/ { gsub(/"/, ""); ours[FILENAME, ++count[FILENAME]] = $2; next }
            {
                words = split($0, word, /[^A-Za-z0-9_]+/)
                for (i = 1; i <= words; i++) if (word[i] in precompiled) named[FILENAME, word[i]]
            }
            END {
                for (use in named) {
                    split(use, part, SUBSEP)
                    split("", seen)
                    if (part[1] ~ /\.cpp$/ && !Reaches(part[1], part[2], seen)) print part[1] ": " part[2]
                }
            }
        ' - "${sources[@]}"
}
UsedWithoutInclude | Report 'A file includes what it names, precompiled or not'

[[ $breaches -eq 0 ]]
