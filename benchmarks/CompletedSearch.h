#pragma once

#include "services/LejisSearchWebService.h"

#include <memory>
#include <string>

namespace benchmarks {

class EventCounter;

// A search whose request is complete as soon as it is sent.
class CompletedSearch {
public:
    explicit CompletedSearch(std::string answer);
    ~CompletedSearch();
    CompletedSearch(const CompletedSearch&) = delete;
    CompletedSearch& operator=(const CompletedSearch&) = delete;

    // Searches, and takes the answer up to the event SearchCompleted; the fixed delay before is not waited for. Raises
    // when that event does not come.
    void Complete();

private:
    platform::Ref<lejis::LejisSearchWebService> service_;
    platform::Ref<lejis::LejisSearchRequest> request_;
    Microsoft::WRL::ComPtr<EventCounter> counter_;
    Microsoft::WRL::ComPtr<IConnectionPoint> events_;
    const std::shared_ptr<const std::string> answer_;
    DWORD cookie_ = 0;
};

}  // namespace benchmarks
