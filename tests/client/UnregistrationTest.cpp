// Taking the DLL out of the registry and putting it back.
#include "client/Client.h"
#include "client/RegistrySnapshot.h"
#include "support/Printing.h"

#include <gtest/gtest.h>

namespace client {
namespace {

// Whatever a test does, the DLL is registered afterwards as it was before.
class Unregistration : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(nullptr, register_);
        ASSERT_NE(nullptr, unregister_);
        ASSERT_FALSE(EntriesOfLibrary(registered_, View::kOwn).empty());
    }

    void TearDown() override {
        EXPECT_OK(register_());
        EXPECT_EQ("", Differences(registered_, TakeSnapshot())) << "not restored as it was";
    }

    using Export = HRESULT STDAPICALLTYPE();

    const Module module_;
    Export* const register_ = module_.Export<Export>("DllRegisterServer");
    Export* const unregister_ = module_.Export<Export>("DllUnregisterServer");
    const RegistrySnapshot registered_ = TakeSnapshot();
};

// What stays for the other bitness when it is registered: ProgIDs, the type library without this one's platform, and
// its interfaces, which the system registers for both bitnesses together.
RegistrySnapshot SharedWithOtherBitness(const RegistrySnapshot& registered) {
    RegistrySnapshot shared;
    if (!registered.contains(L"other\\CLSID\\" + GuidText(__uuidof(NullableDate)))) return shared;
    const std::wstring ownPlatform = sizeof(void*) == 8 ? L"\\win64" : L"\\win32";
    for (const auto& entry : EntriesOfLibrary(registered, View::kOwn)) {
        const bool ofClass = entry.first.starts_with(L"own\\CLSID\\");
        if (!ofClass && entry.first.find(ownPlatform) == std::wstring::npos) shared.insert(entry);
    }
    return shared;
}

// A key of the other bitness. Where it is not registered it is put there, and taken away again.
class OtherKey {
public:
    OtherKey(std::wstring key, REGSAM view, const std::wstring& text) : key_(std::move(key)), view_(view) {
        if (IsThere()) return;
        HKEY handle = nullptr;
        RegCreateKeyExW(HKEY_CLASSES_ROOT, key_.c_str(), 0, nullptr, 0, KEY_WRITE | view_, nullptr, &handle, nullptr);
        RegSetValueExW(handle, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(text.c_str()),
                       static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t)));
        RegCloseKey(handle);
        isOurs_ = true;
    }
    ~OtherKey() {
        if (isOurs_) RegDeleteKeyExW(HKEY_CLASSES_ROOT, key_.c_str(), view_, 0);
    }
    OtherKey(const OtherKey&) = delete;
    OtherKey& operator=(const OtherKey&) = delete;

    bool IsThere() const {
        HKEY handle = nullptr;
        if (RegOpenKeyExW(HKEY_CLASSES_ROOT, key_.c_str(), 0, KEY_READ | view_, &handle) != ERROR_SUCCESS) return false;
        RegCloseKey(handle);
        return true;
    }

private:
    const std::wstring key_;
    const REGSAM view_;
    bool isOurs_ = false;
};

// The other bitness, registered beside this one: a class of its own, and its place in the type library, which both
// share.
class OtherBitness {
public:
    explicit OtherBitness(const std::wstring& libraryPath)
        : class_(L"CLSID\\" + GuidText(__uuidof(NullableDate)), sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY,
                 L""),
          platform_(L"TypeLib\\" + GuidText(LibraryId()) + L"\\1.0\\0\\" + (sizeof(void*) == 8 ? L"win32" : L"win64"),
                    0, libraryPath) {}

    bool IsThere() const { return class_.IsThere() && platform_.IsThere(); }

private:
    OtherKey class_;
    OtherKey platform_;
};

TEST_F(Unregistration, LeavesNoClassBehind) {
    ASSERT_OK(unregister_());
    const RegistrySnapshot unregistered = TakeSnapshot();
    for (const ClassRow& row : CreatableClasses()) {
        EXPECT_FALSE(unregistered.contains(L"own\\CLSID\\" + GuidText(row.id))) << support::Utf8(row.name);
    }
    EXPECT_NE("", Differences(registered_, unregistered));
}

