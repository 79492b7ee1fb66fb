// launch.exe PROGRAM [ARGUMENT...]
// Runs a program, with the arguments as they stand, and ends with its exit code. Wine's start.exe does so too, but does
// not try again when a start fails.
//
// LAUNCHED names a file that is removed first: as long as it is there, nothing has run.

#include <windows.h>

#include <cstdio>
#include <string>

namespace {
// What `timeout` and shells say of a command that cannot be run.
constexpr int kCannotRun = 126;
constexpr int kMostTries = 3;
constexpr DWORD kPauseInMilliseconds = 200;

void RemoveMark() {
    wchar_t path[MAX_PATH] = {};
    if (GetEnvironmentVariableW(L"LAUNCHED", path, MAX_PATH)) {
        DeleteFileW(path);
        SetEnvironmentVariableW(L"LAUNCHED", nullptr);
    }
}

std::wstring CommandLineAfterOwnName() {
    const wchar_t* position = GetCommandLineW();
    const bool quoted = *position == L'"';
    if (quoted) ++position;
    while (*position && (quoted ? *position != L'"' : *position != L' ')) ++position;
    if (quoted && *position) ++position;
    while (*position == L' ') ++position;
    return position;
}

bool TryToStart(std::wstring commandLine, PROCESS_INFORMATION& started) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
    startup.hStdOutput = GetStdHandle(STD_OUTPUT_HANDLE);
    startup.hStdError = GetStdHandle(STD_ERROR_HANDLE);
    return CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started);
}

// Under Wine a new process dies at times before its first instruction, on a busy machine above all. Then, and only
// then, the error is this one.
bool Start(const std::wstring& commandLine, PROCESS_INFORMATION& started) {
    for (int tries = 1;; ++tries) {
        if (TryToStart(commandLine, started)) return true;
        if (GetLastError() != ERROR_INTERNAL_ERROR || tries == kMostTries) return false;
        Sleep(kPauseInMilliseconds);
    }
}
// Ctrl-C is for the program alone: this one still has to tell its exit code.
BOOL WINAPI Survive(DWORD) { return TRUE; }
}  // namespace

int main() {
    RemoveMark();
    SetConsoleCtrlHandler(Survive, TRUE);
    const std::wstring commandLine = CommandLineAfterOwnName();
    PROCESS_INFORMATION started = {};
    if (!Start(commandLine, started)) {
        std::fwprintf(stderr, L"launch: error %lu at starting %ls\n", GetLastError(), commandLine.c_str());
        return kCannotRun;
    }
    CloseHandle(started.hThread);
    WaitForSingleObject(started.hProcess, INFINITE);
    DWORD exitCode = kCannotRun;
    GetExitCodeProcess(started.hProcess, &exitCode);
    CloseHandle(started.hProcess);
    return static_cast<int>(exitCode);
}
