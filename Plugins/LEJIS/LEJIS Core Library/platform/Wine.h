// What the library does under Wine alone. A way that is right for every MSXML is taken everywhere; this list holds the
// rest.
#pragma once

#include <optional>

namespace platform::wine {

// Whether this is Wine.
bool IsHere();

// Lets tests play Windows or Wine, until a call without a value ends that.
void Pretend(std::optional<bool> here);

// A connection calls into its request even after the request was aborted and released, so the library holds it.
inline bool CallsReleasedRequests() { return IsHere(); }

// An asynchronous request never completes when its connection is refused, so the library waits for a synchronous
// one.
inline bool NeverCompletesRefusedRequests() { return IsHere(); }

// `send` reports a server that cannot be reached as 800C0008, and an address without a host as 800C0004. Both numbers
// mean something else on Windows.
inline bool NamesFailuresOfSendOtherwise() { return IsHere(); }

// `responseXML` fails with E_FAIL for an unknown encoding, where Windows gives an empty document.
inline bool FailsForUnknownEncodings() { return IsHere(); }

// A parse validates nothing, so the library validates after it.
inline bool ParsesWithoutValidating() { return IsHere(); }

}  // namespace platform::wine
