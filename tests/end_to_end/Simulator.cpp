#include "end_to_end/Simulator.h"

#include "support/ComCheck.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

#include <msxml6.h>
#include <windows.h>

#include <cstdlib>

using Microsoft::WRL::ComPtr;

namespace end_to_end {
namespace {

std::string Root() {
    const char* url = std::getenv("LEJIS_SIMULATOR_URL");
    if (!url) ADD_FAILURE() << "LEJIS_SIMULATOR_URL is not set: no simulator runs";
    return url ? url : "";
}

std::string Call(const wchar_t* method, const std::string& path, const std::string& body = {}) {
    const _variant_t none(DISP_E_PARAMNOTFOUND, VT_ERROR);
    ComPtr<IXMLHTTPRequest> request;
    EXPECT_OK(
        CoCreateInstance(__uuidof(XMLHTTP60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(request.GetAddressOf())));
    EXPECT_OK(request->open(support::Bstr(method), support::Bstr(support::Wide(Root() + path)), _variant_t(false), none,
                            none));
    EXPECT_OK(request->send(_variant_t(support::Bstr(support::Wide(body)))));
    long status = 0;
    EXPECT_OK(request->get_status(&status));
    BSTR text = nullptr;
    EXPECT_OK(request->get_responseText(&text));
    const std::string answer = support::Utf8(support::Take(text));
    EXPECT_EQ(200, status) << path << " " << body << ": " << answer;
    return answer;
}

}  // namespace

std::wstring SubmissionUrl() { return support::Wide(Root() + "/lejis-core-Rev01/services/submission"); }

std::wstring SearchUrl() { return support::Wide(Root() + "/lejis-core-Rev01/services/search"); }

void Reset() {
    for (const char* what : {"faults", "index", "exchanges"}) Call(L"DELETE", std::string("/control/") + what);
}

void Play(const std::string& fault) { Call(L"POST", "/control/faults", fault); }

void StopFaults() { Call(L"DELETE", "/control/faults"); }

std::string Get(const std::string& path) { return Call(L"GET", path); }

size_t Occurrences(const std::string& text, const std::string& part) {
    size_t count = 0;
    for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
    return count;
}

size_t Posts() { return Occurrences(Get("/control/exchanges"), "\"method\": \"POST\""); }
size_t WsdlRequests() { return Occurrences(Get("/control/exchanges"), "?wsdl\""); }
size_t IncidentsHeld() { return Occurrences(Get("/control/index"), "\"ori\":"); }

std::string CardHeld(const std::string& ori, const std::string& id) {
    return Get("/control/index/card?ori=" + ori + "&id=" + id);
}

}  // namespace end_to_end
