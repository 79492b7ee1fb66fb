#include "SelfProcess.h"

#include "platform/com/Module.h"

#include <windows.h>

#include <stdexcept>

namespace benchmarks {

int ExitCodeOfSelf(const std::wstring& arguments) {
    std::wstring command = L"\"" + platform::module::Path() + L"\" " + arguments;
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process)) {
        throw std::runtime_error("cannot start a process");
    }
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD code = 0;
    GetExitCodeProcess(process.hProcess, &code);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return static_cast<int>(code);
}

}  // namespace benchmarks
