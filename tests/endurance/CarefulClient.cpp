#include "endurance/CarefulClient.h"

#include "end_to_end/Client.h"
#include "support/ComCheck.h"
#include "support/Outcome.h"

#include <stdexcept>

using Microsoft::WRL::ComPtr;
using support::Bstr;

namespace endurance {
namespace {

// Far beyond any bad luck.
constexpr int kMostTries = 50;

// Every third version is a full incident.
constexpr int kFull = 3;

ComPtr<ILejisIncidentIndexCard> Incident(const std::wstring& id, Version version) {
    auto incident = end_to_end::NewIncident(id);
    if (!version) return incident;
    EXPECT_OK(incident->put_CaveatText(Bstr(L"Version " + std::to_wstring(*version) + L" of " + id)));
    if (*version % kFull == 0) end_to_end::Fill(incident.Get());
    return incident;
}

bool IsRefusal(const std::wstring& outcome) { return !outcome.starts_with(L"fatal: Internal error"); }

}  // namespace

CarefulClient::CarefulClient(const std::wstring& url) : service_(end_to_end::NewService(url)) {}

std::wstring CarefulClient::Try(const std::wstring& id, Version version) {
    ++exchanges_;
    const auto incident = Incident(id, version);
    if (!version) return support::OutcomeOf(service_->DeleteIncident(incident.Get()));
    ComPtr<ICollection> warnings;
    return support::OutcomeOf(service_->SubmitIncident(incident.Get(), warnings.GetAddressOf()));
}

std::wstring CarefulClient::TryUntilTold(const std::wstring& id, Version version, bool& isFirst) {
    for (int tries = 1; tries <= kMostTries; ++tries) {
        std::wstring outcome = Try(id, version);
        isFirst = tries == 1;
        if (!outcome.starts_with(L"transient: ")) return outcome;
        ++transient_;
    }
    throw std::runtime_error("The server answers nothing but transient errors.");
}

void CarefulClient::SendOnce(const std::wstring& id, Version version) {
    Entry& entry = ledger_[id];
    bool isFirst = true;
    const std::wstring outcome = TryUntilTold(id, version, isFirst);
    if (outcome == L"success") {
        entry = {version};
    } else if (isFirst && IsRefusal(outcome)) {
        ++refused_;
    } else {
        ++doubted_;
        entry.isInDoubt = true;
        entry.intended = version;
    }
}

void CarefulClient::Settle(const std::wstring& id) {
    const Entry& entry = ledger_[id];
    for (int tries = 1; entry.isInDoubt; ++tries) {
        if (tries > kMostTries) throw std::runtime_error("A doubt cannot be settled.");
        SendOnce(id, entry.intended);
    }
}

void CarefulClient::Send(const std::wstring& id, Version version) {
    // Two doubts about one incident would leave three ways for it to be.
    Settle(id);
    SendOnce(id, version);
}

void CarefulClient::SettleAll() {
    for (const auto& entry : ledger_) Settle(entry.first);
}

}  // namespace endurance
