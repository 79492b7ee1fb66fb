// One HTTP exchange through MSXML. The only place that knows how implementations of it differ.
#pragma once

#include "platform/http/ResponseBytes.h"
#include "platform/msxml/MsXml.h"

#include <functional>
#include <memory>
#include <string>

namespace platform {

// The two failures of a send that callers tell apart, whatever number the implementation reports for them.
inline constexpr HRESULT kInvalidUrl = MK_E_SYNTAX;  // 0x800401E4
inline constexpr HRESULT kServerUnreachable = static_cast<HRESULT>(0x800C0005);

// Failures are raised as ComError. On Windows a server that cannot be reached fails a synchronous send with
// kServerUnreachable and completes an asynchronous one with a status of 12029 or its like. What is different under Wine
// stands in platform/Wine.h.
class HttpRequest {
public:
    static constexpr long kComplete = 4;

    // No request yet; everything but the test for it raises the object error. Copies are the same request.
    HttpRequest() = default;
    static HttpRequest Create();
    explicit operator bool() const { return request_ != nullptr; }
    bool operator==(const HttpRequest& other) const { return request_.Get() == other.request_.Get(); }

    // `handler`'s default member is called on each change of state, inside of calls to this class too.
    void SetReadyStateHandler(IDispatch* handler);
    // Lets go of the handler, which as a rule holds this request in turn, also where MSXML does not.
    void ClearReadyStateHandler() noexcept;
    // Ends a request whose answer nobody waits for any longer, without a call to the handler. To let go of one that is
    // under way is not enough: not every MSXML takes its connection down with it.
    void Abandon() noexcept;

    // Raises kInvalidUrl for an address that is none of HTTP with a host, before MSXML sees it.
    void Open(const wchar_t* method, const std::wstring& url, bool asynchronous);
    // With the method and the address alone, for a request that is waited for while the host works: MSXML's default is
    // asynchronous.
    void Open(const wchar_t* method, const std::wstring& url);
    void SetHeader(const wchar_t* name, const std::wstring& value);
    // May dispatch messages, so what is sent is a copy that nothing else can replace meanwhile.
    void Send();
    void Send(const std::wstring& body);

    long ReadyState() const;

    // The HTTP status, or the WinINet error number of a connection that failed; 0 when the server closed it early.
    long Status() const;
    // May be empty.
    std::wstring StatusText() const;
    // Empty when there is none.
    std::wstring ContentType() const;
    std::wstring ResponseText() const;
    // None when the implementation gives no bytes.
    ResponseBytes Bytes() const;
    // Null when the implementation offers no document; without a root when the answer is empty or no XML.
    msxml::Document ResponseXml() const;

private:
    IXMLHTTPRequest& Request() const;
    void OpenAs(const wchar_t* method, const std::wstring& url, const VARIANT& asynchronous);
    void SendBody(const VARIANT& body);

    Microsoft::WRL::ComPtr<IXMLHTTPRequest> request_;
    // Shared by all copies and by the relay that MSXML has; holds null while there is no handler.
    std::shared_ptr<Microsoft::WRL::ComPtr<IDispatch>> handler_;
};

// What makes the underlying requests; null puts MSXML's own back.
using HttpRequestFactory = std::function<Microsoft::WRL::ComPtr<IXMLHTTPRequest>()>;
void SetHttpRequestFactory(HttpRequestFactory factory);

}  // namespace platform
