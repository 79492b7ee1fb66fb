#include "platform/http/AbandonedRequests.h"

#include "platform/http/HttpRequest.h"

#include <vector>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

using Requests = std::vector<ComPtr<IXMLHTTPRequest>>;

// Never destroyed: a thread may end after its apartment has, when nothing may be released any more.
Requests& Abandoned() {
    static thread_local Requests* const requests = new Requests;
    return *requests;
}

bool IsComplete(const ComPtr<IXMLHTTPRequest>& request) {
    long state = 0;
    return SUCCEEDED(request->get_readyState(&state)) && state == HttpRequest::kComplete;
}

}  // namespace

void HoldUntilComplete(const ComPtr<IXMLHTTPRequest>& request) {
    if (!IsComplete(request)) Abandoned().push_back(request);
}

void ReleaseCompleteRequests() { std::erase_if(Abandoned(), IsComplete); }

}  // namespace platform
