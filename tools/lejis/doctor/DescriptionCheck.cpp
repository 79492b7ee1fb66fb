#include "doctor/DescriptionCheck.h"

#include <algorithm>

namespace lejis_client {
namespace {

constexpr DWORD kOk = 200;
constexpr DWORD kNotFound = 404;

Finding OtherStatus(const wchar_t* subject, const std::wstring& wsdlUrl, DWORD status) {
    const bool isAddress = status == kNotFound;
    return {subject, Health::kFailed, L"the server answers " + wsdlUrl + L" with status " + std::to_wstring(status),
            isAddress ? L"Correct the path in the address: it has to be that of the service."
                      : L"Look at the LEJIS Interface's log.",
            !isAddress};
}

// By the operation's name, or by the end of its SOAP action.
bool Describes(const ServiceDescription& description, const Service& service) {
    const std::wstring operation = service.operation;
    const auto isOperation = [&](const std::wstring& name) {
        return CompareStringOrdinal(name.c_str(), -1, operation.c_str(), -1, TRUE) == CSTR_EQUAL;
    };
    const auto isAction = [&](const std::wstring& action) {
        return isOperation(action.substr(action.find_last_of(L'/') + 1));
    };
    return std::ranges::any_of(description.operations, isOperation) ||
           std::ranges::any_of(description.soapActions, isAction);
}

Finding Swapped(const wchar_t* subject, const Service& wanted, const Service& found) {
    return {subject, Health::kFailed,
            L"this is the address of the " + std::wstring(found.name) + L", not of the " + wanted.name,
            L"Give it with " + std::wstring(found.option) + L", and the address of the " + wanted.name + L" with " +
                wanted.option + L"; correct the suite's settings likewise."};
}

}  // namespace

Finding CheckDescription(ServiceKind kind, const std::wstring& wsdlUrl, const WebPage& page,
                         ServiceDescription& description) {
    const Service& service = ServiceOf(kind);
    if (page.status != kOk) return OtherStatus(service.description, wsdlUrl, page.status);
    const auto read = ReadDescription(page.content);
    if (!read) {
        return {service.description, Health::kFailed, L"what " + wsdlUrl + L" gives is no WSDL",
                L"Correct the address: something else than the LEJIS Interface answers there."};
    }
    description = *read;
    if (Describes(description, service)) return {service.description, Health::kOk, L"loaded from " + wsdlUrl, {}};
    const Service& other = OtherService(kind);
    if (Describes(description, other)) return Swapped(service.description, service, other);
    return {service.description, Health::kWarning,
            L"loaded from " + wsdlUrl + L", but it names no operation of the " + service.name,
            L"See that the address is that of the LEJIS " + std::wstring(service.name) + L"."};
}

}  // namespace lejis_client
