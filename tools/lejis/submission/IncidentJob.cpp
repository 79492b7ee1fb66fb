#include "submission/IncidentJob.h"

#include "files/FileContent.h"
#include "files/FileError.h"
#include "files/FileList.h"
#include "files/IncidentFile.h"
#include "files/StandardInput.h"
#include "library/LibraryError.h"
#include "library/Members.h"
#include "platform/ComError.h"
#include "text/Digest.h"
#include "text/UtcTime.h"
#include "text/WindowsText.h"

#include <comdef.h>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;

Identity IdentityOf(ILejisIncidentIndexCard* incident) {
    return {TextOf(incident, &ILejisIncidentIndexCard::get_OrganizationORI),
            TextOf(incident, &ILejisIncidentIndexCard::get_ActivityID)};
}

// What is none of the errors that the operation itself tells of: whether it had been sent is not known.
Outcome Unexpected(HRESULT number, const std::wstring& text) {
    Outcome outcome;
    outcome.result = Result::Unknown;
    outcome.errors = {text};
    outcome.canTryAgain = true;
    outcome.number = number;
    return outcome;
}

}  // namespace

IncidentJob::IncidentJob(const JobSettings& settings, const LedgerIndex& done) : settings_(settings), done_(done) {}

Attempt IncidentJob::Do(const Task& task) {
    Attempt attempt;
    attempt.start = UtcNow();
    const ULONGLONG start = GetTickCount64();
    try {
        Read(task, attempt);
    } catch (const FileError& error) {
        attempt.outcome = Unreadable(error.reason);
    } catch (const LibraryError& error) {
        attempt.outcome = Unexpected(error.number, error.description);
    } catch (const platform::ComError& error) {
        attempt.outcome = Unexpected(error.Number(), error.Description());
    } catch (const _com_error& error) {
        attempt.outcome = Unexpected(error.Error(), L"Unexpected error " + Hexadecimal(error.Error()));
    } catch (const std::bad_alloc&) {
        attempt.outcome = Unexpected(E_OUTOFMEMORY, L"There is not enough memory.");
    }
    attempt.milliseconds = GetTickCount64() - start;
    return attempt;
}

void IncidentJob::Read(const Task& task, Attempt& attempt) {
    if (task.path.empty()) return Run(NamedIncident(settings_.named).Get(), attempt);
    const std::string content = task.path == kStandardInput ? StandardInput() : ReadFileContent(task.path);
    attempt.digest = Digest(content);
    if (const auto identity = done_.Done(task.path, attempt.digest)) {
        attempt.identity = identity;
        attempt.outcome.result = Result::LeftOut;
        return;
    }
    const IncidentFile file = ReadIncident(content);
    Run(file.card.Get(), attempt);
    if (!settings_.operation->tellsLosses) return;
    std::vector<std::wstring>& warnings = attempt.outcome.warnings;
    warnings.insert(warnings.begin(), file.losses.begin(), file.losses.end());
}

void IncidentJob::Run(ILejisIncidentIndexCard* incident, Attempt& attempt) {
    attempt.identity = IdentityOf(incident);
    if (!operation_) operation_ = settings_.operation->make(settings_.service);
    attempt.outcome = operation_->Run(incident);
}

}  // namespace lejis_client
