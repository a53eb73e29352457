# Puts the DLLs that a host's program loads beside it. Part of the installed package.

# quor_copy_runtime(program)
#
# After each linking of `program`, copies the DLLs of the library and of the compiler's run time into its folder. It must
# be called in the folder that defines the program.
function(quor_copy_runtime program)
    get_target_property(done ${program} QUOR_RUNTIME_COPIED)
    if(done)
        return()
    endif()
    set_target_properties(${program} PROPERTIES QUOR_RUNTIME_COPIED TRUE)
    get_property(runtime GLOBAL PROPERTY QUOR_RUNTIME_DLLS)
    add_custom_command(TARGET ${program} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E copy_if_different
            $<TARGET_RUNTIME_DLLS:${program}> ${runtime} $<TARGET_FILE_DIR:${program}>
        COMMENT "Copying the DLLs of QuorUiCtrl beside ${program}"
        COMMAND_EXPAND_LISTS VERBATIM)
endfunction()

# Does so for every program of the current folder that links the library itself. Runs when the folder has been read.
function(_quor_copy_runtime_here)
    get_property(targets DIRECTORY PROPERTY BUILDSYSTEM_TARGETS)
    foreach(target IN LISTS targets)
        get_target_property(type ${target} TYPE)
        get_target_property(libraries ${target} LINK_LIBRARIES)
        if(type STREQUAL EXECUTABLE AND "QuorUiCtrl::QuorUiCtrl" IN_LIST libraries)
            quor_copy_runtime(${target})
        endif()
    endforeach()
endfunction()
