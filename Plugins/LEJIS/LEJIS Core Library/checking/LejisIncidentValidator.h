#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

#include <string>

namespace lejis {

// Finds what LEJIS would reject and the library cannot mend. It changes nothing; mending is the formatter's work.
class LejisIncidentValidator final : public platform::ComObject<::LejisIncidentValidator, ILejisIncidentValidator> {
public:
    OBJECT_PROPERTY(Collection, Errors)
    STDMETHODIMP get_HasErrors(VARIANT_BOOL* result) override;
    [[nodiscard]] STDMETHODIMP Validate(ILejisIncidentIndexCard* incident, VARIANT_BOOL* result) override;

    bool HasErrors() const { return Errors->Count() > 0; }

    // True when errors were found. This is deliberate: clients depend on it.
    bool FindErrors(const LejisIncidentIndexCard& incident);

private:
    void StartList() { Errors = platform::Create<Collection>(); }
    bool Check(const LejisIncidentIndexCard& incident);

    void AddError(const std::wstring& message);
    void AddLabelledError(const std::wstring& label, const std::wstring& message);

    void CheckIdentifiers(const LejisIncidentIndexCard& incident);
    void CheckAddress(const std::wstring& label, const LejisStreetAddress& address);
    void CheckPerson(const LejisPersonIndexCard& person);
};

}  // namespace lejis
