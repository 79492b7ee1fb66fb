#pragma once

#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// An item of property of an incident as card:RMSPropertyIndexCards.
class LejisPropertyIndexCard final : public platform::ComObject<::LejisPropertyIndexCard, ILejisPropertyIndexCard> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(NibrsCategoryCode)
    TEXT_FIELD(Category)
    TEXT_FIELD(Make)
    TEXT_FIELD(Model)
    TEXT_FIELD(SerialID)
    TEXT_FIELD(CaveatText)
    BOOLEAN_PROPERTY(CautionIndicator)
    STDMETHODIMP LoadDefaults() override;
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
