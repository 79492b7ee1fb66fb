// An answer to a search, from the loaded document into cards, and the whole road to the event.
#include "BareWalk.h"
#include "CompletedSearch.h"
#include "inquiry/LejisInquiryResponse.h"
#include "LargeAnswer.h"
#include "platform/msxml/Document.h"
#include "Sections.h"

namespace benchmarks {
namespace {

void ReadCards(const msxml::Document& answer) {
    platform::Check(platform::Create<lejis::LejisInquiryResponse>()->FromXmlDocument(answer.Get()));
}

Figure PerIncident(const Series& larger, const Series& thousand, double thousands) {
    constexpr double kNoStepWorseThanLinear = 1.15;
    return Ratio(larger, thousand, kNoStepWorseThanLinear, thousands);
}

}  // namespace

std::vector<Figure> Reading() {
    const std::wstring text = LargeAnswer(1000);
    const msxml::Document answer = LoadedAnswer(1000);
    CompletedSearch search(answer);
    const std::vector<Series> series = Measure({
        {"loadXML of its text", [&] { msxml::LoadXml(msxml::CreateDocument(), text); }},
        {"a bare walk over its document", [&] { BareWalk(answer); }},
        {"1,000 incidents: document into cards", [&] { ReadCards(answer); }},
        {"1,000 incidents: completed request to SearchCompleted", [&] { search.Complete(); }},
    });
    return {
        Ratio(series[2], series[0], 1.2),
        Ratio(series[2], series[1], 1.4),
        Ratio(series[3], series[0], 1.3),
        Ratio(series[1], series[0], {}),
    };
}

std::vector<Figure> ReadingMore() {
    const msxml::Document one = LoadedAnswer(1000);
    const msxml::Document four = LoadedAnswer(4000);
    const msxml::Document eight = LoadedAnswer(8000);
    CompletedSearch searchOne(one);
    CompletedSearch searchFour(four);
    CompletedSearch searchEight(eight);
    const std::vector<Series> series = Measure({
        {"1,000 incidents: document into cards", [&] { ReadCards(one); }, 8},
        {"4,000 incidents: document into cards", [&] { ReadCards(four); }, 2},
        {"8,000 incidents: document into cards", [&] { ReadCards(eight); }},
        {"1,000 incidents: request to SearchCompleted", [&] { searchOne.Complete(); }, 8},
        {"4,000 incidents: completed request to SearchCompleted", [&] { searchFour.Complete(); }, 2},
        {"8,000 incidents: completed request to SearchCompleted", [&] { searchEight.Complete(); }},
    });
    return {
        PerIncident(series[1], series[0], 4),
        PerIncident(series[2], series[0], 8),
        PerIncident(series[4], series[3], 4),
        PerIncident(series[5], series[3], 8),
    };
}

}  // namespace benchmarks
