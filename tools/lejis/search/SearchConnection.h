// A search service, with a sink for its events.
#pragma once

#include "library/Library.h"
#include "search/SearchSettings.h"
#include "search/SearchSink.h"

#include <ocidl.h>

namespace lejis_client {

class SearchConnection {
public:
    explicit SearchConnection(const SearchSettings& settings);
    // A search still under way is given up.
    ~SearchConnection();
    SearchConnection(const SearchConnection&) = delete;
    SearchConnection& operator=(const SearchConnection&) = delete;

    void Send(const SearchSettings& settings);
    // It comes from the message loop, if it does not come at once.
    const SearchOutcome& Outcome() const { return sink_->Outcome(); }

private:
    Microsoft::WRL::ComPtr<ILejisSearchWebService> service_;
    // The request of the search that was sent.
    Microsoft::WRL::ComPtr<ILejisSearchRequest> request_;
    Microsoft::WRL::ComPtr<SearchSink> sink_;
    Microsoft::WRL::ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

}  // namespace lejis_client
