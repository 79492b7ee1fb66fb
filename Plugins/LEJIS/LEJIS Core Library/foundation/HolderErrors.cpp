#include "foundation/HolderErrors.h"

#include "platform/Conversions.h"
#include "platform/host/SuiteHost.h"

namespace lejis {

platform::ComError CannotAssign(const VARIANT& value, const std::wstring& holder) {
    // The two blanks before "to" are deliberate.
    return platform::host::InvalidArgument(L"Cannot assign '" + platform::TypeName(value) + L"'  to " + holder);
}

platform::ComError NotAValid(const std::wstring& kind) {
    return platform::host::InvalidArgument(L"Not a valid " + kind + L".");
}

}  // namespace lejis
