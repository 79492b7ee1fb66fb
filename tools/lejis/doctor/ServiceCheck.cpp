#include "doctor/ServiceCheck.h"

#include "doctor/SchemaCheck.h"
#include "doctor/WebFailureText.h"
#include "library/LibraryError.h"
#include "library/NotRegistered.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

#include <comutil.h>

#include <algorithm>

namespace lejis_client {
namespace {

constexpr wchar_t kWsdlNamespace[] = L"http://schemas.xmlsoap.org/wsdl/";
constexpr DWORD kOk = 200;
constexpr DWORD kNotFound = 404;
constexpr wchar_t kSkipped[] = L"not looked at, because of what is said above";

struct Subjects {
    const wchar_t* server;
    const wchar_t* description;
    const wchar_t* schema;
    msxml::Document (*sample)();
};

constexpr Subjects kSubjects[] = {
    {L"Submission server", L"Submission WSDL", L"Submission schemas", SampleSubmission},
    {L"Search server", L"Search WSDL", L"Search schemas", SampleSearch},
};

Finding CheckAddress(const Subjects& subjects, const std::wstring& url) {
    if (IsWebAddress(url)) return {subjects.server, Health::kOk, {}, {}};
    return {subjects.server, Health::kFailed, L"'" + url + L"' is no address of the web",
            L"Write it as in http://lejis-interface:8080/lejis-core-Rev01/services/submission."};
}

// The page, where the server could be reached.
Finding CheckServer(const Subjects& subjects, const std::wstring& wsdlUrl, WebPage& page) {
    try {
        page = FetchPage(wsdlUrl);
        return {subjects.server, Health::kOk, L"reached", {}};
    } catch (const WebFailure& failure) {
        const FailureWords words = WordsFor(failure);
        return {subjects.server, Health::kFailed, L"not reached: " + words.reason, words.cure, true};
    }
}

bool IsWsdl(const std::string& content) {
    const msxml::Document document = msxml::CreateDocument();
    _variant_t bytes;
    bytes.vt = VT_ARRAY | VT_UI1;
    bytes.parray = SafeArrayCreateVector(VT_UI1, 0, static_cast<ULONG>(content.size()));
    if (!bytes.parray) throw std::bad_alloc();
    std::copy(content.begin(), content.end(), static_cast<char*>(bytes.parray->pvData));
    VARIANT_BOOL loaded = VARIANT_FALSE;
    if (FAILED(document->load(bytes, &loaded)) || !loaded || msxml::HasDoctype(document)) return false;
    const msxml::Element root = msxml::Root(document);
    _bstr_t name, space;
    return root && SUCCEEDED(root->get_baseName(name.GetAddress())) &&
           SUCCEEDED(root->get_namespaceURI(space.GetAddress())) && name == _bstr_t(L"definitions") &&
           space == _bstr_t(kWsdlNamespace);
}

Finding CheckDescription(const Subjects& subjects, const std::wstring& wsdlUrl, const WebPage& page) {
    if (page.status != kOk) {
        const bool isAddress = page.status == kNotFound;
        return {subjects.description, Health::kFailed,
                L"the server answers " + wsdlUrl + L" with status " + std::to_wstring(page.status),
                isAddress ? L"Correct the path in the address: it has to be that of the service."
                          : L"Look at the LEJIS Interface's log.",
                !isAddress};
    }
    if (IsWsdl(page.content)) return {subjects.description, Health::kOk, L"loaded from " + wsdlUrl, {}};
    return {subjects.description, Health::kFailed, L"what " + wsdlUrl + L" gives is no WSDL",
            L"Correct the address: something else than the LEJIS Interface answers there."};
}

Finding CheckSchemas(const Subjects& subjects, const std::wstring& wsdlUrl) {
    try {
        const std::wstring fault = SchemaFault(subjects.sample(), wsdlUrl);
        if (fault.empty()) return {subjects.schema, Health::kOk, L"a sample request passes them; nothing was sent", {}};
        return {subjects.schema, Health::kWarning, fault,
                L"Leave ValidateSchema off, and see that the LEJIS Interface publishes all its schemas."};
    } catch (const NotRegistered&) {
        return {subjects.schema, Health::kSkipped, kSkipped, {}};
    } catch (const LibraryError& error) {
        return {subjects.schema, Health::kFailed, error.description, L"Install the library again."};
    }
}

}  // namespace

Findings CheckService(ServiceKind kind, const std::wstring& url) {
    const Subjects& subjects = kSubjects[kind == ServiceKind::kSearch];
    const std::wstring wsdlUrl = url + L"?wsdl";
    WebPage page = {};
    Findings findings = {CheckAddress(subjects, url)};
    if (findings.back().health == Health::kOk) findings = {CheckServer(subjects, wsdlUrl, page)};
    const auto isWell = [&] { return findings.back().health == Health::kOk; };
    const Finding unseen = {subjects.schema, Health::kSkipped, kSkipped, {}};
    findings.push_back(isWell() ? CheckDescription(subjects, wsdlUrl, page)
                                : Finding{subjects.description, Health::kSkipped, kSkipped, {}});
    findings.push_back(isWell() ? CheckSchemas(subjects, wsdlUrl) : unseen);
    return findings;
}

}  // namespace lejis_client
