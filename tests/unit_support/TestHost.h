// The host suite, registered for the length of one test: its components are found by ProgID as on a workstation.
#pragma once

#include "platform/com/EventSource.h"
#include "unit_support/LateBoundObject.h"

#include <wrl/client.h>

#include <functional>
#include <string>
#include <vector>

namespace support {

// One timer that the library has made; the test makes it tick.
class HostTimer final : public LateBoundObject {
public:
    HostTimer();

    STDMETHODIMP FindConnectionPoint(REFIID iid, IConnectionPoint** point) override;

    // Raises Elapsed, as the host does when the interval has passed.
    void Tick();

    bool enabled = false;
    long interval = 0;

private:
    platform::ConnectionPoint events_;
};

class TestHost {
public:
    TestHost();
    ~TestHost();
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    // The suite's answers.
    long errorNumber = static_cast<long>(0x80041234);
    bool failsToNumber = false;
    std::function<void()> onYield = [] {};
    std::wstring diagnosticsFolder;
    bool hasFolders = true;

    // What the library has asked for.
    std::vector<long> errorKinds;
    int yields = 0;
    int servicesMade = 0;
    int environmentsMade = 0;
    std::vector<Microsoft::WRL::ComPtr<HostTimer>> timers;

private:
    using Maker = std::function<Microsoft::WRL::ComPtr<IUnknown>()>;

    struct Registration {
        std::wstring progId;
        DWORD cookie;
    };

    void Register(const wchar_t* progId, REFCLSID classId, Maker maker);
    Microsoft::WRL::ComPtr<IUnknown> MakeServices();
    Microsoft::WRL::ComPtr<IUnknown> MakeEnvironment();
    Microsoft::WRL::ComPtr<IUnknown> MakeTimer();

    std::vector<Registration> registrations_;
};

}  // namespace support
