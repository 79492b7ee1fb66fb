#pragma once

#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// An item of property of an incident as card:RMSPropertyIndexCards.
class LejisPropertyIndexCard final : public platform::ComObject<::LejisPropertyIndexCard, ILejisPropertyIndexCard> {
public:
    TEXT_PROPERTY(NibrsCategoryCode)
    TEXT_PROPERTY(Category)
    TEXT_PROPERTY(Make)
    TEXT_PROPERTY(Model)
    TEXT_PROPERTY(SerialID)
    BOOLEAN_PROPERTY(CautionIndicator)
    TEXT_PROPERTY(CaveatText)
    STDMETHODIMP LoadDefaults() override;
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
