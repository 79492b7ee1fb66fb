# Most of what a source costs is its headers. A folder that is compiled as one piece costs them once.
option(COMPILE_BY_FOLDER "Compile the sources of a folder as one piece; OFF for tools that look at single sources" ON)

# compile_by_folder(TARGET): makes one piece of each folder of the target's sources. Sources of one folder cannot use a
# name for two things. A source with options of its own stays alone.
function(compile_by_folder target)
    if(NOT COMPILE_BY_FOLDER)
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    foreach(source IN LISTS sources)
        cmake_path(ABSOLUTE_PATH source OUTPUT_VARIABLE folder)
        # The name of the piece stands in the debug information, which is to be the same wherever it is built.
        cmake_path(RELATIVE_PATH folder BASE_DIRECTORY "${CMAKE_SOURCE_DIR}")
        cmake_path(GET folder PARENT_PATH folder)
        string(MAKE_C_IDENTIFIER "${folder}" piece)
        set_property(SOURCE ${source} PROPERTY UNITY_GROUP ${piece})
    endforeach()
    set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
endfunction()
