#include "doctor/DebugFlag.h"

#include "platform/Registry.h"
#include "platform/Text.h"

#include <algorithm>

namespace lejis_client {
namespace {

// Where the library reads it.
constexpr wchar_t kKey[] = L"Software\\VB and VBA Program Settings\\TalvexSuite\\Flags";
constexpr wchar_t kValue[] = L"DebugLejis";

// "-1" is the number of True in Visual Basic.
constexpr std::wstring_view kOnWords[] = {L"Y", L"YES", L"1", L"-1", L"T", L"TRUE", L"ON"};

}  // namespace

std::wstring DebugFlagAsWritten() {
    if (const auto text = platform::ReadRegistryText(HKEY_CURRENT_USER, kKey, kValue)) return L'"' + *text + L'"';
    DWORD number = 0;
    DWORD size = sizeof number;
    if (RegGetValueW(HKEY_CURRENT_USER, kKey, kValue, RRF_RT_REG_DWORD, nullptr, &number, &size) != ERROR_SUCCESS) {
        return {};
    }
    return L"the number " + std::to_wstring(number);
}

bool LooksOn(const std::wstring& written) {
    if (!written.starts_with(L'"')) return !written.empty() && written != L"the number 0";
    const std::wstring_view word = platform::TrimBlanks(std::wstring_view(written).substr(1, written.size() - 2));
    return std::ranges::any_of(kOnWords, [&](std::wstring_view on) { return platform::EqualIgnoringCase(word, on); });
}

}  // namespace lejis_client
