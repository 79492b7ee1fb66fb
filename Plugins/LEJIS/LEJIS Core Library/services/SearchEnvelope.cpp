#include "services/SearchEnvelope.h"

#include "foundation/Constants.h"
#include "foundation/QueryPrefixes.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"

namespace lejis {

msxml::Document WrapInSearchEnvelope(const msxml::Element& inquiry, const std::wstring& username) {
    const msxml::Document envelope = msxml::CreateDocument();
    // The user name is not escaped, on purpose. A name with a DOCTYPE in it does not parse, so it draws nothing in.
    msxml::LoadXml(envelope, std::wstring(L"<soap:Envelope xmlns:soap='") + Constants::kSoapNamespace +
                                 L"' xmlns:wsse='" + Constants::kWsseNamespace +
                                 L"'><soap:Header><wsse:Security><wsse:UsernameToken><wsse:Username>" + username +
                                 L"</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header>"
                                 L"<soap:Body></soap:Body></soap:Envelope>");
    const msxml::Element root = msxml::Root(envelope);
    if (!root) throw platform::ObjectRequired();
    LejisUtils::SetSelectionNamespaces(envelope);
    msxml::Append(msxml::SelectNode(root, L"soap:Body"), inquiry);
    return envelope;
}

}  // namespace lejis
