// Requests that were let go of before they were complete.
#pragma once

#include "platform/msxml/MsXml.h"

namespace platform {

// Wine's MSXML calls into a request whose connection still brings something, also when it was aborted and nobody holds
// it any more. So such a request is held here, on the thread that it belongs to, until it is complete. One that never
// completes is never released; it holds nothing of this library.
void HoldUntilComplete(const Microsoft::WRL::ComPtr<IXMLHTTPRequest>& request);

// Lets go of those that have become complete since.
void ReleaseCompleteRequests();

}  // namespace platform
