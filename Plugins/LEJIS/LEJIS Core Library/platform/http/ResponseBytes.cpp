#include "platform/http/ResponseBytes.h"

namespace platform {

ResponseBytes::ResponseBytes(VARIANT& body) : body_(body, false) {
    void* data = nullptr;
    if (V_VT(&body_) != (VT_ARRAY | VT_UI1)) return;
    SAFEARRAY* const array = V_ARRAY(&body_);
    if (SafeArrayGetDim(array) != 1 || FAILED(SafeArrayAccessData(array, &data))) return;
    bytes_ = {static_cast<const char*>(data), array->rgsabound[0].cElements};
}

ResponseBytes::~ResponseBytes() {
    if (*this) SafeArrayUnaccessData(V_ARRAY(&body_));
}

}  // namespace platform
