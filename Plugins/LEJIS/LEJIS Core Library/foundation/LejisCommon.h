#pragma once

#include "platform/com/ComObject.h"

#include <TVLejisCore.h>

namespace lejis {

// The date and time texts of LEJIS for the host.
class LejisCommon final : public platform::ComObject<::LejisCommon, ILejisCommon> {
public:
    STDMETHODIMP LejisFormatDate(DATE theDate, BSTR* result) override;
    STDMETHODIMP LejisFormatTime(DATE theDate, BSTR* result) override;
};

}  // namespace lejis
