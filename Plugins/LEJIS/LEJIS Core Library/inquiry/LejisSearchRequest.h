#pragma once

#include "inquiry/LejisAdHocInquiryArguments.h"
#include "inquiry/LejisInquiryControls.h"
#include "inquiry/LocationInquiryArguments.h"
#include "inquiry/PersonInquiryArguments.h"
#include "inquiry/PropertyInquiryArguments.h"
#include "inquiry/VehicleInquiryArguments.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

namespace lejis {

// A search, as inq:LEJISIndexInquiry. It is sent as it stands: the server refuses a search that asks for nothing.
class LejisSearchRequest final : public platform::ComObject<::LejisSearchRequest, ILejisSearchRequest> {
public:
    OBJECT_PROPERTY(PersonInquiryArguments, personArguments)
    OBJECT_PROPERTY(LocationInquiryArguments, LocationArguments)
    OBJECT_PROPERTY(PropertyInquiryArguments, PropertyArguments)
    OBJECT_PROPERTY(VehicleInquiryArguments, VehicleArguments)
    OBJECT_PROPERTY(LejisAdHocInquiryArguments, AdHocInquiryArguments)
    OBJECT_PROPERTY(LejisInquiryControls, InquiryControls)
    [[nodiscard]] STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override;
    [[nodiscard]] STDMETHODIMP ToXmlDocument(IDispatch** result) override;
    [[nodiscard]] STDMETHODIMP FromXmlElement(IDispatch* elem) override;

    // The new element becomes the root of the document. Throws when the document has a root.
    msxml::Element Write(const OutputDocument& document) const;
    msxml::Document ToDocument() const;
    // A block whose element is missing stays as it is.
    void Read(const ElementReader& element);
};

}  // namespace lejis
