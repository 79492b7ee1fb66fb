// What is done under Wine alone. A way that is right for every MSXML is taken everywhere; this list holds the rest.
#pragma once

#include <optional>

namespace platform::wine {

// Whether this is Wine.
bool IsHere();

// For tests of what is done on Windows: takes Wine as here, or as not here, until it is called with none.
void Pretend(std::optional<bool> here);

// A connection calls into its request even after that was aborted and released, so such a request is held.
inline bool CallsReleasedRequests() { return IsHere(); }

// An asynchronous request never completes when its connection is refused, so one that is waited for is synchronous.
inline bool NeverCompletesRefusedRequests() { return IsHere(); }

// `send` reports a server that cannot be reached as 800C0008, and an address without a host as 800C0004. Both numbers
// mean something else on Windows.
inline bool NamesFailuresOfSendOtherwise() { return IsHere(); }

// `responseXML` fails with E_FAIL for an encoding that is not known, and gives no empty document.
inline bool FailsForUnknownEncodings() { return IsHere(); }

// A parse validates nothing, so what was parsed is validated after it.
inline bool ParsesWithoutValidating() { return IsHere(); }

}  // namespace platform::wine
