#pragma once

#include <string>

namespace lejis_client {

// Sums up a ledger: what became of each incident in the end, and why. Returns the program's exit code, which is that of
// the runs as far as they have come. Raises a FileError.
int SumUpLedger(const std::wstring& ledger, bool json);

}  // namespace lejis_client
