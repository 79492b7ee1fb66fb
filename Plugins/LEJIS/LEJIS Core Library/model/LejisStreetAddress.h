#pragma once

#include "foundation/NullableNumber.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// An address as j:LocationAddress. It is read from the element that contains that: j:IncidentLocation or j:Residence.
class LejisStreetAddress final : public platform::ComObject<::LejisStreetAddress, ILejisStreetAddress> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(StreetFullText)
    TEXT_FIELD(StreetName)
    TEXT_FIELD(StreetType)
    TEXT_FIELD(StreetDirection)
    TEXT_FIELD(StreetExtension)
    TEXT_FIELD(City)
    TEXT_FIELD(State)
    TEXT_FIELD(ZIP)
    OBJECT_PROPERTY(NullableLong, StreetNumber)
    XML_METHODS()

private:
    void Reset();
    void ReadStreet(const ElementReader& street);
    msxml::Element StreetElement(const OutputDocument& document) const;
};

}  // namespace lejis
