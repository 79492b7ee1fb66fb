#include "foundation/ElementWriter.h"

#include "foundation/Constants.h"
#include "foundation/NodeFactory.h"
#include "foundation/Prefixes.h"
#include "platform/msxml/Node.h"

namespace lejis {

ElementWriter::ElementWriter(const msxml::Document& document, const std::wstring& qualifiedName)
    : document_(document),
      element_(NodeFactory::CreateQualifiedElement(document, qualifiedName, NamespaceOf(qualifiedName))) {}

void ElementWriter::Text(const std::wstring& name, const std::wstring& value) {
    Child(NodeFactory::CreateTextElement(document_, name, value, NamespaceOf(name)));
}

void ElementWriter::OptionalText(const std::wstring& name, const std::wstring& value) {
    if (!value.empty()) Text(name, value);
}

void ElementWriter::Boolean(const std::wstring& name, bool flag) {
    Child(NodeFactory::CreateBooleanElement(document_, name, flag, NamespaceOf(name)));
}

void ElementWriter::Id(const std::wstring& name, const std::wstring& identifier) {
    Child(NodeFactory::CreateIdElement(document_, name, identifier));
}

void ElementWriter::OptionalId(const std::wstring& name, const std::wstring& identifier) {
    if (!identifier.empty()) Id(name, identifier);
}

void ElementWriter::OptionalJurisdictionId(const std::wstring& name, const std::wstring& identifier,
                                           const std::wstring& state) {
    if (identifier.empty() || state.empty()) return;
    Child(NodeFactory::CreateJurisdictionIdElement(document_, name, identifier, state));
}

void ElementWriter::OptionalMeasure(const std::wstring& name, const std::wstring& value,
                                    const std::wstring& unitAttribute) {
    if (value.empty()) return;
    const msxml::Element element = NodeFactory::CreateTextElement(document_, name, value, NamespaceOf(name));
    msxml::SetAttribute(document_, element, unitAttribute, Constants::kJxdmNamespace, L"ncic");
    Child(element);
}

void ElementWriter::Child(const msxml::Element& child) { msxml::Append(element_, child); }

}  // namespace lejis
