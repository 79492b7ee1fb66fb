// One HTTP exchange through MSXML. Nothing else in the library knows how implementations of MSXML's request differ.
#pragma once

#include "platform/msxml/MsXml.h"

#include <comutil.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace platform {

// The bytes of an answer, read in the array that the request gives.
class ResponseBytes {
public:
    // Takes over `body`. A value other than an array of bytes has no bytes.
    explicit ResponseBytes(VARIANT& body);
    ~ResponseBytes();
    ResponseBytes(const ResponseBytes&) = delete;
    ResponseBytes& operator=(const ResponseBytes&) = delete;

    explicit operator bool() const { return bytes_.data() != nullptr; }
    std::string_view View() const { return bytes_; }

private:
    _variant_t body_;
    std::string_view bytes_;
};

// The two failures of a send that callers tell apart, under one number each for all implementations.
inline constexpr HRESULT kInvalidUrl = MK_E_SYNTAX;  // 0x800401E4
inline constexpr HRESULT kServerUnreachable = static_cast<HRESULT>(0x800C0005);

// Failures are thrown as ComError. On Windows a server that cannot be reached fails a synchronous send with
// kServerUnreachable, and completes an asynchronous one with a status such as 12029. platform/Wine.h lists what is
// different under Wine.
class HttpRequest {
public:
    static constexpr long kComplete = 4;

    // Without a request: every member but the test for one throws the object error. Copies share one request.
    HttpRequest() = default;
    static HttpRequest Create();
    explicit operator bool() const { return request_ != nullptr; }
    bool operator==(const HttpRequest& other) const { return request_.Get() == other.request_.Get(); }

    // MSXML calls the default member of `handler` on each change of state, also inside of calls to this class.
    void SetReadyStateHandler(IDispatch* handler);
    // Releases the handler, which as a rule holds this request in turn, even where MSXML keeps it.
    void ClearReadyStateHandler() noexcept;
    // Ends a request whose answer nobody waits for any longer, without a call to the handler. A release alone is not
    // enough: not every MSXML closes the connection of a request that it releases.
    void Abandon() noexcept;

    // Throws kInvalidUrl for any address but one of HTTP or HTTPS with a host, before MSXML sees it.
    void Open(const wchar_t* method, const std::wstring& url, bool asynchronous);
    // Passes the method and the address alone, for a request that is waited for while the host works: MSXML's default
    // is asynchronous.
    void Open(const wchar_t* method, const std::wstring& url);
    void SetHeader(const wchar_t* name, const std::wstring& value);
    // A send may dispatch messages. It sends a copy, which nothing can replace meanwhile.
    void Send();
    void Send(const std::wstring& body);

    long ReadyState() const;

    // The HTTP status, or the WinINet error number of a connection that failed; 0 when the server closed it early.
    long Status() const;
    // May be empty.
    std::wstring StatusText() const;
    // Empty when the answer has no such header.
    std::wstring ContentType() const;
    std::wstring ResponseText() const;
    // The bytes of the answer; empty when the implementation gives none.
    ResponseBytes Bytes() const;
    // Null when the implementation offers no document; without a root when the answer is empty or not XML.
    msxml::Document ResponseXml() const;

private:
    IXMLHTTPRequest& Request() const;
    void OpenAs(const wchar_t* method, const std::wstring& url, const VARIANT& asynchronous);
    void SendBody(const VARIANT& body);

    Microsoft::WRL::ComPtr<IXMLHTTPRequest> request_;
    // All copies share this with the relay that MSXML has. It holds null while there is no handler.
    std::shared_ptr<Microsoft::WRL::ComPtr<IDispatch>> handler_;
};

// Makes the underlying requests in place of MSXML; null brings MSXML back.
using HttpRequestFactory = std::function<Microsoft::WRL::ComPtr<IXMLHTTPRequest>()>;
void SetHttpRequestFactory(HttpRequestFactory factory);

// Returns when the request is complete. Until then it yields to the host once after each look at the request, which may
// become another one meanwhile. There is no time limit: the way out of a wait is a yield operation that throws.
void WaitUntilComplete(const HttpRequest& request);

}  // namespace platform
