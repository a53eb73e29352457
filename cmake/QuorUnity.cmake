# Compiles the files of a folder together: nearly all the time of a compilation goes into reading the headers of the
# platform and of the C++ library, and so is spent once for each folder.
#
# quor_compile_folders(target) joins the target's C++ files by the folder they are in. With QUOR_UNITY=OFF each is compiled
# by itself, not optimised and with the headers of others precompiled: quicker where one file is changed over and over. A
# change that the compiler warns of is to be compiled there, too.
#
# quor_compile_batches(target) joins the files of a test program, a few at a time: what they have in common, the templates
# of the tests and of the containers, takes three quarters of their time.
option(QUOR_UNITY "Compile the files of a folder together" ON)
set(QUOR_UNITY_BATCH 8)

function(quor_compile_folders target)
    if(NOT QUOR_UNITY)
        target_compile_options(${target} PRIVATE -O0 -Wno-error)
        target_precompile_headers(${target} PRIVATE
            <algorithm> <map> <memory> <string> <utility> <vector> <windows.h> <windowsx.h> <commctrl.h> <oleauto.h> <tchar.h>)
        return()
    endif()
    get_target_property(_sources ${target} SOURCES)
    foreach(_source IN LISTS _sources)
        get_filename_component(_folder ${_source} DIRECTORY)
        get_filename_component(_folder ${_folder} NAME)
        set_property(SOURCE ${_source} PROPERTY UNITY_GROUP ${_folder})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()

function(quor_compile_batches target)
    set_target_properties(${target} PROPERTIES UNITY_BUILD ${QUOR_UNITY} UNITY_BUILD_BATCH_SIZE ${QUOR_UNITY_BATCH})
endfunction()
