// What incidents read into cards hold of memory when the document is gone.
#include "CardWalk.h"
#include "Heaps.h"
#include "inquiry/LejisInquiryResponse.h"
#include "LargeAnswer.h"
#include "Sections.h"

#include <oleauto.h>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace benchmarks {
namespace {

double BytesOfTexts(ICollection* cards) {
    double bytes = 0;
    WalkCards(cards, [&](BSTR text) {
        bytes += SysStringByteLen(text);
        SysFreeString(text);
    });
    return bytes;
}

}  // namespace

std::vector<Figure> HeldBytes() {
    Series held{"4,000 incidents: bytes held by their cards", {}};
    Series texts{"bytes of their texts as UTF-16", {}};
    for (int round = 0; round <= kRounds; ++round) {
        const auto response = platform::Create<lejis::LejisInquiryResponse>();
        const double before = BytesOnHeaps();
        Check(response->FromXmlDocument(LoadedAnswer(4000).Get()));
        const double after = BytesOnHeaps();
        if (round == 0) continue;
        held.rounds.push_back(after - before);
        texts.rounds.push_back(BytesOfTexts(response->IncidentIndexCards.Get()));
    }
    return {Ratio(held, texts, 4)};
}

}  // namespace benchmarks
