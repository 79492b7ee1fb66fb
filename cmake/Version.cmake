# The project's version for programs and their resources: Version.h, by the library target project_version.
configure_file(${CMAKE_CURRENT_LIST_DIR}/Version.h.in ${CMAKE_BINARY_DIR}/version/Version.h @ONLY)
add_library(project_version INTERFACE)
target_include_directories(project_version INTERFACE ${CMAKE_BINARY_DIR}/version)
