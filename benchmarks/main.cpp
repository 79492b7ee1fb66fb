// Prints what the library's work on a typical submission costs, as ratios to what MSXML alone needs for the same
// result.
#include "BareTree.h"
#include "checking/LejisIncidentFormatter.h"
#include "checking/LejisIncidentValidator.h"
#include "inquiry/LejisInquiryResponse.h"
#include "LargeAnswer.h"
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

void Print(const char* title, const std::vector<Measurement>& measurements) {
    std::printf("%-50s %10s %22s %8s\n", title, "median", "fastest to slowest", "ratio");
    for (const Measurement& one : measurements) {
        std::printf("%-50s %7.0f us %8.0f to %7.0f us %8.2f\n", one.name.c_str(), one.median, one.fastest, one.slowest,
                    one.median / measurements.front().median);
    }
}

void MeasureSubmission() {
    const auto incident = TypicalIncident();
    const msxml::Document request = msxml::CreateDocument();
    msxml::LoadXml(request, RequestText(incident));
    const BareTree floor(msxml::Root(request));
    std::printf("%zu elements in a request; median of %d rounds of %d, all works in turn; ratios to the first line\n",
                floor.ElementCount(), kRounds, kRepetitions);
    Print("a typical submission", Measure(Works(incident, floor), kRounds, kRepetitions));
}

void MeasureReading(int incidents) {
    constexpr int kReadingRounds = 9;
    const std::wstring text = LargeAnswer(incidents);
    const msxml::Document loaded = msxml::CreateDocument();
    msxml::LoadXml(loaded, text);
    const auto response = platform::Create<lejis::LejisInquiryResponse>();
    const std::vector<Work> works = {
        {"MSXML: loadXML of the same text", [&] { msxml::LoadXml(msxml::CreateDocument(), text); }},
        {"read into cards, from the loaded document", [&] { response->FromXmlDocument(loaded.Get()); }},
    };
    std::printf("\n%d incidents, %.1f MB as UTF-8; median of %d rounds\n", incidents,
                static_cast<double>(text.size()) / 1e6, kReadingRounds);
    Print("an answer to a search", Measure(works, kReadingRounds, 1));
}

}  // namespace
}  // namespace benchmarks

int main() {
    if (FAILED(OleInitialize(nullptr))) return EXIT_FAILURE;
    benchmarks::MeasureSubmission();
    for (const int incidents : {1000, 4000}) benchmarks::MeasureReading(incidents);
    OleUninitialize();
    return EXIT_SUCCESS;
}
