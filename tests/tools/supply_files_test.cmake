# SPDX-License-Identifier: GPL-3.0-or-later
# FOLDER: where the test works. SCRIPT: what is tested.
cmake_minimum_required(VERSION 3.25)

function(Supply)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -D DATA=${FOLDER}/data -D PROGRAM=${FOLDER}/program -P ${SCRIPT}
        COMMAND_ERROR_IS_FATAL ANY)
endfunction()

function(Expect name expected what)
    set(found "no file")
    if(EXISTS ${FOLDER}/program/${name})
        file(READ ${FOLDER}/program/${name} found)
    endif()
    if(NOT found STREQUAL expected)
        message(SEND_ERROR "${what}: ${name} holds \"${found}\" instead of \"${expected}\"")
    endif()
endfunction()

file(REMOVE_RECURSE ${FOLDER})
file(WRITE "${FOLDER}/data/Lottery Info.txt" "first edition")
file(WRITE ${FOLDER}/data/dbasedemo1.txt "sample draws")
file(WRITE ${FOLDER}/data/help.html "first help")
file(WRITE ${FOLDER}/data/help/Quillon.png "first picture")
Supply()
Expect("Lottery Info.txt" "first edition" "a first call copies everything")
Expect(dbasedemo1.txt "sample draws" "a first call copies everything")
Expect(help/Quillon.png "first picture" "what lies in a folder is copied into that folder")

file(WRITE ${FOLDER}/program/dbasedemo1.txt "sample draws and mine")
file(WRITE ${FOLDER}/program/MyLottery.txt "my entries")
file(REMOVE ${FOLDER}/program/help.html)
file(REMOVE_RECURSE ${FOLDER}/program/help)
Supply()
Expect(dbasedemo1.txt "sample draws and mine" "what the user changed stays")
Expect(MyLottery.txt "my entries" "what the user made stays")
Expect(help.html "first help" "what is missing comes back")
Expect(help/Quillon.png "first picture" "what is missing comes back with its folder")

file(WRITE "${FOLDER}/data/Lottery Info.txt" "second edition")
file(WRITE ${FOLDER}/data/dbasedemo1.txt "new sample draws")
file(WRITE ${FOLDER}/data/help/Quillon.png "second picture")
Supply()
Expect("Lottery Info.txt" "second edition" "what nobody changed is brought up to date")
Expect(dbasedemo1.txt "sample draws and mine" "what the user changed stays when the supply changes")
Expect(help/Quillon.png "second picture" "what nobody changed in a folder is brought up to date")
Supply()
Expect(dbasedemo1.txt "sample draws and mine" "what the user changed stays at every call")
