#pragma once

#include "foundation/NullableLong.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"
#include "platform/com/TextProperties.h"

#include <TVLejisCore.h>

namespace lejis {

class ElementReader;

#define ADDRESS_TEXTS(EACH) \
    EACH(StreetFullText)    \
    EACH(StreetName)        \
    EACH(StreetType)        \
    EACH(StreetDirection)   \
    EACH(StreetExtension)   \
    EACH(City)              \
    EACH(State)             \
    EACH(ZIP)

// An address as j:LocationAddress. It is read from the element that contains that: j:IncidentLocation or j:Residence.
class LejisStreetAddress final : public platform::ComObject<::LejisStreetAddress, ILejisStreetAddress> {
public:
    TEXT_PROPERTIES(ADDRESS_TEXTS)
    OBJECT_PROPERTY(NullableLong, StreetNumber)
    XML_METHODS()

private:
    void Reset();
    void ReadStreet(const ElementReader& street);
    msxml::Element StreetElement(const OutputDocument& document) const;
};

}  // namespace lejis
