// An answer to a search, from the loaded document into cards.
#include "BareWalk.h"
#include "inquiry/LejisInquiryResponse.h"
#include "LargeAnswer.h"
#include "platform/msxml/Document.h"
#include "Sections.h"

namespace benchmarks {
namespace {

void ReadCards(const msxml::Document& answer) {
    platform::Check(platform::Create<lejis::LejisInquiryResponse>()->FromXmlDocument(answer.Get()));
}

}  // namespace

std::vector<Figure> Reading() {
    const std::wstring text = LargeAnswerText(1000);
    const msxml::Document answer = LoadedAnswer(1000);
    const std::vector<Series> series = Measure({
        {"loadXML of its text", [&] { msxml::LoadXml(msxml::CreateDocument(), text); }},
        {"a bare walk over its document", [&] { BareWalk(answer); }},
        {"1,000 incidents: document into cards", [&] { ReadCards(answer); }},
    });
    return {
        Ratio(series[2], series[0], 1.2),
        Ratio(series[2], series[1], 1.4),
        Ratio(series[1], series[0], {}),
    };
}

std::vector<Figure> ReadingMore() {
    const msxml::Document one = LoadedAnswer(1000);
    const msxml::Document four = LoadedAnswer(4000);
    const msxml::Document eight = LoadedAnswer(8000);
    const std::vector<Series> series = Measure({
        {"1,000 incidents: document into cards", [&] { ReadCards(one); }, 8},
        {"4,000 incidents: document into cards", [&] { ReadCards(four); }, 2},
        {"8,000 incidents: document into cards", [&] { ReadCards(eight); }},
    });
    return {
        PerIncident(series[1], series[0], 4),
        PerIncident(series[2], series[0], 8),
    };
}

}  // namespace benchmarks
