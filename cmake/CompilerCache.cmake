# Where ccache is installed, what was compiled in this folder before is taken from it. A second checkout has its own
# precompiled headers, and so objects of its own.
find_program(CCACHE ccache)
mark_as_advanced(CCACHE)
if(CCACHE)
    # The two exceptions are what ccache asks for where headers are precompiled.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE}")
    add_compile_options($<$<COMPILE_LANGUAGE:CXX>:-fpch-preprocess>)
endif()
