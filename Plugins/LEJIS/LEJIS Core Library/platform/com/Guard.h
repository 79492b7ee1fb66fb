// The edge between the library's inside, which raises exceptions, and its COM clients, which get results.
#pragma once

#include "platform/com/Results.h"
#include "platform/ComError.h"

#include <windows.h>

#include <utility>

namespace platform {

// The exception being handled, whatever it is, as the one that the library knows. Call it in a catch (...) only.
ComError CaughtError();

// Turns the exception being handled into the thread's error object and its number. `classId` names the source.
HRESULT ReportException(REFCLSID classId) noexcept;

// Runs `work`; whatever it raises becomes the result. The thread's error object is emptied first, so that a failing
// call to the platform cannot pick up the description of an earlier failure.
template <typename Work>
HRESULT Guard(REFCLSID classId, Work&& work) noexcept {
    SetErrorInfo(0, nullptr);
    try {
        std::forward<Work>(work)();
        return S_OK;
    } catch (...) {
        return ReportException(classId);
    }
}

// The same for work with a result: it is cleared first, and set when the work succeeds.
template <typename Result, typename Work>
HRESULT Guard(REFCLSID classId, Result* result, Work&& work) noexcept {
    if (!result) return E_POINTER;
    *result = Result{};
    return Guard(classId, [&] { Return(result, std::forward<Work>(work)()); });
}

}  // namespace platform
