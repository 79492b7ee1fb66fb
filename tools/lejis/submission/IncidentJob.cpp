#include "submission/IncidentJob.h"

#include "files/FileContent.h"
#include "files/FileError.h"
#include "files/FileList.h"
#include "files/IncidentFile.h"
#include "files/StandardInput.h"
#include "library/LibraryError.h"
#include "library/Members.h"
#include "library/NotRegistered.h"
#include "platform/ComError.h"
#include "submission/Advice.h"
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

// Describes the exception that is being handled.
LibraryError CaughtFailure() {
    try {
        throw;
    } catch (const LibraryError& error) {
        return error;
    } catch (const NotRegistered&) {
        return {REGDB_E_CLASSNOTREG, HowToRegister() + L"."};
    } catch (const platform::ComError& error) {
        return {error.Number(), error.Description()};
    } catch (const _com_error& error) {
        return {error.Error(), L"Unexpected error " + Hexadecimal(error.Error())};
    } catch (const std::bad_alloc&) {
        return {E_OUTOFMEMORY, L"There is not enough memory."};
    } catch (...) {
        return {E_UNEXPECTED, L"Unexpected error"};
    }
}

}  // namespace

IncidentJob::IncidentJob(const JobSettings& settings, const LedgerIndex& done) : settings_(settings), done_(done) {}

Attempt IncidentJob::Do(const Task& task, AttemptWatch& watch) {
    Attempt attempt = NotSentYet();
    const ULONGLONG start = GetTickCount64();
    try {
        watch.Learn(attempt);
        ReadAndRun(task, attempt, watch);
    } catch (const FileError& error) {
        attempt.outcome = Unreadable(error.reason);
    } catch (...) {
        // Until the service is called, the outcome is that of an incident that was not sent.
        const LibraryError failure = CaughtFailure();
        Outcome& outcome = attempt.outcome;
        outcome.errors = {failure.description};
        outcome.number = failure.number;
        outcome.canTryAgain = outcome.result == Result::Unknown || failure.number != REGDB_E_CLASSNOTREG;
        outcome.advice = AdviceOn(*settings_.operation, outcome);
    }
    attempt.milliseconds = GetTickCount64() - start;
    return attempt;
}

void IncidentJob::ReadAndRun(const Task& task, Attempt& attempt, AttemptWatch& watch) {
    if (task.path.empty()) return Run(NamedIncident(settings_.named).Get(), attempt, watch);
    const std::string content = task.path == kStandardInput ? StandardInput() : ReadFileContent(task.path);
    attempt.digest = Digest(content);
    if (const auto identity = done_.Done(task.path, attempt.digest)) {
        attempt.identity = identity;
        attempt.outcome = {};
        attempt.outcome.result = Result::LeftOut;
        return;
    }
    const IncidentFile file = settings_.operation->tellsLosses ? ReadIncident(content) : ReadIdentifiers(content);
    Run(file.card.Get(), attempt, watch);
    if (!settings_.operation->tellsLosses) return;
    std::vector<std::wstring>& warnings = attempt.outcome.warnings;
    warnings.insert(warnings.begin(), file.losses.begin(), file.losses.end());
}

void IncidentJob::Run(ILejisIncidentIndexCard* incident, Attempt& attempt, AttemptWatch& watch) {
    attempt.identity = IdentityOf(incident);
    watch.Learn(attempt);
    if (!operation_) operation_ = settings_.operation->make(settings_.service);
    const auto beforeSending = [&] {
        SetResult(attempt.outcome, Result::Unknown);
        watch.BeginCall(attempt);
    };
    attempt.outcome = operation_->Run(incident, beforeSending);
    attempt.outcome.advice = AdviceOn(*settings_.operation, attempt.outcome);
}

Attempt IncidentJob::NotSentYet() const {
    Attempt attempt;
    attempt.start = UtcNow();
    SetResult(attempt.outcome, Result::NotSent);
    return attempt;
}

void IncidentJob::SetResult(Outcome& outcome, Result result) const {
    outcome.result = result;
    outcome.canTryAgain = true;
    outcome.advice = AdviceOn(*settings_.operation, outcome);
}

}  // namespace lejis_client
