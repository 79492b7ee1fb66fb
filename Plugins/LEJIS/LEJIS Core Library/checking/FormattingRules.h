// The rules by which the formatter shapes an incident, in the order in which they run within each record.
#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"

#include <string>

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

    // A text longer than the limit is cut to it; `field` names it in the warning.
    void Truncate(const std::wstring& label, const std::wstring& field, std::wstring& value, size_t limit);
    void TruncateName(const std::wstring& label, const std::wstring& field, std::wstring& value);
    void RequireOffenseCode(const std::wstring& label, std::wstring& code);
    void RequireCode(const std::wstring& label, const std::wstring& kind, const std::wstring& list,
                     std::wstring_view accepted, std::wstring& code);
    void DropLongStreetNumber(const std::wstring& label, NullableLong& number);
    void ShortenZip(const std::wstring& label, std::wstring& zip);
    void DropWeight(const std::wstring& label, NullableInteger& weight);
    void DropYear(const std::wstring& label, NullableInteger& year);

    void Warn(const std::wstring& label, const std::wstring& message);

    Collection& warnings_;
};

}  // namespace lejis
