#include "unit_support/Soap.h"

namespace support {

std::wstring Soap(const std::wstring& content) {
    return L"<soap:Envelope xmlns:soap='http://schemas.xmlsoap.org/soap/envelope/'><soap:Body>" + content +
           L"</soap:Body></soap:Envelope>";
}

std::wstring SubmissionResponse(const std::wstring& text) {
    return Soap(L"<lejis:submissionResponse xmlns:lejis='http://lejis.example/lejis/jxdm/1.0/service'>" + text +
                L"</lejis:submissionResponse>");
}

std::wstring SoapFault(const std::wstring& code, const std::wstring& message) {
    return Soap(L"<soap:Fault><faultcode>" + code + L"</faultcode><faultstring>" + message +
                L"</faultstring></soap:Fault>");
}

}  // namespace support
