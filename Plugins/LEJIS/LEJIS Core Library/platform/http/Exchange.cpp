#include "platform/http/Exchange.h"

namespace platform {
namespace {

template <typename Part>
const Part& Once(std::optional<Part>& part, const HttpRequest& request, Part (HttpRequest::*get)() const) {
    if (!part) part = (request.*get)();
    return *part;
}

}  // namespace

Exchange::Exchange(const HttpRequest& request) : request_(request) {}

Exchange::~Exchange() = default;

long Exchange::Status() const { return Once(status_, request_, &HttpRequest::Status); }

const std::wstring& Exchange::StatusText() const { return Once(statusText_, request_, &HttpRequest::StatusText); }

const std::wstring& Exchange::ContentType() const { return Once(contentType_, request_, &HttpRequest::ContentType); }

const std::wstring& Exchange::ResponseText() const { return Once(responseText_, request_, &HttpRequest::ResponseText); }

const msxml::Document& Exchange::ResponseXml() const { return Once(responseXml_, request_, &HttpRequest::ResponseXml); }

}  // namespace platform
