#include "FirstObjectProcess.h"

#include "platform/ComError.h"
#include "SelfProcess.h"

#include <objbase.h>
#include <windows.h>
#include <wrl/client.h>

#include <chrono>
#include <stdexcept>
#include <string_view>

using Microsoft::WRL::ComPtr;

namespace benchmarks {
namespace {

constexpr std::string_view kFirstObjectOption = "--first-object";
constexpr int kNoTime = -1;

// The time is the exit code: it needs no pipe.
int TimeToCreate(const std::wstring& progId) {
    CLSID classId;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId))) return kNoTime;
    const auto start = std::chrono::steady_clock::now();
    ComPtr<IUnknown> object;
    if (FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(object.GetAddressOf())))) {
        return kNoTime;
    }
    const auto elapsed = std::chrono::steady_clock::now() - start;
    return static_cast<int>(std::chrono::duration_cast<std::chrono::microseconds>(elapsed).count());
}

}  // namespace

std::optional<int> FirstObjectCode(int count, char** texts) {
    if (count != 3 || texts[1] != kFirstObjectOption) return std::nullopt;
    const std::string_view progId = texts[2];
    return TimeToCreate(std::wstring(progId.begin(), progId.end()));
}

double FirstObjectMicroseconds(const std::wstring& progId) {
    const std::wstring option(kFirstObjectOption.begin(), kFirstObjectOption.end());
    const int code = ExitCodeOfSelf(option + L" " + progId);
    if (code == kNoTime) throw std::runtime_error("an object could not be created");
    return code;
}

}  // namespace benchmarks
