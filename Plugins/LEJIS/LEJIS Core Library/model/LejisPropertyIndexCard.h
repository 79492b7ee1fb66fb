#pragma once

#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/com/TextProperties.h"

#include <TVLejisCore.h>

namespace lejis {

#define PROPERTY_TEXTS(EACH) \
    EACH(NibrsCategoryCode)  \
    EACH(Category)           \
    EACH(Make)               \
    EACH(Model)              \
    EACH(SerialID)           \
    EACH(CaveatText)

// An item of property of an incident as card:RMSPropertyIndexCards.
class LejisPropertyIndexCard final : public platform::ComObject<::LejisPropertyIndexCard, ILejisPropertyIndexCard> {
public:
    TEXT_PROPERTIES(PROPERTY_TEXTS)
    BOOLEAN_PROPERTY(CautionIndicator)
    STDMETHODIMP LoadDefaults() override;
    XML_METHODS()

private:
    void Reset();
};

}  // namespace lejis
