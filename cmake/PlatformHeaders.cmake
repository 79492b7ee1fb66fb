# mingw-w64 has no msxml6.h. Wine's development package has one, in a folder with a whole second set of Windows headers,
# so the one file is copied out of it instead of adding that folder to the include path.
find_path(WINE_WINDOWS_HEADERS msxml6.h
    PATHS /usr/include/wine/wine/windows /usr/include/wine/windows /usr/include/wine-development/windows
    NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)

set(PLATFORM_HEADERS ${CMAKE_BINARY_DIR}/platform_headers)
configure_file(${WINE_WINDOWS_HEADERS}/msxml6.h ${PLATFORM_HEADERS}/msxml6.h COPYONLY)

add_library(platform_headers INTERFACE)
target_include_directories(platform_headers SYSTEM INTERFACE ${PLATFORM_HEADERS})
# The system headers bring an older MSXML along, which the newer header would declare again.
target_compile_definitions(platform_headers INTERFACE __msxml_h__ __ISAXXMLFilter_INTERFACE_DEFINED__)
