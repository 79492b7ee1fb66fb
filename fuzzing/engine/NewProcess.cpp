#include "engine/NewProcess.h"

#include <windows.h>

namespace fuzzing {
namespace {

std::string CommandLine(const Options& options) {
    char program[MAX_PATH];
    GetModuleFileNameA(nullptr, program, MAX_PATH);
    std::string line = std::string("\"") + program + "\" --each";
    const std::pair<const char*, std::string> values[] = {
        {"--target", options.target},
        {"--seed", std::to_string(options.seed)},
        {"--first", std::to_string(options.first)},
        {"--cases", std::to_string(options.cases)},
        {"--case-limit", std::to_string(options.secondsForCase)},
        {"--findings", options.findings},
        {"--corpus", options.corpus},
    };
    for (const auto& [name, value] : values) line.append(" ").append(name).append(" \"").append(value).append("\"");
    return line;
}

}  // namespace

bool RunEachInNewProcess(const Options& options) {
    std::string line = CommandLine(options);
    STARTUPINFOA startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process))
        return true;
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return code == 0;
}

}  // namespace fuzzing
