# Tool chain file: cross-builds Windows x64 binaries with mingw-w64 (POSIX threads) and runs them under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_quor_triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_quor_triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_quor_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${_quor_triple}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${_quor_triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

if(EXISTS ${CMAKE_CURRENT_LIST_DIR}/../tools/run-under-wine.sh)
    # Test programs run through this wrapper: it gives the build tree its own Wine prefix and a display.
    set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../tools/run-under-wine.sh")
else()
    # Installed: find_package finds the package that this file belongs to.
    get_filename_component(_quor_prefix "${CMAKE_CURRENT_LIST_DIR}/../../.." ABSOLUTE)
    list(APPEND CMAKE_PREFIX_PATH "${_quor_prefix}")
endif()
