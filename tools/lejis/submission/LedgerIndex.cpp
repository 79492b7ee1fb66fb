#include "submission/LedgerIndex.h"

namespace lejis_client {

LedgerIndex::LedgerIndex(std::wstring command, std::wstring url, std::wstring success)
    : command_(std::move(command)), url_(std::move(url)), success_(std::move(success)) {}

void LedgerIndex::Add(const LedgerEntry& entry) {
    // What a test system holds says nothing of another one.
    if (entry.url != url_) return;
    if (entry.command == command_) {
        Forget(entry.file);
        if (entry.outcome != success_) return;
        successes_[entry.file] = {entry.digest, entry.identity};
        files_[entry.identity].insert(entry.file);
    } else if (const auto found = files_.find(entry.identity); found != files_.end()) {
        // What was submitted may have been withdrawn, and the other way round.
        for (const std::wstring& file : found->second) successes_.erase(file);
        files_.erase(found);
    }
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
