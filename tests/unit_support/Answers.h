// Answers to searches.
#pragma once

#include <string>

namespace support {

// A card with this incident number, as a server returns it.
std::wstring AnsweredCard(const std::wstring& id);

// The answer to a search with this content.
std::wstring InquiryResponse(const std::wstring& content);

}  // namespace support
