// The namespaces of everything that the library writes and reads, and the prefix of each. The host of the LEJIS ones is
// set when the library is built (LEJIS_HOST).
#pragma once

#include <string_view>

namespace lejis::Constants {

#define LEJIS_URI(path) L"http://" LEJIS_HOST path

inline constexpr wchar_t kSoapNamespace[] = L"http://schemas.xmlsoap.org/soap/envelope/";
inline constexpr wchar_t kWsseNamespace[] =
    L"http://docs.oasis-open.org/wss/2004/01/oasis-200401-wss-wssecurity-secext-1.0.xsd";
inline constexpr wchar_t kLejisNamespace[] = LEJIS_URI(L"/lejis/jxdm/1.0/service");
inline constexpr wchar_t kJxdmNamespace[] = L"http://www.it.ojp.gov/jxdm/3.0.3";
inline constexpr wchar_t kExtensionNamespace[] = LEJIS_URI(L"/lejis/jxdm/1.0/card/extra");
inline constexpr wchar_t kCardNamespace[] = LEJIS_URI(L"/lejis/jxdm/1.0/card");

inline constexpr wchar_t kSubmitAction[] = LEJIS_URI(L"/lejis/jxdm/1.0/service/submitRmsIndex");
// The order of this path differs from the submission's on purpose.
inline constexpr wchar_t kSearchAction[] = LEJIS_URI(L"/lejis/1.0/service/jxdm/searchIndex");

#undef LEJIS_URI

struct Prefix {
    std::wstring_view name;
    std::wstring_view uri;
};

// In the order in which they are declared for queries. Two prefixes name the LEJIS service namespace on purpose:
// inquiry elements are written with either and mean the same.
inline constexpr Prefix kPrefixes[] = {
    {L"soap", kSoapNamespace},     {L"wsse", kWsseNamespace}, {L"lejis", kLejisNamespace}, {L"j", kJxdmNamespace},
    {L"ext", kExtensionNamespace}, {L"card", kCardNamespace}, {L"inq", kLejisNamespace},
};

}  // namespace lejis::Constants
