#include "client/Client.h"

#include <oleauto.h>

namespace client {
namespace {

// What clients write into their projects to refer to the library.
constexpr GUID kLibrary = {0x458BB764, 0x060D, 0x401D, {0xBF, 0x22, 0x1A, 0xC8, 0x83, 0x76, 0x9C, 0xB8}};

}  // namespace

#define CLASS_ROW(Class) \
    ClassRow { L"" #Class, __uuidof(Class), __uuidof(I##Class) }

const std::vector<ClassRow>& CreatableClasses() {
    static const std::vector<ClassRow> classes = {
        CLASS_ROW(NullableDate),
        CLASS_ROW(NullableInteger),
        CLASS_ROW(NullableLong),
        CLASS_ROW(LejisCommon),
        CLASS_ROW(LejisStreetAddress),
        CLASS_ROW(LejisPersonIndexCard),
        CLASS_ROW(LejisVehicleIndexCard),
        CLASS_ROW(LejisPropertyIndexCard),
        CLASS_ROW(LejisIncidentIndexCard),
        CLASS_ROW(LejisContributingSystem),
        CLASS_ROW(LejisSubmissionDocument),
        CLASS_ROW(Future),
        CLASS_ROW(FutureManager),
        CLASS_ROW(LejisIncidentValidator),
        CLASS_ROW(LejisIncidentFormatter),
        CLASS_ROW(PersonInquiryArguments),
        CLASS_ROW(LocationInquiryArguments),
        CLASS_ROW(PropertyInquiryArguments),
        CLASS_ROW(VehicleInquiryArguments),
        CLASS_ROW(LejisAdHocInquiryArguments),
        CLASS_ROW(LejisInquiryControls),
        CLASS_ROW(LejisSearchRequest),
        CLASS_ROW(LejisInquiryResponse),
        CLASS_ROW(SOAPEnvelope),
        CLASS_ROW(LejisSubmissionWebService),
        CLASS_ROW(LejisSearchWebService),
        CLASS_ROW(TestSearch),
    };
    return classes;
}

#undef CLASS_ROW

std::wstring ProgIdOf(const std::wstring& className) { return L"TVLejisCore." + className; }

std::wstring GuidText(REFGUID guid) {
    wchar_t text[40];
    StringFromGUID2(guid, text, ARRAYSIZE(text));
    return text;
}

ComPtr<IDispatch> CreateByName(const std::wstring& className) {
    CLSID id;
    ComPtr<IDispatch> object;
    EXPECT_OK(CLSIDFromProgID(ProgIdOf(className).c_str(), &id));
    EXPECT_OK(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())));
    return object;
}

REFGUID LibraryId() { return kLibrary; }

ComPtr<ITypeLib> RegisteredTypeLibrary() {
    ComPtr<ITypeLib> library;
    EXPECT_OK(LoadRegTypeLib(kLibrary, 1, 0, LOCALE_NEUTRAL, library.GetAddressOf()));
    return library;
}

std::wstring RegisteredPath() {
    wchar_t path[MAX_PATH] = L"";
    DWORD size = sizeof path;
    const std::wstring key = L"CLSID\\" + GuidText(__uuidof(NullableDate)) + L"\\InprocServer32";
    EXPECT_EQ(ERROR_SUCCESS,
              RegGetValueW(HKEY_CLASSES_ROOT, key.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, path, &size));
    return path;
}

Module::Module() : handle_(LoadLibraryW(RegisteredPath().c_str())) { EXPECT_NE(nullptr, handle_); }

Module::~Module() { FreeLibrary(handle_); }

}  // namespace client
