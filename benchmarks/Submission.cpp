// A submission up to the text to be sent.
#include "BareTree.h"
#include "checking/LejisIncidentFormatter.h"
#include "checking/LejisIncidentValidator.h"
#include "model/LejisSubmissionDocument.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Markup.h"
#include "platform/msxml/Node.h"
#include "Sections.h"
#include "services/RequestEnvelope.h"
#include "TypicalIncident.h"

using Microsoft::WRL::ComPtr;

namespace benchmarks {
namespace {

using Incident = platform::Ref<lejis::LejisIncidentIndexCard>;

std::wstring RequestText(const Incident& incident) {
    const auto document = platform::Create<lejis::LejisSubmissionDocument>();
    document->Add(incident);
    return msxml::Markup(lejis::WrapInEnvelope(msxml::Root(document->ToDocument())));
}

Incident Formatted(const Incident& incident) {
    return platform::Create<lejis::LejisIncidentFormatter>()->Shape(*incident);
}

void Validate(const Incident& incident) { platform::Create<lejis::LejisIncidentValidator>()->FindErrors(*incident); }

// The calls of MSXML that make the request of the incident anew, and nothing else.
BareTree BareRequest(const Incident& incident) {
    const msxml::Document request = msxml::CreateDocument();
    msxml::LoadXml(request, RequestText(incident));
    return BareTree(msxml::Root(request));
}

void Prepare(const Incident& incident) {
    const Incident copy = Formatted(incident);
    Validate(copy);
    RequestText(copy);
}

}  // namespace

std::vector<Figure> Submission() {
    constexpr int kRepetitions = 20;
    const Incident incident = TypicalIncident();
    const BareTree floor = BareRequest(incident);
    const std::vector<Series> series = Measure(
        {
            {"bare MSXML: build the tree, take its text", [&] { floor.BuildAndSerialize(); }, kRepetitions},
            {"typical submission, up to the text to be sent", [&] { Prepare(incident); }, kRepetitions},
            {"  of it: format (copy and rules)", [&] { Formatted(incident); }, kRepetitions},
            {"  of it: validate", [&] { Validate(incident); }, kRepetitions},
            {"  of it: document, envelope and text", [&] { RequestText(incident); }, kRepetitions},
        },
        2 * kRounds + 1);
    return {
        Ratio(series[1], series[0], 2.5),
        Ratio(series[2], series[0], {}),
        Ratio(series[3], series[0], {}),
        Ratio(series[4], series[0], {}),
    };
}

std::vector<Figure> ManyPersons() {
    const Incident few = IncidentWithPersons(20);
    const Incident many = IncidentWithPersons(1000);
    const std::vector<Series> series = Measure({
        {"50 times one with 20 persons", [&] { Prepare(few); }, 50},
        {"submission of an incident with 1,000 persons", [&] { Prepare(many); }},
    });
    return {Ratio(series[1], series[0], 1.15, 50)};
}

}  // namespace benchmarks
