#pragma once

#include "platform/com/ComObject.h"

#include <TVLejisCore.h>

namespace lejis {

// Runs one search and waits for its outcome while the host's messages go on. A search may be started inside of the wait
// for another; each returns its own outcome.
class TestSearch final : public platform::ComObject<::TestSearch, ITestSearch> {
public:
    STDMETHODIMP Search(BSTR sUserId, ILejisSearchRequest* request, ICollection** result) override;
};

}  // namespace lejis
