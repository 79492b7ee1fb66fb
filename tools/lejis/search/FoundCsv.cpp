#include "search/FoundCsv.h"

#include "library/CardFields.h"
#include "library/Members.h"
#include "search/FoundIncident.h"
#include "text/IsoTime.h"

#include <algorithm>

namespace lejis_client {
namespace {

using Microsoft::WRL::ComPtr;
using Row = std::vector<std::wstring>;

constexpr const wchar_t* kIncidentColumns[] = {L"Agency", L"Incident", L"Date", L"Charge", L"Place"};
static_assert(std::size(kIncidentColumns) == std::tuple_size_v<IncidentColumns>);

std::wstring ValueText(const _variant_t& value) {
    if (value.vt == VT_NULL || value.vt == VT_EMPTY) return {};
    if (value.vt == VT_BOOL) return value.boolVal ? L"true" : L"false";
    if (value.vt == VT_DATE) return IsoTime(value.date);
    return Text(_bstr_t(value));
}

// The names and values of a card and of the parts of it, such as address.City.
void Flatten(IDispatch* card, const std::wstring& prefix, Row& names, Row& values) {
    for (const CardField& field : FieldsOf(card)) {
        if (field.value.vt == VT_DISPATCH) {
            if (field.value.pdispVal) Flatten(field.value.pdispVal, prefix + field.name + L'.', names, values);
            continue;
        }
        names.push_back(prefix + field.name);
        values.push_back(ValueText(field.value));
    }
}

Row PersonNames() {
    Row names, values;
    Flatten(Create<LejisPersonIndexCard, ILejisPersonIndexCard>().Get(), {}, names, values);
    return names;
}

// The texts come from other agencies: a spreadsheet would carry out one that begins like a formula.
std::wstring WithoutFormula(const std::wstring& value) {
    return value.find_first_of(L"=+-@\t\r") == 0 ? L'\'' + value : value;
}

std::wstring Quoted(const std::wstring& value) {
    if (value.find_first_of(L",\"\r\n") == std::wstring::npos) return value;
    std::wstring quoted = L"\"";
    for (const wchar_t character : value) {
        if (character == L'"') quoted += L'"';
        // The console has its own idea of the ends of lines.
        if (character != L'\r') quoted += character;
    }
    return quoted + L'"';
}

std::wstring Line(const Row& row) {
    std::wstring line;
    for (const std::wstring& value : row) line += Quoted(WithoutFormula(value)) + L',';
    line.back() = L'\n';
    return line;
}

}  // namespace

std::wstring FoundCsv(const std::vector<ComPtr<ILejisIncidentIndexCard>>& cards) {
    const Row personNames = PersonNames();
    Row header(std::begin(kIncidentColumns), std::end(kIncidentColumns));
    header.insert(header.end(), personNames.begin(), personNames.end());
    std::wstring table = Line(header);
    for (const auto& card : cards) {
        const IncidentColumns columns = ColumnsOf(card.Get());
        const auto persons = Objects<IDispatch>(Part(card.Get(), &ILejisIncidentIndexCard::get_PersonIndexCards).Get());
        for (std::size_t i = 0; i < std::max<std::size_t>(persons.size(), 1); ++i) {
            Row names, values(columns.begin(), columns.end());
            if (persons.empty()) {
                values.resize(header.size());
            } else {
                Flatten(persons[i].Get(), {}, names, values);
            }
            table += Line(values);
        }
    }
    return table;
}

}  // namespace lejis_client
