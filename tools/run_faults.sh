#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Runs every save of the program under every fault of every call that it makes to the system, and
# prints a line for each save and the sum. Takes some twenty minutes; `tools/run_faults.sh --step 5`
# tries each fifth fault, `--gtest_filter=*StoreEntries*` one of the saves.
set -uo pipefail
cd "$(dirname "$(readlink -f "$0")")/.." || exit 1
. tools/setup.sh

InstallPackages "${packages[@]}"
Build dev faults_test
home=$(mktemp -d) || exit 1
trap 'rm -rf "$home"' EXIT
chmod 700 "$home"
log=build/faults.log
QT_QPA_PLATFORM="offscreen:configfile=$PWD/tests/support/laptop_screen.json" \
    HOME=$home XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data XDG_CACHE_HOME=$home/cache \
    XDG_RUNTIME_DIR=$home TZ=Pacific/Chatham \
    build/dev/tests/faults/faults_test --all "$@" 2>&1 |
    tee "$log" | grep -vE '^\[ |^\[-|This plugin does not support'
exit "${PIPESTATUS[0]}"
