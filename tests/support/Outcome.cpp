#include "support/Outcome.h"

#include "support/ComCheck.h"
#include "support/Printing.h"

#include <TVLejisCore.h>

namespace support {

std::wstring OutcomeOf(HRESULT result) {
    if (SUCCEEDED(result)) return L"success";
    const std::wstring description = TakeError(result).description;
    switch (result) {
        case tvTransientError:
            return L"transient: " + description;
        case tvFatalError:
            return L"fatal: " + description;
        default:
            return L"error " + std::to_wstring(result) + L": " + description;
    }
}

std::wstring OutcomeOf(const std::vector<std::wstring>& events) {
    std::wstring outcome;
    for (const std::wstring& event : events) outcome += (outcome.empty() ? L"" : L" | ") + event;
    return outcome.empty() ? L"no event" : outcome;
}

std::string Escaped(const std::wstring& text) {
    std::string escaped;
    for (const char character : Utf8(text)) {
        switch (character) {
            case '\\':
                escaped += "\\\\";
                break;
            case '\r':
                escaped += "\\r";
                break;
            case '\n':
                escaped += "\\n";
                break;
            case '\t':
                escaped += "\\t";
                break;
            default:
                escaped += character;
        }
    }
    return escaped;
}

}  // namespace support
