# SPDX-License-Identifier: GPL-3.0-or-later
# Takes what CHANGELOG.md says of the newest version: RELEASE_VERSION, RELEASE_DATE (ISO), RELEASE_TEXT
# (as it stands there), RELEASE_ITEMS (a list).
file(READ ${CMAKE_CURRENT_LIST_DIR}/../CHANGELOG.md changelog)
if(NOT changelog MATCHES "\n## \\[([0-9.]+)\\] - ([0-9]+-[0-9]+-[0-9]+)\n")
    message(FATAL_ERROR "CHANGELOG.md has no line \"## [version] - date\" of a release")
endif()
set(RELEASE_VERSION ${CMAKE_MATCH_1})
set(RELEASE_DATE ${CMAKE_MATCH_2})

string(FIND "${changelog}" "${CMAKE_MATCH_0}" start)
string(LENGTH "${CMAKE_MATCH_0}" headingLength)
math(EXPR start "${start} + ${headingLength}")
string(SUBSTRING "${changelog}" ${start} -1 RELEASE_TEXT)
string(FIND "${RELEASE_TEXT}" "\n## [" older)
string(SUBSTRING "${RELEASE_TEXT}" 0 ${older} RELEASE_TEXT)
string(STRIP "${RELEASE_TEXT}" RELEASE_TEXT)

# A semicolon would divide an item, so it travels as another character.
string(ASCII 1 separator)
string(REPLACE ";" "${separator}" lines "${RELEASE_TEXT}")
string(REPLACE "\n" ";" lines "${lines}")
set(RELEASE_ITEMS "")
foreach(line IN LISTS lines)
    if(line MATCHES "^- (.+)")
        list(APPEND RELEASE_ITEMS "${CMAKE_MATCH_1}")
    elseif(line MATCHES "^  ([^ ].*)")
        list(POP_BACK RELEASE_ITEMS item)
        list(APPEND RELEASE_ITEMS "${item} ${CMAKE_MATCH_1}")
    endif()
endforeach()
