#pragma once

#include "foundation/NullableLong.h"
#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

class ElementReader;

// An address as j:LocationAddress. It is read from the element that contains that: j:IncidentLocation or j:Residence.
class LejisStreetAddress final : public platform::ComObject<::LejisStreetAddress, ILejisStreetAddress> {
public:
    TEXT_PROPERTY(StreetFullText)
    TEXT_PROPERTY(StreetName)
    TEXT_PROPERTY(StreetType)
    TEXT_PROPERTY(StreetDirection)
    TEXT_PROPERTY(StreetExtension)
    TEXT_PROPERTY(City)
    TEXT_PROPERTY(State)
    TEXT_PROPERTY(ZIP)
    OBJECT_PROPERTY(NullableLong, StreetNumber)
    XML_METHODS()

private:
    void Reset();
    void ReadStreet(const ElementReader& street);
    msxml::Element StreetElement(const msxml::Document& document) const;
};

}  // namespace lejis
