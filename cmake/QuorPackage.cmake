# The installed package and its ZIP: DLLs, import libraries, public headers, the gallery, and what find_package needs.
#
#   cmake --install BUILD --prefix PREFIX      and in BUILD: cpack
if(QUOR_CHECKED)
    install(CODE "message(FATAL_ERROR \"The checked variant is for the library's own tests: install a plain build\")")
    return()
endif()
if(MINGW)
    set(QUOR_PACKAGE_COMPILER mingw-w64)
else()
    set(QUOR_PACKAGE_COMPILER MSVC)
endif()
set(_package_dir lib/cmake/QuorUiCtrl)
include(CMakePackageConfigHelpers)

# Libraries and their export.
set(_libraries QuorUiCtrl QuorUsage)
if(MINGW)
    list(APPEND _libraries QuorFx QuorFxMain)
endif()
install(TARGETS ${_libraries} EXPORT QuorUiCtrlTargets
    RUNTIME DESTINATION bin LIBRARY DESTINATION bin ARCHIVE DESTINATION lib)
install(EXPORT QuorUiCtrlTargets NAMESPACE QuorUiCtrl:: DESTINATION ${_package_dir})

# The run time, without its symbol tables, which are most of its size.
set(QUOR_RUNTIME_NAMES "")
foreach(_dll IN LISTS QUOR_RUNTIME_DLLS)
    cmake_path(GET _dll FILENAME _name)
    list(APPEND QUOR_RUNTIME_NAMES ${_name})
    set(_stripped ${PROJECT_BINARY_DIR}/runtime/${_name})
    if(${_dll} IS_NEWER_THAN ${_stripped})
        file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/runtime)
        execute_process(COMMAND ${CMAKE_STRIP} --strip-unneeded -o ${_stripped} ${_dll} COMMAND_ERROR_IS_FATAL ANY)
    endif()
    install(PROGRAMS ${_stripped} DESTINATION bin)
endforeach()
list(JOIN QUOR_RUNTIME_NAMES " " QUOR_RUNTIME_NAMES)

# Public headers are found when they are installed: see the script.
install(CODE "set(QUOR_SOURCE_DIR \"${PROJECT_SOURCE_DIR}\")")
install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/InstallHeaders.cmake)
if(MINGW)
    install(DIRECTORY framework/include/ DESTINATION include/QuorFx)
    install(FILES cmake/mingw-w64.cmake DESTINATION ${_package_dir})
endif()

# The package files.
configure_package_config_file(cmake/QuorUiCtrlConfig.cmake.in ${PROJECT_BINARY_DIR}/package/QuorUiCtrlConfig.cmake
    INSTALL_DESTINATION ${_package_dir} NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
# The config file itself refuses other architectures, in words.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/package/QuorUiCtrlConfigVersion.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES
    ${PROJECT_BINARY_DIR}/package/QuorUiCtrlConfig.cmake
    ${PROJECT_BINARY_DIR}/package/QuorUiCtrlConfigVersion.cmake
    cmake/QuorCopyRuntime.cmake
    DESTINATION ${_package_dir})
install(FILES LICENSE cmake/RUNTIME-LICENCES.txt DESTINATION share/licenses/QuorUiCtrl)

if(QUOR_BUILD_PROGRAMS)
    install(TARGETS gallery RUNTIME DESTINATION bin)
    install(DIRECTORY samples/gallery/data DESTINATION bin)
endif()

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_NAME QuorUiCtrl)
set(CPACK_PACKAGE_VENDOR "the QuorUiCtrl authors")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Grid, tree, property and list controls for MFC programs")
set(CPACK_PACKAGE_FILE_NAME QuorUiCtrl-${PROJECT_VERSION}-${QUOR_PACKAGE_COMPILER}-x86_64)
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_STRIP_FILES ON)
include(CPack)
