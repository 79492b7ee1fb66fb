#pragma once

#include "model/LejisIncidentIndexCard.h"
#include "platform/com/Collection.h"
#include "platform/com/ComObject.h"
#include "platform/com/Properties.h"

#include <TVLejisCore.h>

#include <string_view>

namespace lejis {

// The answer to a search, from lejis:LEJISIndexInquiryResponse. The server's count and the number of cards are two
// things: it may find more than it returns.
class LejisInquiryResponse final : public platform::ComObject<::LejisInquiryResponse, ILejisInquiryResponse> {
public:
    OBJECT_PROPERTY(Collection, IncidentIndexCards)
    STDMETHODIMP get_IncidentCount(long* result) override;
    [[nodiscard]] STDMETHODIMP FromXmlElement(IDispatch* elem) override;
    [[nodiscard]] STDMETHODIMP FromXmlDocument(IDispatch* doc) override;

    long IncidentCount = 0;

    // Throws for a card that cannot be read. The cards before it stay, and the count keeps its old value.
    void Read(const msxml::Element& element);
    // Reads the answer of a SOAP envelope in UTF-8. Throws NotPlain for whatever only MSXML can judge.
    void ReadPlainMarkup(std::string_view bytes);
    // Reads the first answer at any depth of the node. Throws the object error when the node holds no answer.
    void ReadBelow(const msxml::Node& node);

private:
    void AddCard(const ElementReader& element);
};

}  // namespace lejis
