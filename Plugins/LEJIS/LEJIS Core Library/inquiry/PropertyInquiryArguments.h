#pragma once

#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The property to search for, as inq:PropertyInquiryArguments.
class PropertyInquiryArguments final
    : public platform::ComObject<::PropertyInquiryArguments, IPropertyInquiryArguments> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(Category)
    TEXT_FIELD(Make)
    TEXT_FIELD(Model)
    TEXT_FIELD(SerialNumber)
    BLOCK_METHODS()
};

}  // namespace lejis
