# The DLLs of the mingw-w64 run time that our binaries load, copied beside our programs.
#
# QUOR_RUNTIME_DLLS lists their paths, for whoever copies or packages programs.
set(_quor_runtime_names libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
if(QUOR_CHECKED)
    list(APPEND _quor_runtime_names libssp-0.dll)
endif()

set(QUOR_RUNTIME_DLLS "")
foreach(_name IN LISTS _quor_runtime_names)
    execute_process(
        COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${_name}
        OUTPUT_VARIABLE _path OUTPUT_STRIP_TRAILING_WHITESPACE)
    if(NOT IS_ABSOLUTE "${_path}")
        message(FATAL_ERROR "The compiler does not know where ${_name} is")
    endif()
    list(APPEND QUOR_RUNTIME_DLLS ${_path})
    # In a host quor_copy_runtime does it.
    if(PROJECT_IS_TOP_LEVEL)
        configure_file(${_path} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${_name} COPYONLY)
    endif()
endforeach()
