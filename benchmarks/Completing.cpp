// The whole road of an answer, from the completed request of which nothing is parsed to the event SearchCompleted.
#include "AnsweredRequest.h"
#include "CompletedSearch.h"
#include "LargeAnswer.h"
#include "platform/msxml/Document.h"
#include "Sections.h"
#include "services/PlainReading.h"

namespace benchmarks {
namespace {

constexpr double kFractionOfParsing = 0.30;

void CompleteByDocument(CompletedSearch& search) {
    const bool before = lejis::PlainReadingIsOn();
    lejis::SwitchPlainReading(false);
    search.Complete();
    lejis::SwitchPlainReading(before);
}

void CopyBytes(const std::string& bytes) { SafeArrayDestroy(ArrayOf(bytes)); }

std::vector<Figure> Complete(int incidents, const std::string& count) {
    const std::string bytes = LargeAnswer(incidents);
    const std::wstring text = LargeAnswerText(incidents);
    CompletedSearch search(bytes);
    const std::vector<Series> series = Measure({
        {"loadXML of its text", [&] { msxml::LoadXml(msxml::CreateDocument(), text); }},
        {"a copy of its bytes", [&] { CopyBytes(bytes); }},
        {count + " incidents: completed request to SearchCompleted", [&] { search.Complete(); }},
        {count + " incidents: the same by MSXML's document", [&] { CompleteByDocument(search); }},
    });
    return {
        Ratio(series[2], series[0], kFractionOfParsing),
        Ratio(series[2], series[1], {}),
        Ratio(series[3], series[0], {}),
    };
}

}  // namespace

std::vector<Figure> Completing() {
    std::vector<Figure> figures;
    for (const auto& [incidents, count] : {std::pair{1000, "1,000"}, {4000, "4,000"}, {8000, "8,000"}}) {
        for (const Figure& figure : Complete(incidents, count)) figures.push_back(figure);
    }
    return figures;
}

std::vector<Figure> CompletingBlanks() {
    const std::wstring text = LargeAnswerText(1000);
    CompletedSearch one(LargeAnswer(1000, 1));
    CompletedSearch eight(LargeAnswer(1000, 8));
    CompletedSearch nine(LargeAnswer(1000, 9));
    const std::vector<Series> series = Measure({
        {"loadXML of its text", [&] { msxml::LoadXml(msxml::CreateDocument(), text); }},
        {"1,000 incidents, a text of each with a blank at its end", [&] { one.Complete(); }},
        {"1,000 incidents, eight such texts in each", [&] { eight.Complete(); }},
        {"1,000 incidents, nine such texts in each", [&] { nine.Complete(); }},
    });
    return {Ratio(series[1], series[0], {}), Ratio(series[2], series[0], {}), Ratio(series[3], series[0], {})};
}

std::vector<Figure> CompletingMore() {
    CompletedSearch one(LargeAnswer(1000));
    CompletedSearch four(LargeAnswer(4000));
    CompletedSearch eight(LargeAnswer(8000));
    const std::vector<Series> series = Measure({
        {"1,000 incidents: request to SearchCompleted", [&] { one.Complete(); }, 8},
        {"4,000 incidents: completed request to SearchCompleted", [&] { four.Complete(); }, 2},
        {"8,000 incidents: completed request to SearchCompleted", [&] { eight.Complete(); }},
    });
    return {PerIncident(series[1], series[0], 4), PerIncident(series[2], series[0], 8)};
}

}  // namespace benchmarks
