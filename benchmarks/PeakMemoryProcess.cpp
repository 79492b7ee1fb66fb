#include "PeakMemoryProcess.h"

#include "CompletedSearch.h"
#include "Heaps.h"
#include "LargeAnswer.h"
#include "SelfProcess.h"
#include "services/PlainReading.h"

#include <psapi.h>
#include <windows.h>

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>

namespace benchmarks {
namespace {

constexpr std::string_view kOption = "--peak-memory";
constexpr int kFailed = -1;
constexpr double kKilobyte = 1024;

PROCESS_MEMORY_COUNTERS Memory() {
    PROCESS_MEMORY_COUNTERS counters{};
    if (!K32GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters)) {
        throw std::runtime_error("cannot tell the memory of the process");
    }
    return counters;
}

int KilobytesAtPeak(int incidents, bool byDocument) {
    lejis::SwitchPlainReading(!byDocument);
    // What is loaded and made once.
    CompletedSearch(LargeAnswer(1)).Complete();
    std::string answer = LargeAnswer(incidents);
    const auto bytes = static_cast<double>(answer.size());
    CompletedSearch search(std::move(answer));
    const double heapsBefore = BytesOnHeaps();
    const auto before = static_cast<double>(Memory().WorkingSetSize);
    search.Complete();
    const auto peak = static_cast<double>(Memory().PeakWorkingSetSize);
    const double cards = BytesOnHeaps() - heapsBefore;
    return static_cast<int>(std::max(0.0, peak - before - bytes - cards) / kKilobyte);
}

}  // namespace

std::optional<int> PeakMemoryCode(int count, char** texts) {
    if (count != 4 || texts[1] != kOption) return std::nullopt;
    try {
        return KilobytesAtPeak(std::stoi(texts[2]), texts[3] == std::string_view("document"));
    } catch (...) {
        return kFailed;
    }
}

double PeakKilobytes(int incidents, bool byDocument) {
    const std::wstring option(kOption.begin(), kOption.end());
    const int code =
        ExitCodeOfSelf(option + L" " + std::to_wstring(incidents) + (byDocument ? L" document" : L" bytes"));
    if (code == kFailed) throw std::runtime_error("the memory of an answer could not be measured");
    return code;
}

}  // namespace benchmarks
