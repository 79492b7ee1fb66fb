#include "incidents/IncidentRun.h"

#include "commandline/LibraryForUrl.h"
#include "console/Console.h"
#include "console/ExitCode.h"
#include "files/FileError.h"
#include "files/FileList.h"
#include "report/Report.h"
#include "submission/Backlog.h"
#include "submission/IncidentJob.h"
#include "submission/Ledger.h"
#include "submission/ResultWords.h"

namespace lejis_client {
namespace {

constexpr double kSecond = 1000;

std::deque<Task> TasksOf(const CommandLine& commandLine) {
    if (commandLine.NamesIncident()) return {{*commandLine.ori + L" " + *commandLine.id, {}}};
    std::deque<Task> tasks;
    for (NamedFile& file : ListFiles(commandLine.files, commandLine.recurse)) {
        tasks.push_back({std::move(file.name), std::move(file.path)});
    }
    return tasks;
}

std::vector<std::wstring> NamesOf(const std::deque<Task>& tasks) {
    std::vector<std::wstring> names;
    for (const Task& task : tasks) names.push_back(task.name);
    return names;
}

LedgerEntry EntryOf(const Command& command, const std::wstring& url, const Task& task, const Attempt& attempt) {
    LedgerEntry entry;
    entry.command = command.name;
    entry.url = url;
    entry.file = task.path.empty() ? task.name : task.path;
    entry.digest = attempt.digest;
    entry.identity = attempt.identity.value_or(Identity{});
    entry.outcome = WordOf(command, attempt.outcome.result);
    entry.canTryAgain = attempt.outcome.canTryAgain;
    entry.number = attempt.outcome.number;
    entry.errors = attempt.outcome.errors;
    entry.warnings = attempt.outcome.warnings;
    entry.start = attempt.start;
    entry.seconds = static_cast<double>(attempt.milliseconds) / kSecond;
    return entry;
}

void TellInterruption() { Console::Errors().Write(L"\nInterrupted. What was under way may have reached LEJIS.\n"); }

// One run over all incidents.
class IncidentRun final : public BacklogListener {
public:
    IncidentRun(const CommandLine& commandLine, const BacklogSettings& settings)
        : IncidentRun(commandLine, settings, TasksOf(commandLine)) {}

    int Run() {
        const ULONGLONG start = GetTickCount64();
        const Interruption interruption(TellInterruption, INFINITE);
        backlog_.Run(interruption);
        Ending ending;
        ending.left = backlog_.Left();
        ending.isInterrupted = interruption.HasHappened();
        ending.failuresInARow = backlog_.FailuresInARow();
        ending.milliseconds = GetTickCount64() - start;
        const int exitCode = report_->Finish(ending);
        if (!ledgerFault_.empty()) throw FileError{ledgerFault_};
        // Threads that still wait for an answer would keep the program, or fall with the library under them.
        if (backlog_.HasAbandonedWorkers()) TerminateProcess(GetCurrentProcess(), static_cast<UINT>(exitCode));
        return exitCode;
    }

    void Begun(const Task& task) override {
        if (isVerbose_ && task.attempts > 1) {
            Console::Errors().Write(task.name + L": try " + std::to_wstring(task.attempts) + L'\n');
        }
        report_->Begin(task.name);
    }

    void Tried(const Task& task, const Attempt& attempt) override {
        if (!ledger_ || attempt.outcome.result == Result::LeftOut) return;
        try {
            ledger_->Append(EntryOf(command_, url_, task, attempt));
        } catch (const FileError& error) {
            // What cannot be written down is not to be done.
            ledgerFault_ = error.reason;
            backlog_.Stop();
        }
    }

    void Ended(const Task& task, const Attempt& attempt) override { report_->End(task.name, attempt); }

private:
    IncidentRun(const CommandLine& commandLine, const BacklogSettings& settings, const std::deque<Task>& tasks)
        : command_(*commandLine.command),
          isVerbose_(commandLine.verbose),
          url_(commandLine.url.value_or(L"")),
          done_(command_.name, url_, command_.success),
          report_(Report::Create(commandLine, NamesOf(tasks))),
          backlog_(
              settings, [&] { return std::make_unique<IncidentJob>(commandLine, done_); }, tasks, *this) {
        if (!commandLine.ledger) return;
        ledger_ = std::make_unique<Ledger>(*commandLine.ledger);
        ReadLedger(*commandLine.ledger, [this](const LedgerEntry& entry) { done_.Add(entry); });
    }

    const Command& command_;
    bool isVerbose_;
    std::wstring url_;
    LedgerIndex done_;
    std::unique_ptr<Ledger> ledger_;
    std::wstring ledgerFault_;
    std::unique_ptr<Report> report_;
    Backlog backlog_;
};

}  // namespace

int RunOnIncidents(const CommandLine& commandLine) {
    const BacklogSettings settings = BacklogSettings::Of(commandLine);
    // Asked for first, so that a missing library is one sentence and not one for each file.
    RequireLibraryForUrl(commandLine);
    return IncidentRun(commandLine, settings).Run();
}

}  // namespace lejis_client
