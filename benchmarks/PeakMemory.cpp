// What an answer takes of memory at its peak, beside its bytes and its cards.
#include "PeakMemoryProcess.h"
#include "Sections.h"

namespace benchmarks {
namespace {

constexpr double kKilobytesInMegabyte = 1024;

Figure Peak(int incidents, const std::string& count, bool byDocument) {
    constexpr int kFewRounds = 3;
    Series peak{count + (byDocument ? " incidents: the same by MSXML's document"
                                    : " incidents: peak memory above body and cards"),
                {}};
    Series megabyte{"a megabyte", {}};
    for (int round = 0; round < kFewRounds; ++round) {
        peak.rounds.push_back(PeakKilobytes(incidents, byDocument));
        megabyte.rounds.push_back(kKilobytesInMegabyte);
    }
    return Ratio(peak, megabyte, byDocument ? std::nullopt : std::optional(5.0));
}

}  // namespace

std::vector<Figure> PeakMemory() {
    std::vector<Figure> figures;
    for (const auto& [incidents, count] : {std::pair{1000, "1,000"}, {4000, "4,000"}, {8000, "8,000"}}) {
        for (const bool byDocument : {false, true}) figures.push_back(Peak(incidents, count, byDocument));
    }
    return figures;
}

}  // namespace benchmarks
