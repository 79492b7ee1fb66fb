#include "platform/com/Guard.h"

#include "platform/com/TypeLibrary.h"
#include "platform/ComError.h"
#include "platform/Text.h"

#include <comdef.h>

#include <exception>
#include <new>

using Microsoft::WRL::ComPtr;

namespace platform {
namespace {

// An object outside the public classes, such as an enumerator, names the library as its source.
std::wstring SourceOf(const ComError& error, REFCLSID classId) {
    if (!error.Source().empty()) return error.Source();
    return classId == GUID_NULL ? LibraryName() : ProgIdOf(classId);
}

void SetErrorObject(const ComError& error, REFCLSID classId) {
    ComPtr<ICreateErrorInfo> creator;
    ComPtr<IErrorInfo> information;
    Check(CreateErrorInfo(creator.GetAddressOf()));
    Check(creator->SetDescription(ToBstr(error.Description())));
    Check(creator->SetSource(ToBstr(SourceOf(error, classId))));
    Check(creator->SetGUID(classId));
    Check(creator.As(&information));
    Check(SetErrorInfo(0, information.Get()));
}

}  // namespace

ComError CaughtError() {
    try {
        throw;
    } catch (const ComError& error) {
        return error;
    } catch (const _com_error& error) {
        return LastError(error.Error());
    } catch (const std::bad_alloc&) {
        return ComError(E_OUTOFMEMORY, L"Out of memory");
    } catch (const std::exception& error) {
        const std::string_view text = error.what();
        return ComError(E_UNEXPECTED, std::wstring(text.begin(), text.end()));
    } catch (...) {
        return ComError(E_UNEXPECTED, L"Unexpected error");
    }
}

HRESULT ReportException(REFCLSID classId) noexcept {
    HRESULT number = E_OUTOFMEMORY;
    try {
        const ComError error = CaughtError();
        number = error.Number();
        SetErrorObject(error, classId);
    } catch (...) {
        // The number alone still reaches the client when there is no memory left for its description.
    }
    return number;
}

}  // namespace platform
