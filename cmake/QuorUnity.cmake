# Compiles the files of a folder together: nearly all the time of a compilation goes into reading the headers of the
# platform and of the C++ library, and so is spent once for each folder.
#
# quor_compile_folders(target) joins the target's C++ files by the folder they are in.
function(quor_compile_folders target)
    get_target_property(_sources ${target} SOURCES)
    foreach(_source IN LISTS _sources)
        get_filename_component(_folder ${_source} DIRECTORY)
        get_filename_component(_folder ${_folder} NAME)
        set_property(SOURCE ${_source} PROPERTY UNITY_GROUP ${_folder})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
