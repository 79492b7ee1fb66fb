#include "unit_support/BothReadings.h"

#include "services/LejisSearchWebService.h"
#include "unit_support/Description.h"
#include "unit_support/EventLog.h"
#include "unit_support/PlainReadingSwitch.h"

namespace support {

ObservedSearch ObserveSearchWith(const Script& script, bool isPlainReadingOn) {
    const PlainReadingSwitch plainReading(isPlainReadingOn);
    const ScriptedHttp http(script);
    const auto service = platform::Create<lejis::LejisSearchWebService>();
    service->URL = L"http://lejis-interface/search";
    const auto log = EventLog::ForSearches();
    log->ConnectTo(service->Dispatch());
    const auto request = platform::Create<lejis::LejisSearchRequest>();
    EXPECT_EQ(S_OK, service->Search(request.Get()));
    // At once instead of a tick later.
    EXPECT_EQ(S_OK, service->Run());
    log->Disconnect();
    Microsoft::WRL::ComPtr<ICollection> results;
    EXPECT_EQ(S_OK, service->get_results(results.GetAddressOf()));
    return {log->events, results ? Description(results.Get()) : std::wstring(L"none"),
            http.Last().Seen().asksForDocument == 0};
}

}  // namespace support
