#include "services/PlainReading.h"

#include "foundation/DebugDump.h"
#include "foundation/NetworkErrors.h"
#include "foundation/PlainMarkup.h"
#include "platform/Text.h"

#include <atomic>

using Microsoft::WRL::ComPtr;
using platform::EqualIgnoringCase;
using platform::Exchange;

namespace lejis {
namespace {

std::atomic<bool> isOn = PLAIN_READING;

// What every MSXML takes for XML.
bool IsXml(std::wstring_view mediaType) {
    constexpr std::wstring_view kSuffix = L"+xml";
    return EqualIgnoringCase(mediaType, L"text/xml") || EqualIgnoringCase(mediaType, L"application/xml") ||
           (mediaType.size() > kSuffix.size() &&
            EqualIgnoringCase(mediaType.substr(mediaType.size() - kSuffix.size()), kSuffix));
}

bool IsCharsetUtf8(std::wstring_view parameter) {
    return EqualIgnoringCase(parameter, L"charset=utf-8") || EqualIgnoringCase(parameter, L"charset=\"utf-8\"");
}

// Whether the media type is XML, with no parameter or with the charset UTF-8 alone.
bool IsXmlInUtf8(std::wstring_view contentType) {
    const size_t semicolon = contentType.find(L';');
    if (!IsXml(platform::TrimBlanks(contentType.substr(0, semicolon)))) return false;
    return semicolon == std::wstring_view::npos ||
           IsCharsetUtf8(platform::TrimBlanks(contentType.substr(semicolon + 1)));
}

ComPtr<LejisInquiryResponse> Read(std::string_view bytes) {
    auto response = platform::Create<LejisInquiryResponse>();
    try {
        response->ReadPlainMarkup(bytes);
    } catch (...) {
        // Whatever it was, MSXML's document decides what the client is told.
        SetErrorInfo(0, nullptr);
        return nullptr;
    }
    return response;
}

}  // namespace

ComPtr<LejisInquiryResponse> TryPlainReading(const Exchange& exchange) {
    if (!PlainReadingIsOn()) return nullptr;
    if (exchange.Status() != kHttpOk) return nullptr;
    // A dump is written by MSXML from its document.
    if (LejisUtils::DebugFlagIsOn()) return nullptr;
    if (!IsXmlInUtf8(exchange.ContentType())) return nullptr;
    const platform::ResponseBytes bytes = exchange.Bytes();
    if (!bytes) return nullptr;
    // Read gives null for an answer that is not plain or holds no response to an inquiry.
    return Read(bytes.View());
}

bool PlainReadingIsOn() { return isOn; }

void SwitchPlainReading(bool on) { isOn = on; }

}  // namespace lejis
