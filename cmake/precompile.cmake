# SPDX-License-Identifier: GPL-3.0-or-later
# Headers that many files include and that take long to read are compiled once. Every file includes
# what it needs all the same, so that it compiles with QUILLON_PRECOMPILE=OFF too;
# tools/check_sources.sh looks after that.
option(QUILLON_PRECOMPILE "Compile the headers that many files include once" ON)
file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/generated/empty.cpp CONTENT "")

# Compiles headers, with what the LIBRARIES ask for, under a name.
function(quillon_precompile name)
    cmake_parse_arguments(PRECOMPILE "" "" "HEADERS;LIBRARIES" ${ARGN})
    if(QUILLON_PRECOMPILE)
        add_library(quillon_headers_${name} OBJECT ${PROJECT_BINARY_DIR}/generated/empty.cpp)
        target_link_libraries(quillon_headers_${name} PRIVATE ${PRECOMPILE_LIBRARIES})
        target_precompile_headers(quillon_headers_${name} PRIVATE ${PRECOMPILE_HEADERS})
    endif()
endfunction()

# Lets a target use the headers compiled under a name.
function(quillon_use_precompiled target name)
    if(QUILLON_PRECOMPILE)
        target_precompile_headers(${target} REUSE_FROM quillon_headers_${name})
    endif()
endfunction()
