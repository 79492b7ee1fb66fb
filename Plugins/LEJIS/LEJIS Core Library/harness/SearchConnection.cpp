#include "harness/SearchConnection.h"

#include "harness/SearchSink.h"
#include "platform/ComError.h"

using platform::Check;

namespace lejis {

SearchConnection::SearchConnection(SearchOutcome& outcome)
    : service_(platform::Create<LejisSearchWebService>()), sink_(platform::Create<SearchSink>(outcome)) {
    Check(service_->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), events_.GetAddressOf()));
    Check(events_->Advise(sink_.Get(), &cookie_));
}

SearchConnection::~SearchConnection() { events_->Unadvise(cookie_); }

void SearchConnection::Search(const std::wstring& url, const std::wstring& userId, ILejisSearchRequest* request) const {
    service_->URL = url;
    service_->Username = userId;
    Check(service_->Search(request));
}

}  // namespace lejis
