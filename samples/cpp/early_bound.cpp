// early_bound URL USER SURNAME
// Searches LEJIS for a person and lists the incidents found. Ends with 0: answered, 1: refused, trying again does not
// help, 2: try again later.
#include <comutil.h>
#include <ocidl.h>
#include <TVLejisCore.h>
#include <wrl/client.h>

#include <cstdio>
#include <utility>

using Microsoft::WRL::ComPtr;

namespace {

// Only failures of the platform come here: a search reports its own by an event.
void Check(HRESULT result) {
    if (FAILED(result)) throw _com_error(result);
}

template <typename Interface>
ComPtr<Interface> Item(ICollection* collection, long number) {
    _variant_t item;
    ComPtr<Interface> object;
    Check(collection->get_Item(number, &item));
    Check(static_cast<IDispatch*>(item)->QueryInterface(IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

long Count(ICollection* collection) {
    long count = 0;
    Check(collection->get_Count(&count));
    return count;
}

// The value of a text property, such as &ILejisPersonIndexCard::get_SurName.
template <typename Interface>
_bstr_t Text(const ComPtr<Interface>& object, HRESULT (STDMETHODCALLTYPE Interface::*get)(BSTR*)) {
    _bstr_t text;
    Check((object.Get()->*get)(text.GetAddress()));
    return text;
}

void Print(const _bstr_t& text) { std::printf("%ls", text.length() ? static_cast<const wchar_t*>(text) : L""); }

void ShowPerson(const ComPtr<ILejisPersonIndexCard>& person) {
    std::printf("    ");
    Print(Text(person, &ILejisPersonIndexCard::get_GivenName) + L" ");
    Print(Text(person, &ILejisPersonIndexCard::get_SurName) + L" (");
    Print(Text(person, &ILejisPersonIndexCard::get_Involvement) + L")\n");
}

void ShowIncident(const ComPtr<ILejisIncidentIndexCard>& incident) {
    Print(Text(incident, &ILejisIncidentIndexCard::get_OrganizationORI) + L" ");
    Print(Text(incident, &ILejisIncidentIndexCard::get_ActivityID) + L" ");
    Print(Text(incident, &ILejisIncidentIndexCard::get_ChargeDescriptionText) + L"\n");
    ComPtr<ICollection> persons;
    Check(incident->get_PersonIndexCards(persons.GetAddressOf()));
    for (long number = 1; number <= Count(persons.Get()); ++number) {
        ShowPerson(Item<ILejisPersonIndexCard>(persons.Get(), number));
    }
}

void Show(ICollection* incidents) {
    std::printf("%ld incident(s) found.\n", Count(incidents));
    for (long number = 1; number <= Count(incidents); ++number) {
        ShowIncident(Item<ILejisIncidentIndexCard>(incidents, number));
    }
}

// Hears the one event of a search. It lives longer than its connection, so it counts no references.
class SearchListener final : public IDispatch {
public:
    bool IsAnswered() const { return exitCode_ >= 0; }
    int ExitCode() const { return exitCode_; }

    STDMETHODIMP QueryInterface(REFIID id, void** object) override {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(_LejisSearchWebServiceEvents);
        *object = known ? this : nullptr;
        return known ? S_OK : E_NOINTERFACE;
    }
    STDMETHODIMP_(ULONG) AddRef() override { return 2; }
    STDMETHODIMP_(ULONG) Release() override { return 1; }
    STDMETHODIMP GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    STDMETHODIMP GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }

    STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
        // The numbers of the events in _LejisSearchWebServiceEvents; 2 is never raised.
        switch (event) {
            case 1:
                return Completed(V_DISPATCH(&arguments->rgvarg[0]));
            case 3:
                return Failed("Not set up correctly, tell the administrator", V_BSTR(&arguments->rgvarg[0]), 1);
            case 4:
                return Failed("No answer, try again later", V_BSTR(&arguments->rgvarg[0]), 2);
            case 5:
                return Failed("Refused", V_BSTR(&arguments->rgvarg[0]), 1);
            default:
                return DISP_E_MEMBERNOTFOUND;
        }
    }

private:
    // Nothing may leave a COM method as an exception.
    HRESULT Completed(IDispatch* results) {
        try {
            ComPtr<ICollection> incidents;
            Check(results->QueryInterface(IID_PPV_ARGS(incidents.GetAddressOf())));
            Show(incidents.Get());
            exitCode_ = 0;
        } catch (const _com_error& error) {
            exitCode_ = 1;
            return error.Error();
        }
        return S_OK;
    }

    HRESULT Failed(const char* advice, BSTR reason, int exitCode) {
        std::printf("%s: %ls\n", advice, reason ? reason : L"");
        exitCode_ = exitCode;
        return S_OK;
    }

    int exitCode_ = -1;
};

// Connected from its beginning to its end.
class Connection {
public:
    Connection(ILejisSearchWebService* service, IDispatch* listener) {
        ComPtr<IConnectionPointContainer> container;
        Check(service->QueryInterface(IID_PPV_ARGS(container.GetAddressOf())));
        Check(container->FindConnectionPoint(__uuidof(_LejisSearchWebServiceEvents), point_.GetAddressOf()));
        Check(point_->Advise(listener, &cookie_));
    }
    ~Connection() { point_->Unadvise(cookie_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

private:
    ComPtr<IConnectionPoint> point_;
    DWORD cookie_ = 0;
};

template <typename Class, typename Interface>
ComPtr<Interface> Create() {
    ComPtr<Interface> object;
    Check(CoCreateInstance(__uuidof(Class), nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

ComPtr<ILejisSearchRequest> RequestFor(const wchar_t* surname) {
    const auto request = Create<LejisSearchRequest, ILejisSearchRequest>();
    ComPtr<IPersonInquiryArguments> person;
    ComPtr<ILejisInquiryControls> controls;
    Check(request->get_personArguments(person.GetAddressOf()));
    Check(person->put_SurName(_bstr_t(surname)));
    Check(request->get_InquiryControls(controls.GetAddressOf()));
    Check(controls->put_MaxIncidents(50));
    return request;
}

int Search(const wchar_t* url, const wchar_t* user, const wchar_t* surname) {
    const auto service = Create<LejisSearchWebService, ILejisSearchWebService>();
    Check(service->put_URL(_bstr_t(url)));
    Check(service->put_Username(_bstr_t(user)));
    SearchListener listener;
    const Connection connection(service.Get(), &listener);
    Check(service->Search(RequestFor(surname).Get()));
    // The event comes from the message loop; a program with windows has one already.
    MSG message;
    while (!listener.IsAnswered() && GetMessageW(&message, nullptr, 0, 0) > 0) DispatchMessageW(&message);
    return listener.ExitCode();
}

int Run(wchar_t** arguments) {
    try {
        return Search(arguments[1], arguments[2], arguments[3]);
    } catch (const _com_error& error) {
        std::printf("Is TVLejisCore.dll registered? %ls\n", error.ErrorMessage());
        return 1;
    }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
    if (count != 4) {
        std::puts("usage: early_bound URL USER SURNAME");
        return 64;
    }
    if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) return 1;
    const int code = Run(arguments);
    CoUninitialize();
    return code;
}
