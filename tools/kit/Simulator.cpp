#include "Simulator.h"

#include "doctor/WebPage.h"
#include "text/Utf8.h"

#include <nlohmann/json.hpp>

#include <stdexcept>

namespace kit {
namespace {

[[noreturn]] void Refuse(const std::wstring& address, const std::wstring& reason) {
    throw std::runtime_error(lejis_client::Utf8(address + L" " + reason));
}

std::string StatusOf(const std::wstring& address) {
    try {
        return lejis_client::FetchPageDirectly(address + L"/control/status").content;
    } catch (const lejis_client::WebFailure& failure) {
        Refuse(address, L"cannot be reached: error " + std::to_wstring(failure.error));
    }
}

}  // namespace

void RequireSimulator(const std::wstring& address) {
    const nlohmann::json status = nlohmann::json::parse(StatusOf(address), nullptr, false);
    if (!status.is_object() || !status.contains("far_side")) Refuse(address, L"is no simulator.");
    if (!status["far_side"].is_null()) Refuse(address, L"is a simulator that records a true LEJIS.");
}

}  // namespace kit
