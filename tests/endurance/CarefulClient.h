// A client that loses nothing, whatever the server answers.
#pragma once

#include "endurance/Ledger.h"

#include <TVLejisCore.h>
#include <wrl/client.h>

namespace endurance {

// Its rules:
// - Success: the index is as intended.
// - A transient error: the index may be as before or as intended. The client tries again until it is told otherwise;
//   submissions and deletions may be repeated, for they are known by agency and number.
// - A fatal error in the server's words, at the first try: the server has refused, the index is as before.
// - A fatal error after a transient one, or one of the library's own ("Internal error ..."), which was an answer that
//   nobody understands: the incident is in doubt, either as before or as intended. SettleAll sends the same once more,
//   as a person would after looking at the incident.
class CarefulClient {
public:
    explicit CarefulClient(const std::wstring& url);

    // Submits this version of the incident, or withdraws the incident when no version is given.
    void Send(const std::wstring& id, Version version);

    // Sends once more what is in doubt, until nothing is.
    void SettleAll();

    const Ledger& Believed() const { return ledger_; }
    int Exchanges() const { return exchanges_; }
    int Transient() const { return transient_; }
    int Refused() const { return refused_; }
    int Doubted() const { return doubted_; }

private:
    void SendOnce(const std::wstring& id, Version version);
    void Settle(const std::wstring& id);
    std::wstring Try(const std::wstring& id, Version version);
    std::wstring TryUntilTold(const std::wstring& id, Version version, bool& isFirst);

    Microsoft::WRL::ComPtr<ILejisSubmissionWebService> service_;
    Ledger ledger_;
    int exchanges_ = 0;
    int transient_ = 0;
    int refused_ = 0;
    int doubted_ = 0;
};

}  // namespace endurance
