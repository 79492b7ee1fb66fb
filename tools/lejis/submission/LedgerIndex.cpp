#include "submission/LedgerIndex.h"

namespace lejis_client {

LedgerIndex::LedgerIndex(std::wstring command, std::wstring url, std::wstring success)
    : command_(std::move(command)), url_(std::move(url)), success_(std::move(success)) {}

void LedgerIndex::Add(const LedgerEntry& entry) {
    // What a test system holds says nothing of another one.
    if (entry.url != url_) return;
    const bool isSame = entry.command == command_;
    if (isSame) Forget(entry.file);
    // What was submitted may have been withdrawn or replaced since, from whatever file.
    ForgetIncident(entry.identity, isSame ? entry.digest : std::string());
    if (!isSame || entry.outcome != success_) return;
    successes_[entry.file] = {entry.digest, entry.identity};
    files_[entry.identity].insert(entry.file);
}

void LedgerIndex::ForgetIncident(const Identity& identity, const std::string& exceptDigest) {
    const auto found = files_.find(identity);
    if (found == files_.end()) return;
    std::erase_if(found->second, [&](const std::wstring& file) {
        if (successes_.at(file).digest == exceptDigest) return false;
        successes_.erase(file);
        return true;
    });
}

void LedgerIndex::Forget(const std::wstring& file) {
    const auto found = successes_.find(file);
    if (found == successes_.end()) return;
    files_[found->second.identity].erase(file);
    successes_.erase(found);
}

std::optional<Identity> LedgerIndex::Done(const std::wstring& file, const std::string& digest) const {
    const auto found = successes_.find(file);
    if (found == successes_.end() || found->second.digest != digest) return std::nullopt;
    return found->second.identity;
}

}  // namespace lejis_client
