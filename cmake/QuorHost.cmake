# What a host gets that has this project as a subproject: the same as from the installed package.
include(QuorCopyRuntime)
set_property(GLOBAL PROPERTY QUOR_RUNTIME_DLLS "${QUOR_RUNTIME_DLLS}")

# find_package(QuorUiCtrl), in the host or in a sample, means the targets that exist already.
file(WRITE ${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/quoruictrl-config.cmake "")
include(CMakePackageConfigHelpers)
write_basic_package_version_file(${CMAKE_FIND_PACKAGE_REDIRECTS_DIR}/quoruictrl-config-version.cmake
    VERSION ${PROJECT_VERSION} COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)

if(NOT PROJECT_IS_TOP_LEVEL)
    get_property(_host DIRECTORY PROPERTY PARENT_DIRECTORY)
    cmake_language(DEFER DIRECTORY ${_host} CALL _quor_copy_runtime_here)
    if(MSVC)
        set(CMAKE_MFC_FLAG 2 PARENT_SCOPE)
    endif()
endif()
