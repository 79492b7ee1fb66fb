// Answers of a LEJIS Interface.
#pragma once

#include <string>

namespace support {

// A SOAP envelope with this content in its body.
std::wstring Soap(const std::wstring& content);

// The answer to a submission with this text.
std::wstring SubmissionResponse(const std::wstring& text);

std::wstring SoapFault(const std::wstring& code, const std::wstring& message);

}  // namespace support
