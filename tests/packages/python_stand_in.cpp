// python_stand_in ARGUMENT...: takes the place of Python, prints its arguments, a line each, and ends with 0. When the
// environment names a module as MISSING_MODULE, an argument with that name ends it with 1.
#include <cstdlib>
#include <iostream>
#include <string_view>

int main(int count, char** arguments) {
    const char* missing = std::getenv("MISSING_MODULE");
    for (int index = 1; index < count; ++index) {
        const std::string_view argument = arguments[index];
        std::cout << argument << '\n';
        if (missing && argument.find(missing) != argument.npos) return 1;
    }
    return 0;
}
