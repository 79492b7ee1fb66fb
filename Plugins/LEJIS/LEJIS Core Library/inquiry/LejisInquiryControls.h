#pragma once

#include "inquiry/BlockMethods.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

using platform::Collection;

// How to search, as lejis:InquiryControls.
class LejisInquiryControls final : public platform::ComObject<::LejisInquiryControls, ILejisInquiryControls> {
public:
    BOOLEAN_PROPERTY(IrrInfo)
    LONG_PROPERTY(MaxIncidents)
    OBJECT_PROPERTY(Collection, ExcludedORIIDs)
    BLOCK_METHODS()
};

}  // namespace lejis
