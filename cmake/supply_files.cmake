# SPDX-License-Identifier: GPL-3.0-or-later
# Copies the supplied files, folder DATA and the folders in it, to the program's folder, PROGRAM.
#
# What is missing there is copied. A supplied file that nobody has changed since it was copied is
# brought up to date; one that was changed belongs to the user and stays, and so does every other
# file. RECORD, beside the program's folder, remembers what each file was when it was copied.
cmake_minimum_required(VERSION 3.25)

set(RECORD ${PROGRAM}/../supplied-files)
file(MAKE_DIRECTORY ${PROGRAM})
set(recorded "")
if(EXISTS ${RECORD})
    file(STRINGS ${RECORD} recorded)
endif()

set(record "")
file(GLOB_RECURSE names LIST_DIRECTORIES false RELATIVE ${DATA} ${DATA}/*)
foreach(name IN LISTS names)
    file(SHA256 ${DATA}/${name} supplied)
    set(entry "${supplied} ${name}")
    if(EXISTS ${PROGRAM}/${name})
        file(SHA256 ${PROGRAM}/${name} present)
        if(NOT present STREQUAL supplied AND NOT "${present} ${name}" IN_LIST recorded)
            string(APPEND record "${entry}\n")
            continue()
        endif()
    endif()
    cmake_path(GET name PARENT_PATH within)
    file(MAKE_DIRECTORY ${PROGRAM}/${within})
    file(COPY_FILE ${DATA}/${name} ${PROGRAM}/${name} ONLY_IF_DIFFERENT)
    string(APPEND record "${entry}\n")
endforeach()

set(previous "")
if(EXISTS ${RECORD})
    file(READ ${RECORD} previous)
endif()
if(NOT previous STREQUAL record)
    file(WRITE ${RECORD} "${record}")
endif()
