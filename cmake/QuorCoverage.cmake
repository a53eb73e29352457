# Counts how often each line and branch of the libraries runs; coverage.sh at the root builds with it and reads the counts.
#
# quor_count_runs(target) is for what is to be measured. It is not optimised, so that each branch is one of the source.
option(QUOR_COVERAGE "Count which lines and branches of the libraries run" OFF)

function(quor_count_runs target)
    if(QUOR_COVERAGE)
        target_compile_options(${target} PRIVATE -O0 -g1 --coverage -fprofile-abs-path)
        # Headers that were precompiled without these options do not fit.
        set_target_properties(${target} PROPERTIES DISABLE_PRECOMPILE_HEADERS ON)
        target_link_options(${target} PUBLIC --coverage)
    endif()
endfunction()
