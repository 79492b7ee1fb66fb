// late_bound URL
// Submits one incident to LEJIS, knowing nothing of the library but its names. Ends with 0: taken, 1: refused, trying
// again does not help, 2: try again later.
#include <comutil.h>
#include <windows.h>
#include <wrl/client.h>

#include <cstdio>
#include <string>
#include <vector>

using Microsoft::WRL::ComPtr;
using Object = ComPtr<IDispatch>;

namespace {

constexpr HRESULT kTransientError = static_cast<HRESULT>(0xA38F7530);

// A call that failed, with the description that the library gave.
struct CallError {
    HRESULT number;
    std::wstring description;
};

void Check(HRESULT result) {
    if (FAILED(result)) throw CallError{result, L"Is TVLejisCore.dll registered?"};
}

Object Create(const wchar_t* progId) {
    CLSID id;
    Object object;
    Check(CLSIDFromProgID(progId, &id));
    Check(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

// Arguments travel in reverse order.
_variant_t Invoke(const Object& object, const wchar_t* name, WORD kind, std::vector<_variant_t> reversed) {
    DISPID member = DISPID_UNKNOWN;
    LPOLESTR names[] = {const_cast<LPOLESTR>(name)};
    Check(object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member));
    DISPID put = DISPID_PROPERTYPUT;
    const bool puts = kind == DISPATCH_PROPERTYPUT;
    DISPPARAMS parameters = {reversed.data(), puts ? &put : nullptr, static_cast<UINT>(reversed.size()),
                             puts ? 1u : 0u};
    _variant_t result;
    EXCEPINFO raised = {};
    const HRESULT code =
        object->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, &result, &raised, nullptr);
    const _bstr_t description(raised.bstrDescription, false);
    SysFreeString(raised.bstrSource);
    SysFreeString(raised.bstrHelpFile);
    // The library's own number and text.
    if (code == DISP_E_EXCEPTION) {
        throw CallError{raised.scode, description.length() ? std::wstring(description) : std::wstring()};
    }
    Check(code);
    return result;
}

Object Get(const Object& object, const wchar_t* name) {
    return static_cast<IDispatch*>(Invoke(object, name, DISPATCH_PROPERTYGET, {}));
}

void Put(const Object& object, const wchar_t* name, const _variant_t& value) {
    Invoke(object, name, DISPATCH_PROPERTYPUT, {value});
}

_variant_t Call(const Object& object, const wchar_t* name, const _variant_t& argument) {
    return Invoke(object, name, DISPATCH_METHOD, {argument});
}

Object Burglary() {
    const Object incident = Create(L"TVLejisCore.LejisIncidentIndexCard");
    Put(incident, L"OrganizationName", L"Harlow Police Department");
    Put(incident, L"OrganizationORI", L"PA0250100");
    Put(incident, L"ActivityID", L"2007-000123");
    Put(Get(incident, L"SubmittedDate"), L"Value", L"2007-03-09 14:05:00");
    Put(Get(incident, L"ActivityDateTime"), L"Value", L"2007-03-09 14:05:00");
    Put(incident, L"ChargeNCICCode", L"2202");
    Put(incident, L"ChargeDescriptionText", L"Burglary, forced entry, residence");
    // The parts of an incident are there from the beginning and are filled in place.
    Put(Get(incident, L"Location"), L"City", L"HARLOW");
    Put(Get(incident, L"Location"), L"ZIP", L"170991234");
    const Object victim = Create(L"TVLejisCore.LejisPersonIndexCard");
    Put(victim, L"GivenName", L"JOHN");
    Put(victim, L"SurName", L"PUBLIC");
    Put(victim, L"Involvement", L"VICTIM");
    Put(victim, L"RaceNCIC", L"X");
    Call(Get(incident, L"PersonIndexCards"), L"Add", _variant_t(victim.Get()));
    return incident;
}

void Submit(const wchar_t* url) {
    const Object service = Create(L"TVLejisCore.LejisSubmissionWebService");
    Put(service, L"URL", url);
    const Object warnings = static_cast<IDispatch*>(Call(service, L"SubmitIncident", _variant_t(Burglary().Get())));
    const long count = Invoke(warnings, L"Count", DISPATCH_PROPERTYGET, {});
    std::printf("Submitted with %ld warning(s).\n", count);
    for (long number = 1; number <= count; ++number) {
        const _bstr_t warning(Invoke(warnings, L"Item", DISPATCH_PROPERTYGET, {_variant_t(number)}));
        std::printf("Warning: %ls\n", static_cast<const wchar_t*>(warning));
    }
}

int Run(const wchar_t* url) {
    try {
        Submit(url);
        return 0;
    } catch (const CallError& error) {
        const bool mayRetry = error.number == kTransientError;
        std::printf("%s: %ls\n", mayRetry ? "Not sent, try again later" : "Refused", error.description.c_str());
        return mayRetry ? 2 : 1;
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 2) {
        std::puts("usage: late_bound URL");
        return 64;
    }
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int code = Run(arguments[1]);
    CoUninitialize();
    return code;
}
