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

# A smashed stack ends the process instead of running on; addresses are random, and data is never run.
add_compile_options(-fstack-protector-strong)
add_link_options(-fstack-protector-strong -Wl,--dynamicbase -Wl,--nxcompat)
if(CMAKE_SIZEOF_VOID_P EQUAL 8)
    add_link_options(-Wl,--high-entropy-va)
endif()

# 32-bit Windows promises its callees four bytes of stack alignment, and the clients of the library promise no more.
if(CMAKE_SIZEOF_VOID_P EQUAL 4)
    add_compile_options(-mincoming-stack-boundary=2)
endif()

# So that the linker can leave out what is not used.
add_compile_options(-ffunction-sections -fdata-sections)
add_link_options(-Wl,--gc-sections)

# Nothing beside the file: no run-time library of the compiler has to be installed with it.
add_link_options(-static)

# The DLL itself lists its living objects in a debug build, and what the tests check always does.
add_compile_definitions($<$<CONFIG:Debug>:LIST_LIVING_OBJECTS>)

# For programs whose size is no matter: the linker takes half as long where functions have no sections of their own.
set(ONE_SECTION -fno-function-sections -fno-data-sections)

# What the tests check the library with: undefined behaviour and broken standard library contracts end the process.
# Whoever includes its headers shares the definitions.
set(CHECKED_LIBRARY_OPTIONS $<IF:$<CONFIG:Debug>,-O0,-O1> -fsanitize=undefined -fsanitize-undefined-trap-on-error
    ${ONE_SECTION})
set(CHECKED_LIBRARY_DEFINITIONS _GLIBCXX_ASSERTIONS LIST_LIVING_OBJECTS)

# The tests' own code, which is compiled far more often than it runs.
set(TEST_OPTIONS -O0 ${ONE_SECTION})
