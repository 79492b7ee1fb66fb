#include "search/SearchConnection.h"

namespace lejis_client {

using Microsoft::WRL::ComPtr;

namespace {

auto Controls(ILejisSearchRequest* request) { return Part(request, &ILejisSearchRequest::get_InquiryControls); }

void Exclude(ILejisSearchRequest* request, const std::wstring& ori) {
    const auto excluded = Part(Controls(request).Get(), &ILejisInquiryControls::get_ExcludedORIIDs);
    Check(excluded->Add(_variant_t(ori.c_str())));
}

}  // namespace

SearchConnection::SearchConnection(const SearchSettings& settings)
    : service_(Create<LejisSearchWebService, ILejisSearchWebService>()) {
    Check(service_->put_URL(_bstr_t(settings.url.c_str())));
    Check(service_->put_Username(_bstr_t(settings.user.c_str())));
    Check(service_->put_ValidateSchema(settings.validateSchema ? VARIANT_TRUE : VARIANT_FALSE));
    sink_.Attach(new SearchSink());
    ComPtr<IConnectionPointContainer> container;
    Check(service_.As(&container));
    Check(container->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), &point_));
    Check(point_->Advise(sink_.Get(), &cookie_));
}

SearchConnection::~SearchConnection() {
    point_->Unadvise(cookie_);
    // A service that waits and its request hold each other, which would keep the library in use. The same search
    // without an address replaces the waiting one and ends at once.
    if (Outcome().end != SearchEnd::None || !request_) return;
    if (FAILED(service_->put_URL(nullptr)) || FAILED(service_->put_ValidateSchema(VARIANT_FALSE))) return;
    service_->Search(request_.Get());
}

void SearchConnection::Send(const SearchSettings& settings) {
    request_ = Create<LejisSearchRequest, ILejisSearchRequest>();
    for (const SearchCriterion& put : settings.criteria) put(request_.Get());
    if (settings.most) Check(Controls(request_.Get())->put_MaxIncidents(*settings.most));
    for (const std::wstring& ori : settings.excludedOris) Exclude(request_.Get(), ori);
    Check(service_->Search(request_.Get()));
}

}  // namespace lejis_client
