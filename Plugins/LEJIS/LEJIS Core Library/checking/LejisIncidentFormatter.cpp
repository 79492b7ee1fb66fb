#include "checking/LejisIncidentFormatter.h"

#include "checking/FormattingRules.h"
#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "platform/com/ComObject.h"
#include "platform/ComError.h"

namespace lejis {
namespace {

// The copy holds what the card's XML form carries, blanks at the ends of texts included.
platform::Ref<LejisIncidentIndexCard> CopyOf(const LejisIncidentIndexCard& incident) {
    const OutputDocument document = OutputDocument::Create();
    platform::Check(document.Get()->put_preserveWhiteSpace(VARIANT_TRUE));
    auto copy = platform::Create<LejisIncidentIndexCard>();
    copy->Read(ElementReader(incident.Write(document)));
    return copy;
}

}  // namespace

STDMETHODIMP LejisIncidentFormatter::get_HasWarnings(VARIANT_BOOL* result) {
    return Guard(result, [&] { return Warnings->Count() > 0; });
}

STDMETHODIMP LejisIncidentFormatter::Format(ILejisIncidentIndexCard* incident, ILejisIncidentIndexCard** result) {
    return Guard(result, [&] {
        // The list starts before the argument is examined: a refused argument leaves no warnings of an earlier call.
        StartList();
        return ShapedCopy(*platform::ImplementationOf<LejisIncidentIndexCard>(incident));
    });
}

platform::Ref<LejisIncidentIndexCard> LejisIncidentFormatter::Shape(const LejisIncidentIndexCard& incident) {
    StartList();
    return ShapedCopy(incident);
}

platform::Ref<LejisIncidentIndexCard> LejisIncidentFormatter::ShapedCopy(const LejisIncidentIndexCard& incident) {
    auto copy = CopyOf(incident);
    FormattingRules(*Warnings).Apply(*copy);
    return copy;
}

}  // namespace lejis
