// Functions that write the value of an option down: the takers of the table of options. Each says what is wrong with
// the value; empty when nothing is.
#pragma once

#include "commandline/CommandLine.h"
#include "text/Day.h"
#include "text/Number.h"

namespace lejis_client {

// What the library's short numbers hold; it would take a larger one for 0.
inline constexpr long kMostOfShort = 32767;

// The member at the end of a path of members.
template <auto member, auto... rest>
auto& At(auto& object) {
    if constexpr (sizeof...(rest) == 0) {
        return object.*member;
    } else {
        return At<rest...>(object.*member);
    }
}

template <auto... path>
std::wstring TakeFlag(CommandLine& commandLine, const std::wstring&) {
    At<path...>(commandLine) = true;
    return {};
}

template <auto... path>
std::wstring TakeText(CommandLine& commandLine, const std::wstring& value) {
    At<path...>(commandLine) = value;
    return {};
}

template <auto... path>
std::wstring TakeOneMore(CommandLine& commandLine, const std::wstring& value) {
    At<path...>(commandLine).push_back(value);
    return {};
}

template <typename Store>
std::wstring WithNumber(const std::wstring& value, long least, long most, Store store) {
    const auto number = ParseNumber(value, least, most);
    if (number) store(*number);
    return number ? L""
                  : L"'" + value + L"' is not a whole number from " + std::to_wstring(least) + L" to " +
                        std::to_wstring(most);
}

template <typename Store>
std::wstring WithDay(const std::wstring& value, Store store) {
    const auto day = ParseDay(value);
    if (day) store(*day);
    return day ? L"" : L"'" + value + L"' is not a day; write it as in 2024-03-09";
}

template <long least, long most, auto... path>
std::wstring TakeNumber(CommandLine& commandLine, const std::wstring& value) {
    return WithNumber(value, least, most, [&](long number) { At<path...>(commandLine) = number; });
}

template <auto... path>
std::wstring TakeDay(CommandLine& commandLine, const std::wstring& value) {
    return WithDay(value, [&](DATE day) { At<path...>(commandLine) = day; });
}

template <auto block, auto put>
std::wstring TakeCriterion(CommandLine& commandLine, const std::wstring& value) {
    commandLine.search.criteria.push_back(TextCriterion<block, put>(value));
    return {};
}

template <auto block, auto holder>
std::wstring TakeNumberCriterion(CommandLine& commandLine, const std::wstring& value) {
    return WithNumber(value, 0, kMostOfShort, [&](long number) {
        commandLine.search.criteria.push_back(ValueCriterion<block, holder>(_variant_t(number, VT_I4)));
    });
}

template <auto block, auto holder>
std::wstring TakeDayCriterion(CommandLine& commandLine, const std::wstring& value) {
    return WithDay(value, [&](DATE day) {
        commandLine.search.criteria.push_back(ValueCriterion<block, holder>(_variant_t(day, VT_DATE)));
    });
}

}  // namespace lejis_client
