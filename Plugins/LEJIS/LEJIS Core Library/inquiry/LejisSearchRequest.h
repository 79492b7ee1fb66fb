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

// A search, as inq:LEJISIndexInquiry. It is sent as it stands: that nothing is asked for is for the server to refuse.
class LejisSearchRequest final : public platform::ComObject<::LejisSearchRequest, ILejisSearchRequest> {
public:
    OBJECT_PROPERTY(PersonInquiryArguments, personArguments)
    OBJECT_PROPERTY(LocationInquiryArguments, LocationArguments)
    OBJECT_PROPERTY(PropertyInquiryArguments, PropertyArguments)
    OBJECT_PROPERTY(VehicleInquiryArguments, VehicleArguments)
    OBJECT_PROPERTY(LejisAdHocInquiryArguments, AdHocInquiryArguments)
    OBJECT_PROPERTY(LejisInquiryControls, InquiryControls)
    STDMETHODIMP ToXmlElement(IDispatch* doc, IDispatch** result) override;
    STDMETHODIMP ToXmlDocument(IDispatch** result) override;
    STDMETHODIMP FromXmlElement(IDispatch* elem) override;

    // Becomes the root of the document. Raises when that has a root.
    msxml::Element ToXmlElement(const OutputDocument& document) const;
    msxml::Document ToXmlDocument() const;
    // A block whose element is missing stays as it is.
    void FromXmlElement(const ElementReader& element);
};

}  // namespace lejis
