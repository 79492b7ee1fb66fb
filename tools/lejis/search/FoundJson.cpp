#include "search/FoundJson.h"

#include "search/CardJson.h"
#include "search/FoundIncident.h"

namespace lejis_client {
namespace {

// In the order of the columns.
constexpr const char* kNames[] = {"agency", "incident", "date", "charge", "place"};
static_assert(std::size(kNames) == std::tuple_size_v<IncidentColumns>);

Json JsonOf(ILejisIncidentIndexCard* card) {
    const IncidentColumns columns = ColumnsOf(card);
    Json incident;
    for (std::size_t i = 0; i < columns.size(); ++i) incident[kNames[i]] = JsonText(columns[i]);
    incident["persons"] = JsonTexts(PersonsOf(card));
    incident["vehicles"] = JsonTexts(VehiclesOf(card));
    incident["card"] = CardJson(card);
    return incident;
}

}  // namespace

Json FoundJson(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards) {
    Json list = Json::array();
    for (const auto& card : cards) list.push_back(JsonOf(card.Get()));
    return list;
}

}  // namespace lejis_client
