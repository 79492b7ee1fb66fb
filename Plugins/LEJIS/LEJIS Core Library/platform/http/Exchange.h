#pragma once

#include "platform/http/HttpRequest.h"
#include "platform/msxml/MsXml.h"

#include <optional>
#include <string>

namespace platform {

// A request that has ended, with its answer. Each part is asked of the request when it is first needed, and once: some
// MSXMLs parse the document anew at every call. Those who judge an answer see an exchange and never the live request.
class Exchange {
public:
    Exchange(const HttpRequest& request);
    ~Exchange();
    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    // The answer, with the meanings that HttpRequest gives it.
    long Status() const;
    const std::wstring& StatusText() const;
    const std::wstring& ContentType() const;
    const std::wstring& ResponseText() const;
    const msxml::Document& ResponseXml() const;
    // Not kept, for they may be many: ask once.
    ResponseBytes Bytes() const { return request_.Bytes(); }

private:
    const HttpRequest request_;
    mutable std::optional<long> status_;
    mutable std::optional<std::wstring> statusText_;
    mutable std::optional<std::wstring> contentType_;
    mutable std::optional<std::wstring> responseText_;
    mutable std::optional<msxml::Document> responseXml_;
};

}  // namespace platform
