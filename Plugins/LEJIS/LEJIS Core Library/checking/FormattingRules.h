// The rules by which the formatter shapes an incident, in the order in which they run within each record.
#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"
#include "platform/TextField.h"

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

    // The rules that incidents and persons share.
    template <typename Record>
    void ApplyShared(const std::wstring& label, Record& record);

    // Each rule leaves a text as it is, or shortens or replaces it. The warning calls the text `name`.
    void Truncate(const std::wstring& label, std::wstring_view name, platform::TextField& text, size_t limit);
    void TruncateName(const std::wstring& label, std::wstring_view name, platform::TextField& text);
    void DropUnknownOffenseCode(const std::wstring& label, platform::TextField& code);
    void ReplaceUnknownCode(const std::wstring& label, std::wstring_view kind, std::wstring_view list,
                            std::wstring_view accepted, platform::TextField& code);
    void ShortenZip(const std::wstring& label, platform::TextField& zip);

    void DropLongStreetNumber(const std::wstring& label, NullableLong& number);
    void DropWeight(const std::wstring& label, NullableInteger& weight);
    void DropYear(const std::wstring& label, NullableInteger& year);

    void Warn(const std::wstring& label, const std::wstring& message);

    Collection& warnings_;
};

}  // namespace lejis
