# What everything that includes the library's headers must be compiled with, hosts included, as the interface target
# QuorUsage. No warning flag belongs here: a host chooses its own.
add_library(QuorUsage INTERFACE)
target_compile_definitions(QuorUsage INTERFACE UNICODE _UNICODE _AFXDLL)

if(NOT MSVC)
    # GetSafeHwnd and its siblings are documented to work on a null this.
    target_compile_options(QuorUsage INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-fno-delete-null-pointer-checks>)
    # The headers compare it with what they find: the variants differ in the layout of the standard containers.
    if(QUOR_CHECKED)
        target_compile_definitions(QuorUsage INTERFACE QUOR_CHECKED_LIBRARY=1 _DEBUG _GLIBCXX_DEBUG)
    else()
        target_compile_definitions(QuorUsage INTERFACE QUOR_CHECKED_LIBRARY=0)
    endif()
endif()
