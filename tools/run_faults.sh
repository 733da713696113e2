#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs every save of the program under every fault of every call that it makes to the system, then
# every file that is read in every damage, and prints a line for each and the sums. Takes some forty
# minutes; `tools/run_faults.sh --step 5` tries each fifth fault, `--call write` those at the calls of
# that name, `--gtest_filter=*StoreEntries*` one of the saves.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/setup.sh

InstallPackages "${packages[@]}"
Build dev faults_test bad_input_test
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
export QT_QPA_PLATFORM="offscreen:configfile=$PWD/tests/support/laptop_screen.json" TZ=Pacific/Chatham
export HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_CACHE_HOME=$home/cache
export XDG_RUNTIME_DIR=$home

status=0
for program in faults_test bad_input_test; do
    "build/dev/tests/faults/$program" --all "$@" 2>&1 | tee "build/$program.log" |
        grep -vE '^\[ |^\[-|This plugin does not support'
    if [[ ${PIPESTATUS[0]} -ne 0 ]]; then status=1; fi
done
exit "$status"
