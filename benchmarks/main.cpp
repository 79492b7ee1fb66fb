// Prints what the library's work on a typical submission costs, as ratios to what MSXML alone needs for the same
// result.
#include "BareTree.h"
#include "checking/LejisIncidentFormatter.h"
#include "checking/LejisIncidentValidator.h"
#include "Measurement.h"
#include "model/LejisSubmissionDocument.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "services/SubmissionEnvelope.h"
#include "TypicalIncident.h"

#include <cstdio>

namespace benchmarks {
namespace {

constexpr int kRounds = 21;
constexpr int kRepetitions = 20;

std::wstring RequestText(const Microsoft::WRL::ComPtr<lejis::LejisIncidentIndexCard>& incident) {
    const auto document = platform::Create<lejis::LejisSubmissionDocument>();
    document->Add(incident);
    return msxml::Xml(lejis::WrapInEnvelope(msxml::Root(document->ToXmlDocument())));
}

std::vector<Work> Works(const Microsoft::WRL::ComPtr<lejis::LejisIncidentIndexCard>& incident, const BareTree& floor) {
    const auto formatter = platform::Create<lejis::LejisIncidentFormatter>();
    const auto validator = platform::Create<lejis::LejisIncidentValidator>();
    return {
        {"bare MSXML: build the request, take its text", [&] { floor.BuildAndSerialize(); }},
        {"format (copy and rules)", [=] { formatter->Format(*incident.Get()); }},
        {"validate", [=] { validator->Validate(*incident.Get()); }},
        {"document, envelope and text", [=] { RequestText(incident); }},
        {"all of a submission up to the text to be sent",
         [=] {
             const auto copy = formatter->Format(*incident.Get());
             validator->Validate(*copy.Get());
             RequestText(copy);
         }},
    };
}

void Print(const std::vector<Measurement>& measurements) {
    std::printf("\n%-50s %10s %21s %8s\n", "a typical submission", "median", "fastest to slowest", "ratio");
    for (const Measurement& one : measurements) {
        std::printf("%-50s %7.0f us %8.0f to %7.0f us %8.2f\n", one.name.c_str(), one.median, one.fastest, one.slowest,
                    one.median / measurements.front().median);
    }
}

void Run() {
    const auto incident = TypicalIncident();
    const msxml::Document request = msxml::CreateDocument();
    msxml::LoadXml(request, RequestText(incident));
    const BareTree floor(msxml::Root(request));
    std::printf("%zu elements in a request; median of %d rounds of %d, all works in turn; ratios to the first line\n",
                floor.ElementCount(), kRounds, kRepetitions);
    Print(Measure(Works(incident, floor), kRounds, kRepetitions));
}

}  // namespace
}  // namespace benchmarks

int main() {
    if (FAILED(OleInitialize(nullptr))) return EXIT_FAILURE;
    benchmarks::Run();
    OleUninitialize();
    return EXIT_SUCCESS;
}