TEST_F(Unregistration, LeavesTheRegistryAsItWasBeforeTheRegistration) {
    ASSERT_OK(unregister_());
    const RegistrySnapshot before = TakeSnapshot();
    ASSERT_OK(register_());
    ASSERT_OK(unregister_());
    EXPECT_EQ("", Differences(before, TakeSnapshot()));
}

TEST_F(Unregistration, TakesOutEverythingButWhatTheOtherBitnessShares) {
    ASSERT_OK(unregister_());
    const RegistrySnapshot left = EntriesOfLibrary(TakeSnapshot(), View::kOwn);
    EXPECT_EQ("", Differences(SharedWithOtherBitness(registered_), left));
}

TEST_F(Unregistration, TouchesNothingOfOthers) {
    ASSERT_OK(unregister_());
    RegistrySnapshot foreign = registered_;
    for (const View view : {View::kOwn, View::kOther}) {
        for (const auto& entry : EntriesOfLibrary(registered_, view)) foreign.erase(entry.first);
    }
    RegistrySnapshot left = TakeSnapshot();
    for (const View view : {View::kOwn, View::kOther}) {
        for (const auto& entry : EntriesOfLibrary(TakeSnapshot(), view)) left.erase(entry.first);
    }
    EXPECT_EQ("", Differences(foreign, left));
}

TEST_F(Unregistration, MakesTheClassesUnknownUntilTheyAreRegisteredAgain) {
    ComPtr<IClassFactory> factory;
    ASSERT_OK(unregister_());
    EXPECT_EQ(REGDB_E_CLASSNOTREG, CoGetClassObject(__uuidof(SOAPEnvelope), CLSCTX_INPROC_SERVER, nullptr,
                                                    IID_PPV_ARGS(factory.GetAddressOf())));
    ASSERT_OK(register_());
    EXPECT_NE(nullptr, CreateByName(L"SOAPEnvelope"));
}

TEST_F(Unregistration, IsHarmlessTwice) {
    ASSERT_OK(unregister_());
    const RegistrySnapshot once = TakeSnapshot();
    ASSERT_OK(unregister_());
    EXPECT_EQ("", Differences(once, TakeSnapshot()));
}

TEST_F(Unregistration, RegisteringTwiceIsHarmless) {
    ASSERT_OK(register_());
    ASSERT_OK(register_());
    EXPECT_EQ("", Differences(registered_, TakeSnapshot()));
}

TEST_F(Unregistration, KeepsTheClassesAndProgIdsOfTheOtherBitness) {
    const OtherBitness other(RegisteredPath());
    CLSID id = GUID_NULL;
    ASSERT_TRUE(other.IsThere());
    ASSERT_OK(unregister_());
    EXPECT_TRUE(other.IsThere());
    // Shared by both.
    EXPECT_OK(CLSIDFromProgID(L"TVLejisCore.NullableDate", &id));
    EXPECT_EQ(GuidText(__uuidof(NullableDate)), GuidText(id));
}

TEST_F(Unregistration, KeepsTheInterfacesOfTheOtherBitness) {
    const OtherBitness other(RegisteredPath());
    const RegistrySnapshot before = EntriesOfLibrary(TakeSnapshot(), View::kOther);
    ASSERT_OK(unregister_());
    RegistrySnapshot after = EntriesOfLibrary(TakeSnapshot(), View::kOther);
    // What is shared was the subject above.
    const auto isNoInterface = [](const auto& entry) { return !entry.first.starts_with(L"other\\Interface\\"); };
    RegistrySnapshot interfaces = before;
    std::erase_if(interfaces, isNoInterface);
    std::erase_if(after, isNoInterface);
    ASSERT_FALSE(interfaces.empty());
    EXPECT_EQ("", Differences(interfaces, after)) << "without these, its objects cannot be called across apartments";
}

}  // namespace
}  // namespace client
