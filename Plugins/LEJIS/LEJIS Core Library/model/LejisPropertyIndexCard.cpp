#include "model/LejisPropertyIndexCard.h"

#include "foundation/ElementReader.h"
#include "foundation/ElementWriter.h"
#include "model/FieldReading.h"

namespace lejis {

STDMETHODIMP LejisPropertyIndexCard::LoadDefaults() {
    return Guard([&] { Reset(); });
}

msxml::Element LejisPropertyIndexCard::Write(const OutputDocument& document) const {
    ElementWriter card(document, L"card:RMSPropertyIndexCards");
    card.OptionalText(L"j:PropertyCategoryCode.nibrsPropertyCategory", NibrsCategoryCode);
    card.OptionalText(L"j:PropertyTypeText", Category);
    card.OptionalText(L"j:PropertyMakeName", Make);
    card.OptionalText(L"j:PropertyModelName", Model);
    card.OptionalId(L"j:PropertySerialID", SerialID);
    card.OptionalText(L"j:CaveatText", CaveatText);
    card.Boolean(L"ext:CautionIndicatorFlag", CautionIndicator);
    return card.Element();
}

void LejisPropertyIndexCard::Read(const ElementReader& card) {
    Reset();
    NibrsCategoryCode = card.Text(L"j:PropertyCategoryCode.nibrsPropertyCategory");
    Category = card.Text(L"j:PropertyTypeText");
    Make = card.Text(L"j:PropertyMakeName");
    Model = card.Text(L"j:PropertyModelName");
    SerialID = card.Text(L"j:PropertySerialID/j:ID");
    CaveatText = card.Text(L"j:CaveatText");
    texts_.Fit();
    ReadFlag(card.Text(L"ext:CautionIndicatorFlag"), CautionIndicator);
}

void LejisPropertyIndexCard::Reset() {
    texts_.Clear();
    CautionIndicator = false;
}

}  // namespace lejis
