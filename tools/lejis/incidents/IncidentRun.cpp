#include "incidents/IncidentRun.h"

#include "console/Console.h"
#include "console/ExitCode.h"
#include "files/FileError.h"
#include "files/FileList.h"
#include "report/JsonReport.h"
#include "report/TextReport.h"
#include "submission/Backlog.h"
#include "submission/IncidentJob.h"
#include "submission/Ledger.h"
#include "submission/ResultWords.h"
#include "text/Duration.h"

namespace lejis_client {
namespace {

std::deque<Task> TasksOf(const IncidentSettings& settings) {
    const IncidentName& named = settings.job.named;
    if (named.IsGiven()) return {{*named.ori + L" " + *named.number, {}}};
    std::deque<Task> tasks;
    for (NamedFile& file : ListFiles(settings.files, settings.recurse)) {
        tasks.push_back({std::move(file.name), std::move(file.path)});
    }
    if (tasks.empty()) throw FileError{L"The list names no file."};
    return tasks;
}

std::vector<std::wstring> NamesOf(const std::deque<Task>& tasks) {
    std::vector<std::wstring> names;
    for (const Task& task : tasks) names.push_back(task.name);
    return names;
}

std::unique_ptr<Report> MakeReport(const IncidentSettings& settings, bool json,
                                   const std::vector<std::wstring>& names) {
    if (json) return std::make_unique<JsonReport>(*settings.job.operation, names.size(), settings.quiet);
    return std::make_unique<TextReport>(*settings.job.operation, names, settings.quiet);
}

LedgerEntry EntryOf(const JobSettings& job, const Task& task, const Attempt& attempt) {
    LedgerEntry entry;
    entry.command = job.operation->name;
    entry.url = job.service.url;
    entry.file = task.path.empty() ? task.name : task.path;
    entry.digest = attempt.digest;
    entry.identity = attempt.identity.value_or(Identity{});
    entry.outcome = WordOf(*job.operation, attempt.outcome.result);
    entry.canTryAgain = attempt.outcome.canTryAgain;
    entry.number = attempt.outcome.number;
    entry.errors = attempt.outcome.errors;
    entry.warnings = attempt.outcome.warnings;
    entry.start = attempt.start;
    entry.seconds = Seconds(attempt.milliseconds);
    return entry;
}

void TellInterruption() { Console::Errors().Write(L"\nInterrupted. What was under way may have reached LEJIS.\n"); }

// One run over all incidents.
class IncidentRun final : public BacklogListener {
public:
    IncidentRun(const IncidentSettings& settings, bool json) : IncidentRun(settings, json, TasksOf(settings)) {}

    int Run() {
        const ULONGLONG start = GetTickCount64();
        const Interruption interruption(TellInterruption, INFINITE);
        WorkOff(interruption);
        Ending ending;
        ending.left = backlog_.Left();
        ending.isInterrupted = interruption.HasHappened();
        ending.failuresInARow = backlog_.FailuresInARow();
        ending.fault = Fault();
        ending.milliseconds = GetTickCount64() - start;
        const int exitCode = report_->Finish(ending);
        // Threads that still wait for an answer would keep the program, or fall with the library under them.
        if (backlog_.HasWorkersAtWork()) TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
        return exitCode;
    }

    void Begun(const Task& task) override { report_->Begin(task.name); }

    void Tried(const Task& task, const Attempt& attempt) override {
        if (!ledger_ || attempt.outcome.result == Result::LeftOut) return;
        try {
            ledger_->Append(EntryOf(job_, task, attempt));
        } catch (const FileError& error) {
            // An outcome that cannot be recorded ends the run: no other incident may be sent unrecorded.
            fault_ = error.reason;
            backlog_.Stop();
        }
    }

    void Retried(const Task& task, const Attempt& attempt) override {
        if (isVerbose_) report_->Retry(task.name, task.attempts, attempt);
    }

    void Ended(const Task& task, const Attempt& attempt) override { report_->End(task.name, attempt); }

private:
    IncidentRun(const IncidentSettings& settings, bool json, const std::deque<Task>& tasks)
        : job_(settings.job),
          isVerbose_(settings.verbose),
          done_(job_.operation->name, job_.service.url, job_.operation->success),
          report_(MakeReport(settings, json, NamesOf(tasks))),
          backlog_(
              settings.backlog, [&] { return std::make_unique<IncidentJob>(settings.job, done_); }, tasks, *this) {
        if (!settings.ledger) return;
        ledger_ = std::make_unique<Ledger>(*settings.ledger);
        ReadLedger(*settings.ledger, [this](const LedgerEntry& entry) { done_.Add(entry); });
    }

    // Whatever ends the work, the run is summed up.
    void WorkOff(const Interruption& interruption) {
        try {
            backlog_.Run(interruption);
        } catch (const std::bad_alloc&) {
            fault_ = L"There is not enough memory.";
        }
    }

    std::wstring Fault() const {
        if (!fault_.empty() || !backlog_.HasTooManyAbandoned()) return fault_;
        return L"Too many incidents got no answer in time: each keeps a thread of this program waiting.";
    }

    const JobSettings& job_;
    bool isVerbose_;
    LedgerIndex done_;
    std::unique_ptr<Ledger> ledger_;
    // Why no more is begun.
    std::wstring fault_;
    std::unique_ptr<Report> report_;
    Backlog backlog_;
};

}  // namespace

int RunOnIncidents(const IncidentSettings& settings, bool json) { return IncidentRun(settings, json).Run(); }

}  // namespace lejis_client
