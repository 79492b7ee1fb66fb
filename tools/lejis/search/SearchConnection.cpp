#include "search/SearchConnection.h"

namespace lejis_client {

using Microsoft::WRL::ComPtr;

SearchConnection::SearchConnection(const CommandLine& commandLine)
    : service_(Create<LejisSearchWebService, ILejisSearchWebService>()) {
    Check(service_->put_URL(_bstr_t(commandLine.url->c_str())));
    Check(service_->put_Username(_bstr_t(commandLine.user->c_str())));
    Check(service_->put_ValidateSchema(commandLine.validateSchema ? VARIANT_TRUE : VARIANT_FALSE));
    sink_.Attach(new SearchSink());
    ComPtr<IConnectionPointContainer> container;
    Check(service_.As(&container));
    Check(container->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), &point_));
    Check(point_->Advise(sink_.Get(), &cookie_));
}

SearchConnection::~SearchConnection() {
    point_->Unadvise(cookie_);
    // A service that waits for its answer and the request that would bring it hold each other, and so would the library
    // stay in use. The same search at no address takes the place of the one under way and is over at once.
    if (Outcome().end != SearchEnd::None || !request_) return;
    if (FAILED(service_->put_URL(nullptr)) || FAILED(service_->put_ValidateSchema(VARIANT_FALSE))) return;
    service_->Search(request_.Get());
}

void SearchConnection::Send(const SearchValues& values) {
    request_ = Create<LejisSearchRequest, ILejisSearchRequest>();
    for (const SearchValue& value : values) value.option->put(request_.Get(), value.value);
    Check(service_->Search(request_.Get()));
}

}  // namespace lejis_client
