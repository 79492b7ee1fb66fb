#pragma once

#include "inquiry/BlockMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The words to search for, as lejis:AdHocInquiryArguments.
class LejisAdHocInquiryArguments final
    : public platform::ComObject<::LejisAdHocInquiryArguments, ILejisAdHocInquiryArguments> {
public:
    TEXT_BLOCK()
    TEXT_FIELD(QueryString)
    BLOCK_METHODS()
};

}  // namespace lejis
