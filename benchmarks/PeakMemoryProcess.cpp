#include "PeakMemoryProcess.h"

#include "CompletedSearch.h"
#include "Heaps.h"
#include "LargeAnswer.h"
#include "PeakSampler.h"
#include "SelfProcess.h"
#include "services/PlainReading.h"

#include <climits>
#include <stdexcept>
#include <string>
#include <string_view>

namespace benchmarks {
namespace {

constexpr std::string_view kPeakMemoryOption = "--peak-memory";
// No process that ends by itself has this code, and no answer takes as little.
constexpr int kNoPeak = INT_MIN;
constexpr double kKilobyte = 1024;

int KilobytesAtPeak(int incidents, bool byDocument) {
    lejis::SwitchPlainReading(!byDocument);
    // What is loaded and made once.
    CompletedSearch(LargeAnswer(1)).Complete();
    std::string answer = LargeAnswer(incidents);
    const auto bytes = static_cast<double>(answer.size());
    CompletedSearch search(std::move(answer));
    const double heapsBefore = BytesOnHeaps();
    PeakSampler sampler;
    search.Complete();
    const double above = sampler.BytesAbove();
    const double cards = BytesOnHeaps() - heapsBefore;
    // The array that the request gives is the answer's body; only the reading from bytes asks for it.
    return static_cast<int>((above - cards - (byDocument ? 0 : bytes)) / kKilobyte);
}

}  // namespace

std::optional<int> PeakMemoryCode(int count, char** texts) {
    if (count != 4 || texts[1] != kPeakMemoryOption) return std::nullopt;
    try {
        return KilobytesAtPeak(std::stoi(texts[2]), texts[3] == std::string_view("document"));
    } catch (...) {
        return kNoPeak;
    }
}

double PeakKilobytes(int incidents, bool byDocument) {
    const std::wstring option(kPeakMemoryOption.begin(), kPeakMemoryOption.end());
    const int code =
        ExitCodeOfSelf(option + L" " + std::to_wstring(incidents) + (byDocument ? L" document" : L" bytes"));
    if (code == kNoPeak) throw std::runtime_error("the memory of an answer could not be measured");
    return code;
}

}  // namespace benchmarks
