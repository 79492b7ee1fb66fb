// A text file in which a run writes down what became of each incident, as soon as it is known, and in which a later one
// reads it. One line an entry; whatever ends the program, no more than the last line can be cut short.
#pragma once

#include "submission/LedgerEntry.h"

#include <windows.h>

#include <functional>

namespace lejis_client {

class Ledger {
public:
    // Makes the file when it does not exist. Throws FileError, also when another run writes to the file.
    explicit Ledger(const std::wstring& path);
    ~Ledger();
    Ledger(const Ledger&) = delete;
    Ledger& operator=(const Ledger&) = delete;

    // On disk when it returns. Raises a FileError.
    void Append(const LedgerEntry& entry);

private:
    void Write(const std::string& line);

    std::wstring path_;
    HANDLE file_;
};

// Hands out the entries of a ledger in their order; returns how many lines are no entries. Raises a FileError.
std::size_t ReadLedger(const std::wstring& path, const std::function<void(const LedgerEntry&)>& take);

}  // namespace lejis_client
