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
    TEXT_BLOCK()
    TEXT_FIELD(StreetFullText)
    TEXT_FIELD(StreetName)
    TEXT_FIELD(City)
    TEXT_FIELD(State)
    TEXT_FIELD(ZIP)
    BLOCK_METHODS()
};

}  // namespace lejis
