#pragma once

#include "model/XmlMethods.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// The system that contributes a submission, as lejis:ContributingSystem. Its texts change only by being read.
class LejisContributingSystem final : public platform::ComObject<::LejisContributingSystem, ILejisContributingSystem> {
public:
    LejisContributingSystem();

    READ_ONLY_TEXT_PROPERTY(CompanyName)
    READ_ONLY_TEXT_PROPERTY(SystemName)
    READ_ONLY_TEXT_PROPERTY(SystemVersion)
    XML_METHODS()
};

}  // namespace lejis
