#include "Program.h"

#include "Files.h"

#include <memory>

namespace kit {
namespace {

constexpr int kMostStarts = 3;
constexpr DWORD kPauseInMilliseconds = 500;
constexpr UINT kEndedByKit = 124;

struct HandleCloser {
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using Handle = std::unique_ptr<void, HandleCloser>;

struct Process {
    Handle process;
    Handle thread;
};

// A job that ends its processes when its handle is closed.
Handle NewJob() {
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

Handle OpenForChild(const wchar_t* path, DWORD access, DWORD disposition) {
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return Handle(CreateFileW(path, access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition, 0, nullptr));
}

bool TryToStart(std::wstring commandLine, HANDLE input, HANDLE output, Process& started) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input;
    startup.hStdOutput = output;
    startup.hStdError = output;
    PROCESS_INFORMATION information = {};
    if (!CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr, nullptr,
                        &startup, &information)) {
        return false;
    }
    started = {Handle(information.hProcess), Handle(information.hThread)};
    return true;
}

// A new process of Wine dies at times before its first instruction, on a busy machine above all; the error is then this
// one, and never this one on Windows.
bool Start(const std::wstring& commandLine, HANDLE input, HANDLE output, Process& started) {
    for (int starts = 1;; ++starts) {
        if (TryToStart(commandLine, input, output, started)) return true;
        if (GetLastError() != ERROR_INTERNAL_ERROR || starts == kMostStarts) return false;
        Sleep(kPauseInMilliseconds);
    }
}

void AwaitEnd(const Process& started, HANDLE job, DWORD seconds, Ended& ended) {
    ended.withinItsTime = WaitForSingleObject(started.process.get(), seconds * 1000) == WAIT_OBJECT_0;
    if (!ended.withinItsTime) {
        TerminateJobObject(job, kEndedByKit);
        // Where the job did not take the process.
        TerminateProcess(started.process.get(), kEndedByKit);
        WaitForSingleObject(started.process.get(), INFINITE);
    }
    GetExitCodeProcess(started.process.get(), &ended.code);
}

}  // namespace

Ended RunProgram(const std::wstring& commandLine, const std::wstring& outputPath, DWORD seconds) {
    Ended ended;
    const ULONGLONG start = GetTickCount64();
    {
        const Handle job = NewJob();
        const Handle input = OpenForChild(L"NUL", GENERIC_READ, OPEN_EXISTING);
        const Handle output = OpenForChild(outputPath.c_str(), GENERIC_WRITE, CREATE_ALWAYS);
        Process started;
        if (!Start(commandLine, input.get(), output.get(), started)) {
            ended.startError = GetLastError();
            return ended;
        }
        AssignProcessToJobObject(job.get(), started.process.get());
        ResumeThread(started.thread.get());
        AwaitEnd(started, job.get(), seconds, ended);
    }
    ended.seconds = static_cast<double>(GetTickCount64() - start) / 1000;
    ended.output = ContentOf(outputPath);
    return ended;
}

}  // namespace kit
