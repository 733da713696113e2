# SPDX-License-Identifier: GPL-3.0-or-later
# What every target of the project is compiled with.
add_library(quillon_strict INTERFACE)
target_compile_options(quillon_strict INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # g++ 12 sees overlaps that are none where a string is assigned a literal.
    target_compile_options(quillon_strict INTERFACE -Wno-restrict)
endif()
target_include_directories(quillon_strict INTERFACE ${PROJECT_SOURCE_DIR})
# Every change links a dozen tests, which gold does in a third of the usual linker's time.
include(CheckLinkerFlag)
check_linker_flag(CXX -fuse-ld=gold QUILLON_HAS_GOLD)
if(QUILLON_HAS_GOLD)
    target_link_options(quillon_strict INTERFACE $<$<CONFIG:Debug>:-fuse-ld=gold>)
endif()
if(QUILLON_SANITIZE)
    target_compile_options(quillon_strict INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillon_strict INTERFACE -fsanitize=address,undefined)
    target_compile_definitions(quillon_strict INTERFACE QUILLON_SANITIZE)
endif()

add_library(quillon_strict_qt INTERFACE)
target_link_libraries(quillon_strict_qt INTERFACE quillon_strict)
target_compile_definitions(quillon_strict_qt INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS QT_NO_FOREACH QT_USE_QSTRINGBUILDER
    QT_NO_CONTEXTLESS_CONNECT)

# Logic of one folder: plain C++, no Qt.
function(quillon_logic name)
    add_library(quillon_${name} STATIC ${ARGN})
    add_library(quillon::${name} ALIAS quillon_${name})
    target_link_libraries(quillon_${name} PRIVATE quillon_strict)
    target_compile_options(quillon_${name} PRIVATE $<$<CONFIG:Debug>:-O1>)
    target_include_directories(quillon_${name} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()

quillon_precompile(forms
    HEADERS <QComboBox> <QDateEdit> <QDialog> <QLabel> <QLineEdit> <QListWidget> <QPushButton>
            <QTableView>
    LIBRARIES Qt6::Widgets quillon_strict_qt)

# Forms of one folder, or another library that speaks to the desktop.
function(quillon_forms name)
    add_library(quillon_${name} STATIC ${ARGN})
    add_library(quillon::${name} ALIAS quillon_${name})
    set_target_properties(quillon_${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    quillon_use_precompiled(quillon_${name} forms)
    target_link_libraries(quillon_${name} PUBLIC Qt6::Widgets PRIVATE quillon_strict_qt)
    target_include_directories(quillon_${name} PUBLIC ${PROJECT_SOURCE_DIR})
endfunction()
