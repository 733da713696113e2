# SPDX-License-Identifier: GPL-3.0-or-later
# Writes what CHANGELOG.md says of the newest version to the file OUT.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/release.cmake)
file(WRITE ${OUT} "# Lottery Quillon World ${RELEASE_VERSION}\n\n${RELEASE_TEXT}\n")
