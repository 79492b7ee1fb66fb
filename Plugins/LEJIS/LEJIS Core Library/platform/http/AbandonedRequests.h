// Requests that were abandoned before they were complete.
#pragma once

#include "platform/msxml/MsXml.h"

namespace platform {

// Wine's MSXML calls into a request while its connection still receives, even after the request was aborted and
// released. This function holds such a request, on the thread that it belongs to, until it is complete. A request that
// never completes is never released; it holds nothing of this library.
void HoldUntilComplete(const Microsoft::WRL::ComPtr<IXMLHTTPRequest>& request);

// Releases the held requests that have become complete.
void ReleaseCompleteRequests();

}  // namespace platform
