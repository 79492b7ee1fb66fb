// What a ledger says has been done already.
#pragma once

#include "submission/LedgerEntry.h"

#include <map>
#include <set>

namespace lejis_client {

class LedgerIndex {
public:
    // Of what this command has done at this address, which it calls so.
    LedgerIndex(std::wstring command, std::wstring url, std::wstring success);

    // Entries in the order of the ledger.
    void Add(const LedgerEntry& entry);

    // The incident in a file with this content, where the last that was done with the file was done with this content,
    // and where nothing else was done with the incident since.
    std::optional<Identity> Done(const std::wstring& file, const std::string& digest) const;

private:
    struct Success {
        std::string digest;
        Identity identity;
    };

    void Forget(const std::wstring& file);
    // Other files with the same content stand for the same as before.
    void ForgetIncident(const Identity& identity, const std::string& exceptDigest);

    std::wstring command_;
    std::wstring url_;
    std::wstring success_;
    std::map<std::wstring, Success> successes_;
    std::map<Identity, std::set<std::wstring>> files_;
};

}  // namespace lejis_client
