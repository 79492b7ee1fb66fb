// What a ledger says has been done already.
#pragma once

#include "submission/LedgerEntry.h"

#include <map>
#include <set>

namespace lejis_client {

class LedgerIndex {
public:
    // Indexes the successes of this command at this address; `success` is the command's word for a success.
    LedgerIndex(std::wstring command, std::wstring url, std::wstring success);

    // Entries in the order of the ledger.
    void Add(const LedgerEntry& entry);

    // The identity of the incident, when the last entry for this file is a success with this content and no later entry
    // changes the same incident; nothing otherwise.
    std::optional<Identity> Done(const std::wstring& file, const std::string& digest) const;

private:
    struct Success {
        std::string digest;
        Identity identity;
    };

    void Forget(const std::wstring& file);
    // Forgets what was done with the incident, except from files with this digest, which hold the same content.
    void ForgetIncident(const Identity& identity, const std::string& exceptDigest);

    std::wstring command_;
    std::wstring url_;
    std::wstring success_;
    std::map<std::wstring, Success> successes_;
    std::map<Identity, std::set<std::wstring>> files_;
};

}  // namespace lejis_client
