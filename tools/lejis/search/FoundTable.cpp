#include "search/FoundTable.h"

#include "search/FoundIncident.h"
#include "text/Layout.h"
#include "text/Printable.h"

#include <algorithm>

namespace lejis_client {
namespace {

// A longer text does not push the others out of sight.
constexpr std::size_t kWidestColumn = 40;

const IncidentColumns kTitles = {L"Agency", L"Incident", L"Date", L"Charge", L"Place"};

using Widths = std::array<std::size_t, kTitles.size()>;

Widths WidthsOf(const std::vector<IncidentColumns>& rows) {
    Widths widths = {};
    for (const IncidentColumns& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], std::min(row[i].size(), kWidestColumn));
        }
    }
    return widths;
}

std::wstring Line(const IncidentColumns& row, const Widths& widths) {
    std::wstring line;
    for (std::size_t i = 0; i < row.size(); ++i) line += PaddedRight(row[i], widths[i]) + L"  ";
    line.erase(line.find_last_not_of(L' ') + 1);
    return Printable(line) + L'\n';
}

}  // namespace

std::wstring FoundTable(const std::vector<Microsoft::WRL::ComPtr<ILejisIncidentIndexCard>>& cards) {
    std::vector<IncidentColumns> rows = {kTitles};
    for (const auto& card : cards) rows.push_back(ColumnsOf(card.Get()));
    const Widths widths = WidthsOf(rows);
    std::wstring table = Line(rows.front(), widths);
    for (std::size_t i = 0; i < cards.size(); ++i) {
        table += Line(rows[i + 1], widths);
        for (const auto& details : {PersonsOf(cards[i].Get()), VehiclesOf(cards[i].Get())}) {
            for (const std::wstring& detail : details) table += L"    " + Printable(detail) + L'\n';
        }
    }
    return table;
}

}  // namespace lejis_client
