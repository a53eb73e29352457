# Install script: copies the public headers. Public is a header that exports a class or that a public header includes.
#
# So there is no list to keep, and a header that is moved or split stays installed as long as it is needed. Needs
# QUOR_SOURCE_DIR, and CMAKE_INSTALL_PREFIX, which the install run sets.
cmake_minimum_required(VERSION 3.25)
set(families grid treedrag undo propgrid controls)

# Headers that no class needs but hosts use: identifiers of the resources and of the cell editors, the texts.
set(pending module/resource.h module/QuorTexts.h grid/TGCellCtrlIds.h)
foreach(family IN LISTS families)
    file(GLOB_RECURSE headers RELATIVE ${QUOR_SOURCE_DIR} ${QUOR_SOURCE_DIR}/${family}/*.h)
    foreach(header IN LISTS headers)
        file(STRINGS ${QUOR_SOURCE_DIR}/${header} exports REGEX "^(class|struct) QUOR_EXT_CLASS ")
        if(exports)
            list(APPEND pending ${header})
        endif()
    endforeach()
endforeach()

set(public "")
while(pending)
    list(POP_FRONT pending header)
    if(header IN_LIST public)
        continue()
    endif()
    if(NOT EXISTS ${QUOR_SOURCE_DIR}/${header})
        message(FATAL_ERROR "A public header includes \"${header}\", which is no path from the root of the sources")
    endif()
    list(APPEND public ${header})
    file(STRINGS ${QUOR_SOURCE_DIR}/${header} includes REGEX "^#include \"")
    list(TRANSFORM includes REPLACE "^#include \"([^\"]+)\".*" "\\1")
    list(APPEND pending ${includes})
endwhile()

foreach(header IN LISTS public)
    cmake_path(GET header PARENT_PATH folder)
    file(INSTALL DESTINATION ${CMAKE_INSTALL_PREFIX}/include/QuorUiCtrl/${folder} TYPE FILE
        FILES ${QUOR_SOURCE_DIR}/${header})
endforeach()
