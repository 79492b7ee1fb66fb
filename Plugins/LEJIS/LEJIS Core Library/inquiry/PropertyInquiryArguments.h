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
    TEXT_PROPERTY(Category)
    TEXT_PROPERTY(Make)
    TEXT_PROPERTY(Model)
    TEXT_PROPERTY(SerialNumber)
    BLOCK_METHODS()
};

}  // namespace lejis
