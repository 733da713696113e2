# SPDX-License-Identifier: GPL-3.0-or-later
# The program's folder: the executable with the files of data/ beside it, ready to start.
set(QUILLON_PROGRAM_FOLDER ${PROJECT_BINARY_DIR}/program)

# Fills the folder; safe to repeat, as what the user has changed there stays.
add_custom_target(quillon_program
    COMMAND ${CMAKE_COMMAND} -D DATA=${PROJECT_SOURCE_DIR}/data -D PROGRAM=${QUILLON_PROGRAM_FOLDER}
            -P ${PROJECT_SOURCE_DIR}/cmake/supply_files.cmake
    DEPENDS quillon
    COMMENT "Preparing the program's folder"
    VERBATIM)

# Installed for all users, the files lie in share/quillon, and each user gets copies.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/data/ DESTINATION share/quillon)
cmake_language(DEFER CALL install TARGETS quillon RUNTIME DESTINATION bin)
