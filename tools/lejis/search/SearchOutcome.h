// How a search ended: the one event that was raised for it.
#pragma once

#include <TVLejisCore.h>
#include <windows.h>
#include <wrl/client.h>

#include <string>

namespace lejis_client {

enum class SearchEnd { None, Completed, ConfigurationError, NetworkError, ServiceError };

struct SearchOutcome {
    SearchEnd end = SearchEnd::None;
    Microsoft::WRL::ComPtr<ICollection> results;
    // The library's words about a failure.
    std::wstring message;
};

}  // namespace lejis_client
