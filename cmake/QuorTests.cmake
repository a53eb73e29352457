# Declares test programs: one executable and one ctest entry per folder of tests, run under Wine.
#
# Test names start with the variant (plain or checked), so that one ctest run can cover both build trees.
if(QUOR_CHECKED)
    set(QUOR_TEST_VARIANT checked)
else()
    set(QUOR_TEST_VARIANT plain)
endif()

# Compiling the tests takes longer than running them: what they test is optimised, they are not.
set(QUOR_TEST_OPTIMISATION -O0)

# GoogleTest comes as sources with the system and is built like the project, because the checked variant changes the
# layout of the standard containers. Its own warnings are not ours to fix.
set(QUOR_GOOGLETEST_DIR /usr/src/googletest CACHE PATH "Where the sources of GoogleTest are")

function(_quor_build_googletest)
    set(BUILD_GMOCK OFF)
    set(INSTALL_GTEST OFF)
    set(CMAKE_WARN_DEPRECATED OFF)
    add_subdirectory(${QUOR_GOOGLETEST_DIR} ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL SYSTEM)
    if(QUOR_CHECKED)
        target_compile_definitions(gtest PUBLIC _GLIBCXX_DEBUG)
    endif()
endfunction()

function(_quor_compile_as_test target)
    target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
    target_compile_options(${target} PRIVATE ${QUOR_TEST_OPTIMISATION})
    target_precompile_headers(${target} REUSE_FROM QuorTestHeaders)
endfunction()

# quor_add_test(name [CONSOLE] [APART] [COST seconds] [TIMEOUT seconds] [FOLDER folder] [LIBRARIES targets...] [SOURCES files...])
#
# Builds <name>_test from SOURCES (default: all .cpp and .rc files of the folder, which is <name> unless given) and adds
# it to ctest as plain.<name> or checked.<name>. Windowed programs initialise the framework and
# get the harness of tests/support; CONSOLE programs use neither. A folder that has no sources yet is skipped. The files
# are compiled a few together, unless APART is given: where they use the same names for different things.
#
# Programs run side by side, and those with the highest COST start first: one that starts last and takes minutes would
# leave all but one processor idle.
#
# Files whose names begin with a capital are what several tests share, such as hosts and references. They become a library,
# <name>_hosts, which other programs may name among their LIBRARIES.
function(quor_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "CONSOLE;APART" "COST;TIMEOUT;FOLDER" "LIBRARIES;SOURCES")
    if(NOT arg_FOLDER)
        set(arg_FOLDER ${name})
    endif()
    if(NOT arg_SOURCES)
        file(GLOB arg_SOURCES CONFIGURE_DEPENDS ${arg_FOLDER}/*.cpp ${arg_FOLDER}/*.rc)
    endif()
    if(NOT arg_SOURCES)
        return()
    endif()
    if(NOT arg_TIMEOUT)
        set(arg_TIMEOUT 900)
    endif()
    # What counts is not optimised, and is in no hurry.
    if(QUOR_COVERAGE)
        set(arg_TIMEOUT 7200)
    endif()
    if(NOT arg_COST)
        set(arg_COST 1)
    endif()
    if(arg_CONSOLE)
        set(main QuorTestConsoleMain)
        set(harness gtest)
    else()
        set(main QuorTestMain)
        set(harness QuorTestSupport)
    endif()

    set(hosts ${arg_SOURCES})
    list(FILTER hosts INCLUDE REGEX "/[A-Z][A-Za-z]*\\.cpp$")
    if(hosts)
        list(REMOVE_ITEM arg_SOURCES ${hosts})
        add_library(${name}_hosts STATIC ${hosts})
        _quor_compile_as_test(${name}_hosts)
        target_link_libraries(${name}_hosts PRIVATE QuorFlags PUBLIC ${harness} ${arg_LIBRARIES})
        list(PREPEND arg_LIBRARIES ${name}_hosts)
    endif()

    add_executable(${name}_test ${arg_SOURCES})
    _quor_compile_as_test(${name}_test)
    if(NOT arg_APART)
        quor_compile_batches(${name}_test)
    endif()
    target_link_libraries(${name}_test PRIVATE QuorFlags ${main} ${arg_LIBRARIES})
    add_test(NAME ${QUOR_TEST_VARIANT}.${name} COMMAND ${name}_test --gtest_color=no)
    # A crash that the debugger of Wine reports may end with the exit code 0.
    set_tests_properties(${QUOR_TEST_VARIANT}.${name} PROPERTIES TIMEOUT ${arg_TIMEOUT} COST ${arg_COST}
        FAIL_REGULAR_EXPRESSION "Unhandled exception|Unhandled page fault")
endfunction()
