// Addresses that the services' tests give them; what is sent there goes to a scripted request.
#pragma once

namespace support {

inline constexpr wchar_t kSearchUrl[] = L"http://lejis-interface/search";
inline constexpr wchar_t kSubmissionUrl[] = L"http://lejis-interface:8080/submission";

}  // namespace support
