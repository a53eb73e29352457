# The compile flags that every target of the project shares, as the interface target QuorFlags, which includes those of
# QuorUsage. QuorWarnings is the part that the guard allocator itself can use.
#
# QUOR_WERROR makes warnings errors, for continuous integration: other compilers warn of other things, and a user's build
# should not fail by that.
#
# QUOR_CHECKED builds the checked variant: assertions, bounds-checked containers, undefined-behaviour traps, stack
# protection, and the guard allocator (see tests/guard) in every program.
option(QUOR_CHECKED "Build with run-time checks" OFF)
option(QUOR_WERROR "Treat warnings as errors" OFF)

add_library(QuorWarnings INTERFACE)
add_library(QuorFlags INTERFACE)
target_link_libraries(QuorFlags INTERFACE QuorWarnings QuorUsage)
target_compile_features(QuorWarnings INTERFACE cxx_std_20)
target_compile_definitions(QuorWarnings INTERFACE
    WIN32 _WINDOWS _WIN32_WINNT=0x0601 WINVER=0x0601 _WIN32_IE=0x0600)

if(MSVC)
    # Not for the resource compiler, which takes other options.
    target_compile_options(QuorWarnings INTERFACE "$<$<COMPILE_LANGUAGE:C,CXX>:/W4;$<$<BOOL:${QUOR_WERROR}>:/WX>;/utf-8;/permissive->")
    return()
endif()

target_compile_options(QuorWarnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion $<$<BOOL:${QUOR_WERROR}>:-Werror>
    # Message maps cast member functions to one common type, as the macros are documented to do.
    -Wno-cast-function-type
    # Nor warn about the null this that the usage flags allow.
    -Wno-nonnull-compare -Wno-nonnull
    # Watches stand on the stack, enter themselves into a list of what they watch, and leave it in their destructors.
    -Wno-dangling-pointer
    # NtCurrentTeb reads at address 0 of the thread's segment, which the compiler takes for a null pointer.
    --param=min-pagesize=0
    # Paths of the build machine stay out of the binaries.
    "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")

if(QUOR_CHECKED)
    # Line tables are all that the reports of the guard allocator need. Set here, where a target can choose otherwise.
    set(CMAKE_CXX_FLAGS_DEBUG "-O1 -g1")
    target_compile_options(QuorFlags INTERFACE
        -fno-omit-frame-pointer
        -fsanitize=undefined -fno-sanitize=null -fsanitize-undefined-trap-on-error
        -fstack-protector-strong)
    target_link_options(QuorFlags INTERFACE -fstack-protector-strong)
    target_link_libraries(QuorFlags INTERFACE QuorGuard)
else()
    target_compile_definitions(QuorFlags INTERFACE NDEBUG)
endif()
