// Cards found by the registered DLL, walked from outside.
#include "CardWalk.h"
#include "LargeAnswer.h"
#include "platform/ComError.h"
#include "platform/Text.h"
#include "Sections.h"

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace benchmarks {
namespace {

ComPtr<ICollection> CardsFromDll(int incidents) {
    ComPtr<ILejisInquiryResponse> response;
    Check(CoCreateInstance(__uuidof(::LejisInquiryResponse), nullptr, CLSCTX_INPROC_SERVER,
                           IID_PPV_ARGS(response.GetAddressOf())));
    Check(response->FromXmlDocument(LoadedAnswer(incidents).Get()));
    ComPtr<ICollection> cards;
    Check(response->get_IncidentIndexCards(cards.GetAddressOf()));
    return cards;
}

// A client owns each text that it takes, from wherever it takes it.
void Copy(const std::vector<_bstr_t>& texts) {
    for (const _bstr_t& text : texts) SysFreeString(text.copy());
}

}  // namespace

std::vector<Figure> WalkingCards() {
    const ComPtr<ICollection> cards = CardsFromDll(1000);
    std::vector<_bstr_t> texts;
    WalkCards(cards.Get(), [&](BSTR text) { texts.emplace_back(text, false); });
    const std::vector<Series> series = Measure({
        {"the same texts copied from a std::vector of BSTRs", [&] { Copy(texts); }, 5},
        {"1,000 incidents: walk all cards from outside", [&] { WalkCards(cards.Get(), SysFreeString); }, 5},
    });
    return {Ratio(series[1], series[0], 3)};
}

}  // namespace benchmarks
