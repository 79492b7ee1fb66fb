#include "services/SubmissionEnvelope.h"

#include "foundation/Constants.h"
#include "foundation/QueryPrefixes.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {

msxml::Document WrapInEnvelope(const msxml::Element& submission) {
    const msxml::Document envelope = msxml::CreateDocument();
    msxml::LoadXml(envelope, std::wstring(L"<soap:Envelope xmlns:soap='") + Constants::kSoapNamespace +
                                 L"'><soap:Body></soap:Body></soap:Envelope>");
    LejisUtils::SetSelectionNamespaces(envelope);
    msxml::Append(msxml::SelectNode(msxml::Root(envelope), L"soap:Body"), submission);
    return envelope;
}

}  // namespace lejis
