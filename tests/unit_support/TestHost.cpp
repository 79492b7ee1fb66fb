#include "unit_support/TestHost.h"

#include "platform/ComError.h"
#include "platform/Registry.h"
#include "platform/thread/ThreadState.h"

#include <TVLejisCore.h>

#include <utility>

using Microsoft::WRL::ComPtr;
using platform::Check;

namespace support {
namespace {

constexpr CLSID kServices = {0x2C1F6A01, 0x3D7E, 0x4B0C, {0x9A, 0x11, 0x52, 0x6B, 0x3E, 0x90, 0x7D, 0x01}};
constexpr CLSID kEnvironment = {0x2C1F6A02, 0x3D7E, 0x4B0C, {0x9A, 0x11, 0x52, 0x6B, 0x3E, 0x90, 0x7D, 0x01}};
constexpr CLSID kTimer = {0x2C1F6A03, 0x3D7E, 0x4B0C, {0x9A, 0x11, 0x52, 0x6B, 0x3E, 0x90, 0x7D, 0x01}};

class HostFactory final : public platform::UnknownObject<IClassFactory> {
public:
    explicit HostFactory(std::function<ComPtr<IUnknown>()> maker) : maker_(std::move(maker)) {}

    STDMETHODIMP CreateInstance(IUnknown*, REFIID iid, void** object) override {
        return maker_()->QueryInterface(iid, object);
    }
    STDMETHODIMP LockServer(BOOL) override { return S_OK; }

private:
    std::function<ComPtr<IUnknown>()> maker_;
};

ComPtr<IUnknown> AsUnknown(const ComPtr<LateBoundObject>& object) {
    return ComPtr<IUnknown>(static_cast<IDispatch*>(object.Get()));
}

_variant_t ToVariant(const ComPtr<LateBoundObject>& object) {
    return _variant_t(static_cast<IDispatch*>(object.Get()));
}

}  // namespace

TestHost::TestHost() {
    // What a test before this one has found, or not found, is forgotten.
    platform::thread::ReleaseParts();
    Register(L"TalvexSuite.SuiteServices", kServices, [this] { return MakeServices(); });
    Register(L"TalvexSuite.SuiteEnvironment", kEnvironment, [this] { return MakeEnvironment(); });
    Register(L"TalvexSuite.SuiteTimer", kTimer, [this] { return MakeTimer(); });
}

TestHost::~TestHost() {
    for (const Registration& registration : registrations_) {
        CoRevokeClassObject(registration.cookie);
        platform::DeleteRegistryTree(HKEY_CLASSES_ROOT, registration.progId);
    }
    platform::thread::ReleaseParts();
}

void TestHost::Register(const wchar_t* progId, REFCLSID classId, Maker maker) {
    wchar_t text[40];
    StringFromGUID2(classId, text, ARRAYSIZE(text));
    platform::WriteRegistryText(HKEY_CLASSES_ROOT, std::wstring(progId) + L"\\CLSID", L"", text);
    const auto factory = platform::Create<HostFactory>(std::move(maker));
    DWORD cookie = 0;
    Check(CoRegisterClassObject(classId, factory.Get(), CLSCTX_INPROC_SERVER, REGCLS_MULTIPLEUSE, &cookie));
    registrations_.push_back({progId, cookie});
}

ComPtr<IUnknown> TestHost::MakeServices() {
    ++servicesMade;
    return AsUnknown(platform::Create<LateBoundObject>(
        std::map<std::wstring, Member>{{L"ErrorNumber",
                                        [this](const std::vector<_variant_t>& arguments, WORD) {
                                            errorKinds.push_back(arguments.at(0));
                                            if (failsToNumber) throw platform::ComError(E_FAIL, L"No such kind.");
                                            return _variant_t(errorNumber);
                                        }},
                                       {L"Yield", [this](const std::vector<_variant_t>&, WORD) {
                                            ++yields;
                                            onYield();
                                            return _variant_t();
                                        }}}));
}

ComPtr<IUnknown> TestHost::MakeEnvironment() {
    ++environmentsMade;
    return AsUnknown(platform::Create<LateBoundObject>(std::map<std::wstring, Member>{
        {L"Folders", [this](const std::vector<_variant_t>&, WORD) {
             if (!hasFolders) return _variant_t();
             return ToVariant(platform::Create<LateBoundObject>(
                 std::map<std::wstring, Member>{{L"Diagnostics", [this](const std::vector<_variant_t>&, WORD) {
                                                     return _variant_t(diagnosticsFolder.c_str());
                                                 }}}));
         }}}));
}

ComPtr<IUnknown> TestHost::MakeTimer() {
    timers.push_back(platform::Create<HostTimer>());
    return AsUnknown(timers.back());
}

HostTimer::HostTimer()
    : LateBoundObject({{L"Enabled",
                        [this](const std::vector<_variant_t>& arguments, WORD) {
                            if (!arguments.empty()) enabled = arguments[0];
                            return _variant_t(enabled);
                        }},
                       {L"Interval",
                        [this](const std::vector<_variant_t>& arguments, WORD) {
                            if (!arguments.empty()) interval = arguments[0];
                            return _variant_t(interval);
                        }}}),
      events_(this, __uuidof(_ISuiteTimerEvents)) {}

STDMETHODIMP HostTimer::FindConnectionPoint(REFIID iid, IConnectionPoint** point) {
    if (iid != __uuidof(_ISuiteTimerEvents)) return LateBoundObject::FindConnectionPoint(iid, point);
    *point = ComPtr<IConnectionPoint>(&events_).Detach();
    return S_OK;
}

void HostTimer::Tick() { events_.Fire(1, {}); }

}  // namespace support
