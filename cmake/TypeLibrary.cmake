# add_type_library(TARGET IDL): NAME.tlb for the target's bitness and NAME.h with its interfaces, as INTERFACE library
# TARGET that carries the header's folder; the type library's path is its property TYPE_LIBRARY.

find_file(STDOLE2_TLB stdole2.tlb
    PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/i386-linux-gnu/wine/i386-windows
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
cmake_path(GET STDOLE2_TLB PARENT_PATH STDOLE2_FOLDER)

set(FORGET_TIME ${CMAKE_CURRENT_LIST_DIR}/forget_time_of_type_library.py)

function(add_type_library target idl)
    cmake_path(GET idl STEM name)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/type_library)
    file(MAKE_DIRECTORY ${folder})
    set(widl ${WIDL} -DLIBRARY_VERSION=${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
        -I${CMAKE_CURRENT_SOURCE_DIR} -I${WINE_WINDOWS_HEADERS} -L${STDOLE2_FOLDER})
    file(GLOB_RECURSE included CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.idl")

    add_custom_command(
        OUTPUT ${folder}/${name}.tlb ${folder}/${name}.h
        # In a zone without summer time, in which an hour comes twice.
        COMMAND ${CMAKE_COMMAND} -E env TZ=UTC ${widl} -t -o ${folder}/${name}.tlb ${CMAKE_CURRENT_SOURCE_DIR}/${idl}
        COMMAND /usr/bin/python3 ${FORGET_TIME} ${folder}/${name}.tlb
        COMMAND ${widl} -h -H ${folder}/${name}.h ${CMAKE_CURRENT_SOURCE_DIR}/${idl}
        DEPENDS ${included} ${FORGET_TIME}
        VERBATIM)
    add_custom_target(${target}_files DEPENDS ${folder}/${name}.tlb ${folder}/${name}.h)

    add_library(${target} INTERFACE)
    add_dependencies(${target} ${target}_files)
    target_include_directories(${target} SYSTEM INTERFACE ${folder})
    set_target_properties(${target} PROPERTIES TYPE_LIBRARY ${folder}/${name}.tlb)
endfunction()
