#include "unit_support/Answers.h"

#include "unit_support/Soap.h"

namespace support {

std::wstring AnsweredCard(const std::wstring& id) {
    return L"<lejis:RMSIncidentIndexCard xmlns:lejis='http://lejis.example/lejis/jxdm/1.0/service' "
           L"xmlns:card='http://lejis.example/lejis/jxdm/1.0/card' xmlns:j='http://www.it.ojp.gov/jxdm/3.0.3'>"
           L"<card:LejisIndexUid><j:OrganizationORIID><j:ID>PA0250100</j:ID></j:OrganizationORIID>"
           L"<j:ActivityID><j:ID>" +
           id +
           L"</j:ID></j:ActivityID></card:LejisIndexUid><j:SubmissionSubmitter.Organization/>"
           L"</lejis:RMSIncidentIndexCard>";
}

std::wstring InquiryResponse(const std::wstring& content) {
    return Soap(L"<lejis:LEJISIndexInquiryResponse xmlns:lejis='http://lejis.example/lejis/jxdm/1.0/service'>" +
                content + L"</lejis:LEJISIndexInquiryResponse>");
}

}  // namespace support
