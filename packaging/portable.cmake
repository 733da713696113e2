# SPDX-License-Identifier: GPL-3.0-or-later
# Puts the portable folder together in FOLDER: the PROGRAM with the files of DATA beside it, and in lib
# its libraries, Qt's plugins and the LICENSE. Libraries that belong to the system or to its graphics
# stay the system's.
cmake_minimum_required(VERSION 3.25)

set(system
    "^(ld-linux.*|lib(c|m|dl|pthread|rt|resolv|util|gcc_s|stdc\\+\\+)\\.so.*)$"
    "^lib(GL|EGL|GLX|GLdispatch|OpenGL|drm|gbm|X11|X11-xcb|xcb|fontconfig|freetype|expat|z|uuid)\\.so.*$")
set(pluginFolder ${QT_PLUGINS})
set(plugins platforms/libqxcb platforms/libqoffscreen platforms/libqminimal platforms/libqvnc
    imageformats/libqjpeg imageformats/libqsvg iconengines/libqsvgicon
    platforminputcontexts/libcomposeplatforminputcontextplugin
    platforminputcontexts/libibusplatforminputcontextplugin
    printsupport/libcupsprintersupport
    xcbglintegrations/libqxcb-egl-integration xcbglintegrations/libqxcb-glx-integration)

file(REMOVE_RECURSE ${FOLDER})
file(COPY ${PROGRAM} DESTINATION ${FOLDER})
file(COPY ${DATA}/ DESTINATION ${FOLDER})
file(COPY ${LICENSE} DESTINATION ${FOLDER}/lib)
set(libraries "")
foreach(plugin IN LISTS plugins)
    get_filename_component(kind ${plugin} DIRECTORY)
    file(COPY ${pluginFolder}/${plugin}.so DESTINATION ${FOLDER}/lib/plugins/${kind})
    list(APPEND libraries ${pluginFolder}/${plugin}.so)
endforeach()

file(GET_RUNTIME_DEPENDENCIES EXECUTABLES ${PROGRAM} LIBRARIES ${libraries}
    RESOLVED_DEPENDENCIES_VAR needed UNRESOLVED_DEPENDENCIES_VAR missing
    PRE_EXCLUDE_REGEXES ${system})
if(missing)
    message(FATAL_ERROR "these libraries were not found: ${missing}")
endif()
foreach(library IN LISTS needed)
    file(COPY ${library} DESTINATION ${FOLDER}/lib FOLLOW_SYMLINK_CHAIN)
endforeach()
execute_process(COMMAND strip ${FOLDER}/quillon COMMAND_ERROR_IS_FATAL ANY)
