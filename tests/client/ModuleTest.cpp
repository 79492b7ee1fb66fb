// The DLL's exports, its class objects, and when it may be unloaded.
#include "client/Client.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <set>
#include <string>

namespace client {
namespace {

template <typename Structure>
const Structure* At(HMODULE module, uintptr_t offset) {
    return reinterpret_cast<const Structure*>(reinterpret_cast<uintptr_t>(module) + offset);
}

const IMAGE_DATA_DIRECTORY& DirectoryOf(HMODULE module, size_t which) {
    const auto* dos = At<IMAGE_DOS_HEADER>(module, 0);
    const auto* headers = At<IMAGE_NT_HEADERS>(module, static_cast<uintptr_t>(dos->e_lfanew));
    return headers->OptionalHeader.DataDirectory[which];
}

class LoadedModule : public testing::Test {
protected:
    HRESULT CanUnloadNow() const { return module_.Export<HRESULT STDAPICALLTYPE()>("DllCanUnloadNow")(); }

    HRESULT GetClassObject(REFCLSID id, REFIID iid, void** object) const {
        return module_.Export<HRESULT STDAPICALLTYPE(REFCLSID, REFIID, void**)>("DllGetClassObject")(id, iid, object);
    }

    ComPtr<IClassFactory> Factory(REFCLSID id) const {
        ComPtr<IClassFactory> factory;
        EXPECT_OK(GetClassObject(id, IID_PPV_ARGS(factory.GetAddressOf())));
        return factory;
    }

    const Module module_;
};

TEST_F(LoadedModule, ExportsTheFourStandardFunctionsAndNoOther) {
    const auto& entry = DirectoryOf(module_.Handle(), IMAGE_DIRECTORY_ENTRY_EXPORT);
    const auto* exports = At<IMAGE_EXPORT_DIRECTORY>(module_.Handle(), entry.VirtualAddress);
    const auto* names = At<DWORD>(module_.Handle(), exports->AddressOfNames);
    std::set<std::string> found;
    for (DWORD index = 0; index < exports->NumberOfNames; ++index) {
        found.insert(At<char>(module_.Handle(), names[index]));
    }
    EXPECT_EQ(
        (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllRegisterServer", "DllUnregisterServer"}),
        found);
    EXPECT_EQ(4U, exports->NumberOfFunctions) << "functions without a name";
}

TEST_F(LoadedModule, KnowsOnlyItsOwnCreatableClasses) {
    for (const CLSID& id : {GUID_NULL, __uuidof(Collection), CLSID_StdGlobalInterfaceTable}) {
        void* object = this;
        EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE, GetClassObject(id, __uuidof(IClassFactory), &object)) << GuidText(id);
        EXPECT_EQ(nullptr, object);
    }
}

TEST_F(LoadedModule, GivesAClassObjectForFactoryInterfacesOnly) {
    void* object = this;
    EXPECT_EQ(E_NOINTERFACE, GetClassObject(__uuidof(NullableDate), __uuidof(INullableDate), &object));
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ(E_POINTER, GetClassObject(__uuidof(NullableDate), __uuidof(IClassFactory), nullptr));
    ComPtr<IUnknown> asUnknown;
    EXPECT_OK(GetClassObject(__uuidof(NullableDate), IID_PPV_ARGS(asUnknown.GetAddressOf())));
}

TEST_F(LoadedModule, CreatesObjectsOfTheInterfacesThatTheyHave) {
    const auto factory = Factory(__uuidof(NullableDate));
    ComPtr<INullableDate> date;
    void* other = this;
    EXPECT_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(date.GetAddressOf())));
    EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, __uuidof(INullableLong), &other));
    EXPECT_EQ(nullptr, other);
    EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, __uuidof(INullableDate), nullptr));
}

TEST_F(LoadedModule, RefusesToBeAggregated) {
    const auto factory = Factory(__uuidof(SOAPEnvelope));
    void* object = this;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(factory.Get(), __uuidof(IUnknown), &object));
    EXPECT_EQ(nullptr, object);
}

TEST_F(LoadedModule, StaysWhileAnObjectLives) {
    ASSERT_EQ(S_OK, CanUnloadNow());
    auto date = Create<NullableDate, INullableDate>();
    EXPECT_EQ(S_FALSE, CanUnloadNow());
    date.Reset();
    EXPECT_EQ(S_OK, CanUnloadNow());
}

TEST_F(LoadedModule, StaysWhileAnObjectThatAnotherGaveLives) {
    auto incident = Create<LejisIncidentIndexCard, ILejisIncidentIndexCard>();
    ComPtr<ICollection> persons;
    ComPtr<IUnknown> enumerator;
    ASSERT_OK(incident->get_PersonIndexCards(persons.GetAddressOf()));
    ASSERT_OK(persons->get__NewEnum(enumerator.GetAddressOf()));
    incident.Reset();
    persons.Reset();
    EXPECT_EQ(S_FALSE, CanUnloadNow());
    enumerator.Reset();
    EXPECT_EQ(S_OK, CanUnloadNow());
}

TEST_F(LoadedModule, StaysWhileItIsLocked) {
    auto factory = Factory(__uuidof(LejisCommon));
    ASSERT_OK(factory->LockServer(TRUE));
    ASSERT_OK(factory->LockServer(TRUE));
    ASSERT_OK(factory->LockServer(FALSE));
    EXPECT_EQ(S_FALSE, CanUnloadNow());
    ASSERT_OK(factory->LockServer(FALSE));
    EXPECT_EQ(S_FALSE, CanUnloadNow()) << "the factory itself still lives";
    factory.Reset();
    EXPECT_EQ(S_OK, CanUnloadNow());
}

TEST_F(LoadedModule, NeedsNoRunTimeLibraryOfTheCompiler) {
    const auto& entry = DirectoryOf(module_.Handle(), IMAGE_DIRECTORY_ENTRY_IMPORT);
    const auto* imported = At<IMAGE_IMPORT_DESCRIPTOR>(module_.Handle(), entry.VirtualAddress);
    ASSERT_NE(0U, imported->Name);
    for (; imported->Name != 0; ++imported) {
        const std::string name = At<char>(module_.Handle(), imported->Name);
        EXPECT_FALSE(name.starts_with("lib")) << name;
    }
}

}  // namespace
}  // namespace client
