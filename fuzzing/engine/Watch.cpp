#include "engine/Watch.h"

#include "endurance/Memory.h"
#include "engine/CaseFile.h"
#include "engine/ExitCodes.h"

#include <windows.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <thread>

namespace fuzzing {
namespace {

WatchSettings settings;
const Case* current = nullptr;
uint64_t currentIndex = 0;
// When the case has begun, in milliseconds; 0 between cases.
std::atomic<ULONGLONG> begun{0};

[[noreturn]] void End(const char* what, UINT exitCode) noexcept {
    if (const Case* const input = current) Report(*input, currentIndex, what);
    if (settings.beforeEnd) settings.beforeEnd();
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), exitCode);
    // Not reached: the process has ended.
    std::abort();
}

// The addresses on the stack that point into this program: a trace for nm or addr2line that needs no frame pointers.
void PrintStack(const CONTEXT& context) noexcept {
    constexpr size_t kWords = 4096;
    constexpr int kShown = 40;
    const auto base = reinterpret_cast<ULONG_PTR>(GetModuleHandleW(nullptr));
    const auto* const headers = reinterpret_cast<const IMAGE_NT_HEADERS*>(
        base + static_cast<ULONG_PTR>(reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew));
    const ULONG_PTR codeEnd = base + headers->OptionalHeader.BaseOfCode + headers->OptionalHeader.SizeOfCode;
#ifdef _WIN64
    const auto* word = reinterpret_cast<const ULONG_PTR*>(context.Rsp);
#else
    const auto* word = reinterpret_cast<const ULONG_PTR*>(context.Esp);
#endif
    const auto* const top = static_cast<const ULONG_PTR*>(reinterpret_cast<const NT_TIB*>(NtCurrentTeb())->StackBase);
    int shown = 0;
    for (size_t left = kWords; left > 0 && word < top && shown < kShown; --left, ++word) {
        if (*word <= base || *word >= codeEnd) continue;
        const ULONG_PTR preferred = headers->OptionalHeader.ImageBase;
        std::printf("    on the stack: +%llx (image base %llx)\n", static_cast<unsigned long long>(*word - base),
                    static_cast<unsigned long long>(preferred));
        ++shown;
    }
}

LONG CALLBACK OnCrash(EXCEPTION_POINTERS* exception) noexcept {
    char what[128];
    std::snprintf(what, sizeof what, "crash: exception %08lx at %p (program at %p)",
                  exception->ExceptionRecord->ExceptionCode, exception->ExceptionRecord->ExceptionAddress,
                  reinterpret_cast<void*>(GetModuleHandleW(nullptr)));
    PrintStack(*exception->ContextRecord);
    End(what, kCrashed);
}

// A broken contract of the standard library, or an exception that nobody catches.
void OnAbort(int) { End("crash: the program aborted itself", kCrashed); }

void WatchTimeAndMemory(size_t memory) {
    // Cases are small. What the platform keeps of thousands of them comes to less in one look's time.
    constexpr size_t kMostAtOnce = size_t{256} << 20;
    const ULONGLONG limit = settings.secondsForCase * 1000ULL;
    for (;;) {
        Sleep(500);
        const ULONGLONG since = begun.load();
        if (since != 0 && GetTickCount64() > since + limit) End("hang: the case does not end", kHung);
        const size_t now = endurance::PrivateBytes();
        if (now > memory + kMostAtOnce) End("memory: the case takes too much", kDevoured);
        memory = now;
    }
}

}  // namespace

void StartWatch(WatchSettings chosen) {
    settings = std::move(chosen);
    SetUnhandledExceptionFilter(OnCrash);
    std::signal(SIGABRT, OnAbort);
    std::thread(WatchTimeAndMemory, endurance::PrivateBytes()).detach();
}

Watched::Watched(const Case& input, uint64_t index) {
    current = &input;
    currentIndex = index;
    begun = GetTickCount64();
}

Watched::~Watched() {
    begun = 0;
    current = nullptr;
}

void Report(const Case& input, uint64_t index, const char* what) noexcept {
    char path[1024];
    std::snprintf(path, sizeof path, "%s-%llu.case", settings.filePrefix.c_str(),
                  static_cast<unsigned long long>(index));
    const bool saved = WriteCaseFile(path, settings.target.c_str(), what, input.Made());
    std::printf("FINDING in %s, case %llu: %s\n  %s %s\n", settings.target.c_str(),
                static_cast<unsigned long long>(index), what, saved ? "saved as" : "could not be saved as", path);
    std::fflush(stdout);
}

}  // namespace fuzzing
