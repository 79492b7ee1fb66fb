# What every program of the project is compiled with.
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_FLAGS_RELEASE "-O2 -DNDEBUG")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

add_compile_definitions(UNICODE _UNICODE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)

add_library(project_warnings INTERFACE)
target_compile_options(project_warnings INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Werror
    # COM classes are deleted by Release in their most derived class, never through an interface.
    -Wno-non-virtual-dtor
    # GCC 12 reports the standard library's own string concatenation.
    -Wno-array-bounds -Wno-restrict -Wno-stringop-overflow -Wno-stringop-overread)

# So that the linker can leave out what is not used.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)

# Nothing beside the file: no run-time library of the compiler has to be installed with it.
add_link_options(-static)

# What the tests check the library with: undefined behaviour and broken standard library contracts end the process.
set(CHECKED_BUILD_OPTIONS
    -O1 -D_GLIBCXX_ASSERTIONS -fsanitize=undefined -fsanitize-undefined-trap-on-error)
