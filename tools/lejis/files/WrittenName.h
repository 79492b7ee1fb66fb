#pragma once

#include <string>
#include <string_view>

namespace lejis_client {

// The name of an element or attribute as a file has it.
struct WrittenName {
    std::wstring_view space;
    std::wstring_view local;
    std::wstring_view qualified;

    std::wstring Text() const { return std::wstring(qualified); }
};

}  // namespace lejis_client
