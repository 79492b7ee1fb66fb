// The rules by which the formatter shapes an incident, in the order in which they run within each record.
#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"

#include <string>
#include <string_view>

namespace lejis {

class FormattingRules {
public:
    explicit FormattingRules(Collection& warnings) : warnings_(warnings) {}

    // Shapes the incident and all its records; one warning for each change.
    void Apply(LejisIncidentIndexCard& incident);

private:
    void Apply(LejisPersonIndexCard& person);
    void Apply(LejisPropertyIndexCard& property);
    void Apply(LejisVehicleIndexCard& vehicle);
    void Apply(const std::wstring& label, LejisStreetAddress& address);

    // What incidents and persons have in common.
    template <typename Record>
    void ApplyShared(const std::wstring& label, Record& record);

    // Each gives what becomes of a text: the text itself, a part of it, or another one that lasts. `field` names a text
    // in the warning, and one longer than the limit is cut to it.
    std::wstring_view Truncated(const std::wstring& label, std::wstring_view field, std::wstring_view value,
                                size_t limit);
    std::wstring_view TruncatedName(const std::wstring& label, std::wstring_view field, std::wstring_view value);
    std::wstring_view OffenseCodeOrNone(const std::wstring& label, std::wstring_view code);
    std::wstring_view CodeOrUnknown(const std::wstring& label, std::wstring_view kind, std::wstring_view list,
                                    std::wstring_view accepted, std::wstring_view code);
    std::wstring_view ShortenedZip(const std::wstring& label, std::wstring_view zip);

    void DropLongStreetNumber(const std::wstring& label, NullableLong& number);
    void DropWeight(const std::wstring& label, NullableInteger& weight);
    void DropYear(const std::wstring& label, NullableInteger& year);

    void Warn(const std::wstring& label, const std::wstring& message);

    Collection& warnings_;
};

}  // namespace lejis
