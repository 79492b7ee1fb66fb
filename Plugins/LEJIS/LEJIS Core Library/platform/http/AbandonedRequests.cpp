#include "platform/http/AbandonedRequests.h"

#include "platform/thread/ThreadState.h"

#include <ocidl.h>

#include <algorithm>
#include <vector>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

bool IsComplete(IXMLHTTPRequest* request) {
    long state = 0;
    return SUCCEEDED(request->get_readyState(&state)) && state == READYSTATE_COMPLETE;
}

class AbandonedRequests final : public thread::ThreadPart {
public:
    void Hold(const ComPtr<IXMLHTTPRequest>& request) {
        requests_.push_back(request.Get());
        request->AddRef();
    }

    // Releases the complete requests. The others stay, whatever ends.
    void Release() noexcept override {
        for (auto complete = FirstComplete(); complete != requests_.end(); complete = FirstComplete()) {
            IXMLHTTPRequest* const request = *complete;
            requests_.erase(complete);
            request->Release();
        }
    }

private:
    std::vector<IXMLHTTPRequest*>::iterator FirstComplete() { return std::ranges::find_if(requests_, IsComplete); }

    // Release alone releases them: a ComPtr would call COM when the thread ends.
    std::vector<IXMLHTTPRequest*> requests_;
};

}  // namespace

void HoldUntilComplete(const ComPtr<IXMLHTTPRequest>& request) {
    if (!IsComplete(request.Get())) thread::ThisThreads<AbandonedRequests>().Hold(request);
}

void ReleaseCompleteRequests() { thread::ThisThreads<AbandonedRequests>().Release(); }

}  // namespace platform
