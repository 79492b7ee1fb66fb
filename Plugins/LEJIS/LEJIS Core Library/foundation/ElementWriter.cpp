#include "foundation/ElementWriter.h"

#include "foundation/NodeFactory.h"
#include "foundation/Prefixes.h"
#include "platform/msxml/Node.h"

namespace lejis {

ElementWriter::ElementWriter(const OutputDocument& document, std::wstring_view qualifiedName)
    : document_(document),
      element_(NodeFactory::CreateQualifiedElement(document, qualifiedName, NamespaceOf(qualifiedName))) {}

void ElementWriter::Text(std::wstring_view name, std::wstring_view value) {
    Child(NodeFactory::CreateTextElement(document_, name, value, NamespaceOf(name)));
}

void ElementWriter::OptionalText(std::wstring_view name, std::wstring_view value) {
    if (!value.empty()) Text(name, value);
}

void ElementWriter::Boolean(std::wstring_view name, bool flag) {
    Child(NodeFactory::CreateBooleanElement(document_, name, flag, NamespaceOf(name)));
}

void ElementWriter::Id(std::wstring_view name, std::wstring_view identifier) {
    Child(NodeFactory::CreateIdElement(document_, name, identifier));
}

void ElementWriter::OptionalId(std::wstring_view name, std::wstring_view identifier) {
    if (!identifier.empty()) Id(name, identifier);
}

void ElementWriter::OptionalJurisdictionId(std::wstring_view name, std::wstring_view identifier,
                                           std::wstring_view state) {
    if (identifier.empty() || state.empty()) return;
    Child(NodeFactory::CreateJurisdictionIdElement(document_, name, identifier, state));
}

void ElementWriter::OptionalMeasure(std::wstring_view name, std::wstring_view value, std::wstring_view unitAttribute) {
    if (value.empty()) return;
    const msxml::Element element = document_.CreateMeasure(name, unitAttribute);
    msxml::SetText(element, value);
    Child(element);
}

void ElementWriter::Child(const msxml::Element& child) { msxml::Append(element_, child); }

}  // namespace lejis
