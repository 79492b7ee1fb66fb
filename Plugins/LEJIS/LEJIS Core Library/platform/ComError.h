// The one exception of the library, and the check that every call to the platform goes through.
#pragma once

#include <windows.h>

#include <string>

namespace platform {

// A failure as a COM client sees it. `source` is empty until the failure leaves the library, unless the callee set it.
class ComError {
public:
    ComError(HRESULT number, std::wstring description, std::wstring source = {});

    HRESULT Number() const { return number_; }
    const std::wstring& Description() const { return description_; }
    const std::wstring& Source() const { return source_; }

private:
    HRESULT number_;
    std::wstring description_;
    std::wstring source_;
};

// The failure `number` with the description that the callee left, else the system's own text for it.
ComError LastError(HRESULT number);

// The same, with `beginning` before the system's own text, which alone would not tell what has failed.
ComError LastError(HRESULT number, const std::wstring& beginning);

// Throws LastError when `result` is a failure.
inline void Check(HRESULT result) {
    if (FAILED(result)) throw LastError(result);
}

// The errors 424, 13 and 6 of Visual Basic and its relatives.
ComError ObjectRequired();
ComError TypeMismatch();
ComError Overflow();

}  // namespace platform
