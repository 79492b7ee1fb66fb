#include "CompletedSearch.h"

#include "AnsweredRequest.h"
#include "EventCounter.h"
#include "platform/http/HttpRequest.h"

#include <stdexcept>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace benchmarks {

CompletedSearch::CompletedSearch(std::string answer)
    : service_(platform::Create<lejis::LejisSearchWebService>()),
      request_(platform::Create<lejis::LejisSearchRequest>()),
      counter_(platform::Create<EventCounter>()),
      answer_(std::make_shared<const std::string>(std::move(answer))) {
    Check(service_->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), events_.GetAddressOf()));
    Check(events_->Advise(counter_.Get(), &cookie_));
    service_->URL = L"http://lejis-interface/search";
}

CompletedSearch::~CompletedSearch() {
    events_->Unadvise(cookie_);
    platform::SetHttpRequestFactory(nullptr);
}

void CompletedSearch::Complete() {
    platform::SetHttpRequestFactory(
        [this] { return ComPtr<IXMLHTTPRequest>(platform::Create<AnsweredRequest>(answer_).Get()); });
    const int before = counter_->completed;
    Check(service_->Search(request_.Get()));
    Check(service_->Run());
    if (counter_->completed != before + 1) throw std::runtime_error("the search did not complete");
}

}  // namespace benchmarks
