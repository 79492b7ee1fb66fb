// What can be searched for, and how; one option of the command line each.
#pragma once

#include <TVLejisCore.h>
#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

namespace lejis_client {

inline constexpr std::wstring_view kMaxOption = L"--max";

struct SearchOption {
    const wchar_t* name;
    // Whether it says what to search for, not only how.
    bool isCriterion;
    // Says what is wrong with a value; empty when nothing is.
    std::wstring (*complaint)(const std::wstring& value);
    void (*put)(ILejisSearchRequest* request, const std::wstring& value);
    bool mayRepeat = false;
};

// One use of an option.
struct SearchValue {
    const SearchOption* option;
    std::wstring value;
};

using SearchValues = std::vector<SearchValue>;

// Null when there is no such option.
const SearchOption* FindSearchOption(const std::wstring& name);

std::vector<std::wstring_view> SearchOptionNames();

bool HasCriterion(const SearchValues& values);

}  // namespace lejis_client
