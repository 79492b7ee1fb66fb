// A request that plays what a test scripts: what the platform under the tests cannot be brought to do over a socket.
#pragma once

#include "platform/com/UnknownObject.h"
#include "platform/http/HttpRequest.h"
#include "unit_support/EarlyBound.h"

#include <msxml6.h>
#include <wrl/client.h>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace support {

// What a request of the script does and answers.
struct Script {
    // The result of creating the request.
    HRESULT createResult = S_OK;
    HRESULT openResult = S_OK;
    HRESULT sendResult = S_OK;
    // The ready states that are reported one after the other; the last one stays.
    std::vector<long> readyStates = {4};
    long status = 200;
    // Null, as a connection that failed reports it, when it does not hold.
    bool hasStatusText = true;
    std::wstring statusText = L"OK";
    std::wstring responseText = {};
    // Empty: the answer has no such header.
    std::wstring contentType = L"text/xml; charset=utf-8";
    // The text in UTF-8 unless there are others; false: the request gives none.
    bool hasResponseBody = true;
    std::string responseBody = {};
    // The response document is parsed from the text; false: the request offers no document at all.
    bool hasResponseXml = true;
    HRESULT responseXmlResult = S_OK;
    // The result of clearing the handler.
    HRESULT clearHandlerResult = S_OK;
    // The handler is called without DISPPARAMS.
    bool callsWithoutParameters = false;
    // Happens while the request is sent, as messages are dispatched meanwhile.
    std::function<void()> onSend = [] {};
};

// What was asked of a request.
struct Sent {
    std::wstring method;
    std::wstring url;
    // What `open` was told; without a word on it a request is asynchronous.
    bool isModeGiven = false;
    bool asynchronous = false;
    // A user or a password was named.
    bool isUserGiven = false;
    std::vector<std::pair<std::wstring, std::wstring>> headers;
    std::wstring body;
    bool bodyIsText = false;
    int sends = 0;
    int aborts = 0;
    // How often each part of the answer was asked for.
    int asksForStatus = 0;
    int asksForDocument = 0;
    int asksForBytes = 0;
};

class ScriptedRequest;

// While it lives, the library's requests are scripted ones; the script can be changed between them.
class ScriptedHttp {
public:
    explicit ScriptedHttp(Script script = {});
    ~ScriptedHttp();
    ScriptedHttp(const ScriptedHttp&) = delete;
    ScriptedHttp& operator=(const ScriptedHttp&) = delete;

    Script script;

    // The requests made so far, the last one at the end.
    std::vector<platform::Ref<ScriptedRequest>> requests;
    ScriptedRequest& Last() const { return *requests.back(); }
};

class ScriptedRequest final : public EarlyBound<IXMLHTTPRequest> {
public:
    explicit ScriptedRequest(Script script) : script_(std::move(script)) {}

    const Sent& Seen() const { return sent_; }
    bool HasHandler() const { return handler_ != nullptr; }
    // Ends a request that will never complete.
    void ClearHandler() {
        handler_.Reset();
        isEnded_ = true;
    }
    // Reports the next ready state to the handler, as the platform does from the message loop.
    void Advance();

    STDMETHODIMP open(BSTR method, BSTR url, VARIANT asynchronous, VARIANT user, VARIANT password) override;
    STDMETHODIMP setRequestHeader(BSTR header, BSTR value) override;
    STDMETHODIMP getResponseHeader(BSTR header, BSTR* value) override;
    STDMETHODIMP getAllResponseHeaders(BSTR* headers) override;
    STDMETHODIMP send(VARIANT body) override;
    STDMETHODIMP abort() override;
    STDMETHODIMP get_status(long* status) override;
    STDMETHODIMP get_statusText(BSTR* text) override;
    STDMETHODIMP get_responseXML(IDispatch** document) override;
    STDMETHODIMP get_responseText(BSTR* text) override;
    STDMETHODIMP get_responseBody(VARIANT* body) override;
    STDMETHODIMP get_responseStream(VARIANT* stream) override;
    STDMETHODIMP get_readyState(long* state) override;
    STDMETHODIMP put_onreadystatechange(IDispatch* handler) override;

private:
    const Script script_;
    Sent sent_;
    size_t state_ = 0;
    bool isEnded_ = false;
    Microsoft::WRL::ComPtr<IDispatch> handler_;
};

}  // namespace support
