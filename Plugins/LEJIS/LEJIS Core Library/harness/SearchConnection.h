#pragma once

#include "services/LejisSearchWebService.h"

#include <wrl/client.h>

#include <string>

namespace lejis {

class SearchOutcome;
class SearchSink;

// A search service and a sink that hands its events to the outcome of the search, parted again at the end.
class SearchConnection {
public:
    explicit SearchConnection(SearchOutcome& outcome);
    ~SearchConnection();
    SearchConnection(const SearchConnection&) = delete;
    SearchConnection& operator=(const SearchConnection&) = delete;

    void Search(const std::wstring& url, const std::wstring& userId, ILejisSearchRequest* request) const;

private:
    Microsoft::WRL::ComPtr<LejisSearchWebService> service_;
    Microsoft::WRL::ComPtr<SearchSink> sink_;
    Microsoft::WRL::ComPtr<IConnectionPoint> events_;
    DWORD cookie_ = 0;
};

}  // namespace lejis
