// Answers to searches that are read from their bytes, past MSXML.
#pragma once

#include "inquiry/LejisInquiryResponse.h"
#include "platform/http/Exchange.h"

namespace lejis {

// What the answer holds; null where it has to be read from MSXML's document, which says the same of every answer.
Microsoft::WRL::ComPtr<LejisInquiryResponse> TryPlainReading(const platform::Exchange& exchange);

// Whether TryPlainReading tries at all. It is off from the beginning in a build without PLAIN_READING. Tests compare
// both ways.
bool PlainReadingIsOn();
void SwitchPlainReading(bool on);

}  // namespace lejis
