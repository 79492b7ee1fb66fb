#pragma once

#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The place to search for, as inq:LocationInquiryArguments.
class LocationInquiryArguments final
    : public platform::ComObject<::LocationInquiryArguments, ILocationInquiryArguments> {
public:
    TEXT_PROPERTY(StreetFullText)
    TEXT_PROPERTY(StreetName)
    TEXT_PROPERTY(City)
    TEXT_PROPERTY(State)
    TEXT_PROPERTY(ZIP)
    BLOCK_METHODS()
};

}  // namespace lejis
