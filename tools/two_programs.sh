#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts two programs on one folder at the same moment, again and again, each to store an entry, and
# looks whether all that they say is saved is there. Builds what it needs.
#
#   tools/two_programs.sh [rounds]    50 where no number is given
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset dev >/dev/null
ninja -C build/dev two_programs_test
QUILLON_ROUNDS=${1:-50} ctest --preset dev -R '^two_programs_test$' --timeout 1200
