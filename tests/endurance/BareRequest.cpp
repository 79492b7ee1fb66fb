#include "endurance/BareRequest.h"

#include "support/ComCheck.h"

#include <msxml6.h>
#include <wrl/client.h>

using Microsoft::WRL::ComPtr;
using support::Bstr;

namespace endurance {

void PostBare(const std::wstring& url, const std::wstring& body) {
    const _variant_t none(DISP_E_PARAMNOTFOUND, VT_ERROR);
    ComPtr<IXMLHTTPRequest> request;
    ComPtr<IDispatch> answer;
    EXPECT_OK(
        CoCreateInstance(__uuidof(XMLHTTP60), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(request.GetAddressOf())));
    EXPECT_OK(request->open(Bstr(L"POST"), Bstr(url), _variant_t(false), none, none));
    if (SUCCEEDED(request->send(_variant_t(Bstr(body))))) request->get_responseXML(answer.GetAddressOf());
}

}  // namespace endurance
