#include "platform/http/Address.h"

#include "platform/Text.h"

#include <algorithm>
#include <optional>

namespace platform {
namespace {

using View = std::wstring_view;

constexpr wchar_t kSpace = L' ';

// White space and control characters around an address do not belong to it: MSXML drops them.
View WithoutWhiteSpaceAround(View url) {
    const auto isKept = [](wchar_t character) { return character > kSpace; };
    const auto first = std::find_if(url.begin(), url.end(), isKept);
    const auto last = std::find_if(url.rbegin(), url.rend(), isKept).base();
    return first < last ? View(first, last) : View();
}

// The part between the scheme and the path; nothing for any scheme but http and https.
std::optional<View> Authority(View url) {
    for (const View scheme : {View(L"http://"), View(L"https://")}) {
        if (!EqualIgnoringCase(url.substr(0, scheme.size()), scheme)) continue;
        const View rest = url.substr(scheme.size());
        return rest.substr(0, rest.find_first_of(L"/\\?#"));
    }
    return std::nullopt;
}

bool IsHost(View host) {
    return !host.empty() && std::all_of(host.begin(), host.end(), [](wchar_t character) {
        return character > kSpace && View(L"\"<>[]^`{|}").find(character) == View::npos;
    });
}

// Takes the port with the colon before it, or an empty text for no port.
bool IsPort(View port) {
    if (port.empty()) return true;
    constexpr int kHighest = 65535;
    int number = 0;
    for (const wchar_t digit : port.substr(1)) {
        if (digit < L'0' || digit > L'9') return false;
        number = number * 10 + (digit - L'0');
        if (number > kHighest) return false;
    }
    return port.front() == L':';
}

bool IsHostAndPort(View text) {
    if (!text.starts_with(L'[')) {
        const size_t colon = std::min(text.find(L':'), text.size());
        return IsHost(text.substr(0, colon)) && IsPort(text.substr(colon));
    }
    const size_t end = text.find(L']');
    if (end == View::npos) return false;
    const View numbers = text.substr(1, end - 1);
    return numbers.find(L':') != View::npos && IsHost(numbers) && IsPort(text.substr(end + 1));
}

}  // namespace

bool IsHttpAddress(std::wstring_view url) {
    const auto authority = Authority(WithoutWhiteSpaceAround(url));
    if (!authority) return false;
    const size_t user = authority->rfind(L'@');
    return IsHostAndPort(user == View::npos ? *authority : authority->substr(user + 1));
}

}  // namespace platform
