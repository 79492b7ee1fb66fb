#include "FirstObjectProcess.h"
#include "Sections.h"

namespace benchmarks {

std::vector<Figure> FirstObject() {
    Series document{"load MSXML, create the first DOMDocument60", {}};
    Series card{"load the DLL, create the first object", {}};
    for (int round = 0; round <= kRounds; ++round) {
        const double first = FirstObjectMicroseconds(L"Msxml2.DOMDocument.6.0");
        const double second = FirstObjectMicroseconds(L"TVLejisCore.LejisIncidentIndexCard");
        if (round == 0) continue;
        document.rounds.push_back(first);
        card.rounds.push_back(second);
    }
    return {Ratio(card, document, 0.5)};
}

}  // namespace benchmarks
